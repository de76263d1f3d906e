#include "cli/files/FileWork.h"

#include "audio/EnginePath.h"
#include "audio/WaveStream.h"
#include "base/OrOutOfMemory.h"
#include "base/RunTimeError.h"
#include "cli/files/InputCheck.h"
#include "cli/terminal/Explained.h"
#include "cli/terminal/JobFailure.h"
#include "cli/terminal/WhileUnchanged.h"
#include "cli/terminal/Wording.h"
#include "platform/Conversion.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <exception>

namespace lumora {

namespace {

using Clock = std::chrono::steady_clock;

class FileRunner {
public:
    FileRunner(const FileJob& job, const FileWork& work, JobLink& link)
        : job_(job), work_(work), link_(link), source_(job.input)
    {
    }

    void Run()
    {
        RefuseFaulty(job_.output, ", or --out-dir " + job_.output.Name());
        if (job_.picture) RefuseFaulty(*job_.picture, {});
        const InputCheck check = CheckInput(job_.input, work_.limits);
        if (check.road == Road::Refused) throw JobFailure(check.reason);
        FailFor(job_.output.Prepare());
        if (job_.picture) FailFor(job_.picture->Prepare());
        sound_ = check.sound;
        const JobSummary summary = WithWhatAllTell(
            check.road == Road::Converted ? WorkOnConverted(check) : WorkOnSource());
        FailFor(job_.output.Complete());
        if (job_.picture && job_.picture->IsThere()) FailFor(job_.picture->Complete());
        link_.Done(summary);
    }

private:
    static void RefuseFaulty(const OutputFile& output, const std::string& folder_hint)
    {
        const std::string fault = output.Fault(folder_hint);
        if (!fault.empty()) throw JobFailure(NameText(output.Name()) + " " + fault);
    }

    JobSummary WorkOnSource()
    {
        return WhileUnchanged(source_, [&] { return WorkOn(job_.input); });
    }

    /// Once it is converted, the input may change.
    JobSummary WorkOnConverted(const InputCheck& check)
    {
        Convert(check);
        return WorkOn(job_.output.Converted());
    }

    JobSummary WorkOn(const std::string& input)
    {
        const auto progress = [this](double done) {
            link_.Progress(converted_share_ + (1.0 - converted_share_) * done);
        };
        const auto note = [this](const std::string& text) { link_.Note(text); };
        return work_.work({EnginePath(input), EnginePath(job_.output.Result()),
                           job_.picture ? job_.picture->Result() : "", sound_, messages_, progress,
                           note});
    }

    void Convert(const InputCheck& check)
    {
        link_.Note("converted to 16-bit PCM first: " + check.reason);
        converted_share_ = 0.5; // reading another format takes about as long as the run
        const auto all = static_cast<double>(std::max<std::int64_t>(sound_.samples, 1));
        const auto progress = [&](std::int64_t done) {
            link_.Progress(converted_share_ * std::min(1.0, static_cast<double>(done) / all));
        };
        const ConversionCount count = WhileUnchanged(source_, [&] {
            return ConvertToPlainWave(job_.input, job_.output.Converted(), progress);
        });
        sound_.samples = count.samples;
        FailFor(LimitFault(work_.limits, sound_));
        NoteWhatWasMended(check, count);
    }

    void NoteWhatWasMended(const InputCheck& check, const ConversionCount& count)
    {
        const std::int64_t promised = std::max(check.samples_promised, check.sound.samples);
        if (count.samples < promised)
            link_.Note("the file is cut short: " + LengthText(count.samples, sound_.rate_hz) +
                       " of " + LengthText(promised, sound_.rate_hz) +
                       " are there, and these are used");
        if (count.clipped > 0)
            link_.Note("values beyond full scale that were clipped: " +
                       std::to_string(count.clipped) + "; a quieter source avoids that");
        if (count.not_a_number > 0)
            link_.Note("values that are no numbers, taken as silence: " +
                       std::to_string(count.not_a_number));
    }

    /// Puts what all commands tell around what this one does.
    JobSummary WithWhatAllTell(const JobSummary& own) const
    {
        constexpr double kShortest = 1e-6; // the clock's own step
        const double elapsed = std::chrono::duration<double>(Clock::now() - start_).count();
        const double seconds = static_cast<double>(sound_.samples) / sound_.rate_hz;
        const double times_real_time = seconds / std::max(elapsed, kShortest);
        char speed[40];
        std::snprintf(speed, sizeof speed, ", %.0f times real time", times_real_time);
        const std::int64_t output_samples =
            ReadWaveInfo(EnginePath(job_.output.Result())).TotalSamples;
        JsonValue fields = {{"rate_hz", sound_.rate_hz},
                            {"channels", sound_.channels},
                            {"samples", sound_.samples},
                            {"seconds", seconds},
                            {"output_samples", output_samples}};
        fields.SetAll(own.fields);
        fields.SetAll({{"elapsed_seconds", elapsed}, {"times_real_time", times_real_time}});
        const std::string length = LengthText(sound_.samples, sound_.rate_hz);
        return {length + ", " + own.line + speed, fields};
    }

    const FileJob& job_;
    const FileWork& work_;
    JobLink& link_;
    const WatchedFile source_;
    const Clock::time_point start_ = Clock::now();
    QuietMessages messages_;
    SoundShape sound_;
    double converted_share_ = 0.0;
};

} // namespace

std::string FileJob::Commit() const
{
    FailFor(output.Commit());
    if (!picture) return {};
    if (picture->IsThere()) {
        FailFor(picture->Commit());
        return {};
    }
    if (!picture->HasOlder()) return {};
    FailFor(picture->RemoveOlder());
    return "the older picture " + NameText(picture->Name()) + " was removed";
}

void FileJob::Discard() const
{
    output.Discard();
    if (picture) picture->Discard();
}

void RunFileJob(const FileJob& job, const FileWork& work, JobLink& link)
{
    try {
        OrOutOfMemory([&] { FileRunner(job, work, link).Run(); });
    } catch (const RunTimeError& error) {
        link.Failed(Explained(error));
    } catch (const std::exception& failure) {
        link.Failed(failure.what());
    }
}

} // namespace lumora
