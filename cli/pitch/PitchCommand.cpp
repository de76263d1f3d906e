#include "cli/pitch/PitchCommand.h"

#include "audio/FrameRule.h"
#include "cli/files/FileRun.h"
#include "cli/terminal/JobFailure.h"
#include "cli/terminal/Wording.h"
#include "engine/Tones.h"
#include "facade/ZELFunctions.h"

namespace lumora {

namespace {

void ChangePitch(const ReadyFile& file, double quotient)
{
    // Lives as long as the process, which ends by _exit: the facade's clean-up looks through the
    // program's folder for files of operations that this command does not have.
    static ZELFunctions facade;
    ProgressBar bar;
    facade.InFileName = file.input;
    facade.OutFileName = file.result;
    facade.Q_P = quotient;
    facade.PumpEvents = [&] {
        file.progress(bar.Max > 0 ? static_cast<double>(bar.Value) / bar.Max : 0.0);
    };
    if (facade.On_Note(bar) != 0)
        throw JobFailure("the input is no longer there: " + file.messages.First());
    if (!file.messages.Empty()) throw JobFailure("the run failed: " + file.messages.First());
}

/// What was asked for, and what the engine makes of it at this rate.
JobSummary Summary(const PitchSetting& setting, std::int32_t rate_hz)
{
    const double made = CentsMade(setting.Q_P, rate_hz);
    const bool too_fine = setting.Q_P != 1.0 && made == 0.0;
    std::string line = setting.asked + " = " + CentsText(setting.cents_asked) + " cents, ";
    if (too_fine)
        line += "too fine for this sample rate: the pitch stays as it is";
    else
        line += "the engine gives " + CentsText(made) + " cents";
    return {line,
            {{"block_samples", FrameLength(rate_hz)},
             {"effective_cents", made},
             {"too_fine", too_fine}}};
}

} // namespace

int RunPitchCommand(const PitchRequest& request)
{
    const PitchSetting& setting = request.setting;
    const nlohmann::ordered_json asked = {
        {"change", setting.asked}, {"q_p", setting.Q_P}, {"asked_cents", setting.cents_asked}};
    const auto work = [&](const ReadyFile& file) {
        ChangePitch(file, setting.Q_P);
        return Summary(setting, file.sound.rate_hz);
    };
    return RunOnFiles(request.files, asked, {kPitchLimits, work});
}

} // namespace lumora
