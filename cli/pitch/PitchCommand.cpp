#include "cli/pitch/PitchCommand.h"

#include "audio/FrameRule.h"
#include "cli/files/FileRun.h"
#include "cli/files/FilesOptions.h"
#include "cli/pitch/PitchSetting.h"
#include "cli/terminal/JobFailure.h"
#include "cli/terminal/UsageError.h"
#include "cli/terminal/Wording.h"
#include "engine/Tones.h"
#include "facade/ZELFunctions.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <memory>

namespace lumora {

namespace {

constexpr char kPitchFooter[] = R"(
IN is any sound file with one or two channels; what is not a plain 8- or 16-bit
WAVE file is converted first. OUT is a 16-bit WAVE file, at most 10 ms shorter.

  lumora pitch song.wav higher.wav --tones +1/8
  lumora pitch *.flac --out-dir lower --tones -2-3/8 --jobs 4)";

/// The ways to say how far; each has its own reader, and exactly one is wanted.
struct SettingOption {
    const char* name;
    const char* unit;
    const char* text;
    PitchSetting (*read)(const std::string&);
};

constexpr SettingOption kSettings[] = {
    {"--tones", "T", "Whole tones and a fraction, -6 to 6: +1, 1/64, -2-3/8",
     PitchSetting::FromTones},
    {"--octaves", "X", "Octaves, -1 to 1", PitchSetting::FromOctaves},
    {"--cents", "C", "Cents, -1200 to 1200", PitchSetting::FromCents},
    {"--q-p", "Q", "Old pitch over new pitch, 0.5 to 2.0", PitchSetting::FromQuotient},
};

/// The line as it was given.
struct PitchWords {
    std::array<std::optional<std::string>, std::size(kSettings)> settings;
    FilesRequest files;
};

std::vector<std::string> SettingNames()
{
    std::vector<std::string> names;
    for (const SettingOption& each : kSettings)
        names.emplace_back(each.name);
    return names;
}

PitchSetting SettingIn(const PitchWords& words)
{
    const auto is_given = [](const auto& text) { return text.has_value(); };
    const auto& texts = words.settings;
    const auto given = std::find_if(texts.begin(), texts.end(), is_given);
    if (std::count_if(texts.begin(), texts.end(), is_given) != 1)
        throw UsageError("say how far to move the pitch, with exactly one of " +
                         Listed(SettingNames(), "and"));
    return kSettings[given - texts.begin()].read(**given);
}

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

int RunPitch(const PitchSetting& setting, const FilesRequest& files)
{
    const JsonValue asked = {
        {"change", setting.asked}, {"q_p", setting.Q_P}, {"asked_cents", setting.cents_asked}};
    const auto work = [&](const ReadyFile& file) {
        ChangePitch(file, setting.Q_P);
        return Summary(setting, file.sound.rate_hz);
    };
    return RunOnFiles(files, asked, {kPitchLimits, work});
}

} // namespace

Command PitchCommand()
{
    const auto words = std::make_shared<PitchWords>();
    Command command = {
        .name = "pitch",
        .text = "Change the pitch of sound files",
        .usage = {"IN OUT SETTING [OPTIONS]", "IN... --out-dir DIR SETTING [OPTIONS]"},
        .footer = kPitchFooter,
        .run =
            [words] {
                const PitchSetting setting = SettingIn(*words);
                TakeNames(words->files);
                return RunPitch(setting, words->files);
            },
    };
    for (std::size_t k = 0; k < std::size(kSettings); ++k)
        command.options.push_back({kSettings[k].name, kSettings[k].text,
                                   TextValue{&words->settings[k], kSettings[k].unit},
                                   "Setting (one of them)"});
    AddFilesOptions(command, words->files);
    return command;
}

} // namespace lumora
