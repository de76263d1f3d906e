#include "cli/PitchJob.h"

#include "audio/FrameRule.h"
#include "audio/WaveStream.h"
#include "base/RunTimeError.h"
#include "cli/Conversion.h"
#include "cli/EnginePath.h"
#include "cli/Explained.h"
#include "cli/InputCheck.h"
#include "cli/JobFailure.h"
#include "cli/QuietMessages.h"
#include "cli/SoundFile.h"
#include "cli/Wording.h"
#include "engine/ZELFunctions.h"

#include <algorithm>
#include <chrono>
#include <exception>

namespace lumora {

namespace {

using Clock = std::chrono::steady_clock;

class PitchRunner {
public:
    PitchRunner(const PitchJob& job, JobLink& link) : job_(job), link_(link) {}

    void Run()
    {
        const Clock::time_point start = Clock::now();
        const std::string fault = job_.output.Fault(", or --out-dir " + job_.output.Name());
        if (!fault.empty()) throw JobFailure(NameText(job_.output.Name()) + " " + fault);
        const InputCheck check = CheckInput(job_.input);
        if (check.road == Road::Refused) throw JobFailure(check.reason);
        job_.output.Prepare();
        figures_.rate_hz = check.sound.rate_hz;
        figures_.channels = static_cast<std::int16_t>(check.sound.channels);
        figures_.samples = check.sound.samples;
        std::string input = job_.input;
        if (check.road == Road::Converted) {
            Convert(check);
            input = job_.output.Converted();
        }
        ChangePitch(input);
        figures_.block_samples = FrameLength(figures_.rate_hz);
        figures_.output_samples = ReadWaveInfo(EnginePath(job_.output.Result())).TotalSamples;
        figures_.elapsed_seconds = std::chrono::duration<double>(Clock::now() - start).count();
        link_.Done(figures_);
    }

private:
    void Convert(const InputCheck& check)
    {
        link_.Note("converted to 16-bit PCM first: " + check.reason);
        converted_share_ = 0.5; // reading another format takes about as long as the run
        const auto all = static_cast<double>(std::max<std::int64_t>(check.sound.samples, 1));
        const auto progress = [&](std::int64_t done) {
            link_.Progress(converted_share_ * std::min(1.0, static_cast<double>(done) / all));
        };
        const ConversionCount count =
            ConvertToPlainWave(job_.input, job_.output.Converted(), progress);
        figures_.samples = count.samples;
        const std::string fault = LimitFault({figures_.rate_hz, figures_.channels, count.samples});
        if (!fault.empty()) throw JobFailure(fault);
        NoteWhatWasMended(check, count);
    }

    void NoteWhatWasMended(const InputCheck& check, const ConversionCount& count)
    {
        const std::int64_t promised = std::max(check.samples_promised, check.sound.samples);
        if (count.samples < promised)
            link_.Note("the file is cut short: " + LengthText(count.samples, figures_.rate_hz) +
                       " of " + LengthText(promised, figures_.rate_hz) +
                       " are there, and these are used");
        if (count.clipped > 0)
            link_.Note("values beyond full scale that were clipped: " +
                       std::to_string(count.clipped) + "; a quieter source avoids that");
        if (count.not_a_number > 0)
            link_.Note("values that are no numbers, taken as silence: " +
                       std::to_string(count.not_a_number));
    }

    void ChangePitch(const std::string& input)
    {
        // Lives as long as the process, which ends by _exit: the facade's clean-up looks through
        // the program's folder for files of operations that this command does not have.
        static ZELFunctions facade;
        ProgressBar bar;
        facade.InFileName = EnginePath(input);
        facade.OutFileName = EnginePath(job_.output.Result());
        facade.Q_P = job_.Q_P;
        facade.Hooks.PumpEvents = [&] {
            const double done = bar.Max > 0 ? static_cast<double>(bar.Value) / bar.Max : 0.0;
            link_.Progress(converted_share_ + (1.0 - converted_share_) * done);
        };
        if (facade.On_Note(bar) != 0)
            throw JobFailure("the input is no longer there: " + messages_.First());
        if (!messages_.Empty()) throw JobFailure("the run failed: " + messages_.First());
    }

    const PitchJob& job_;
    JobLink& link_;
    QuietMessages messages_;
    PitchFigures figures_;
    double converted_share_ = 0.0;
};

} // namespace

void RunPitchJob(const PitchJob& job, JobLink& link)
{
    try {
        PitchRunner(job, link).Run();
    } catch (const RunTimeError& error) {
        link.Failed(Explained(error));
    } catch (const std::exception& failure) {
        link.Failed(failure.what());
    }
}

} // namespace lumora
