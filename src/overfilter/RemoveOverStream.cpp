#include "overfilter/RemoveOverStream.h"

#include "audio/SampleConversion.h"
#include "audio/WaveFields.h"
#include "audio/WaveMessages.h"
#include "base/Messages.h"
#include "overfilter/OverFilterRun.h"
#include "overfilter/RemoveUnlessKept.h"

#include <algorithm>

namespace lumora {

namespace {

/// Samples to an open file behind the place of its header, as the source has them.
class TargetWriter {
public:
    TargetWriter(FileNumber file, const OverFilterRun& run)
        : file_(file),
          bits_(run.Info().nBitsPerSample),
          header_(PlainHeaderFor(std::int64_t{run.Info().TotalSamples} * run.Channels(),
                                 run.Channels(), run.Info().nSamplesPerSec, bits_))
    {
        SeekTo(file_, kPlainHeaderBytes + 1);
    }

    void Write(std::span<const double> samples)
    {
        if (bits_ == 8)
            WriteAs(bytes_, samples);
        else
            WriteAs(shorts_, samples);
    }

    void PutHeader()
    {
        static constexpr std::uint8_t kPad = 0;
        if (header_.padded) WriteValues(file_, std::span(&kPad, 1));
        SeekTo(file_, 1);
        PutPlainHeader(file_, header_);
    }

private:
    template <class Raw> void WriteAs(std::vector<Raw>& raw, std::span<const double> samples)
    {
        raw.resize(samples.size());
        Convert(samples, std::span<Raw>(raw));
        WriteValues(file_, std::span<const Raw>(raw));
    }

    FileNumber file_;
    std::int16_t bits_;
    PlainHeader header_;
    std::vector<std::uint8_t> bytes_;
    std::vector<std::int16_t> shorts_;
};

/// False if the run was cancelled.
bool RunInto(TargetWriter& target, OverFilterRun& run, OverFilterLength length,
             std::int16_t& quality_flag)
{
    const auto delay = static_cast<std::size_t>(run.Filter().BufferLen() - 1);
    std::size_t to_drop = length == OverFilterLength::Kept ? delay : 0;
    const auto write = [&](std::span<const double> samples) {
        const std::size_t dropped = std::min(to_drop, samples.size());
        to_drop -= dropped;
        target.Write(samples.subspan(dropped));
    };
    if (!run.Run(write, quality_flag)) return false;
    if (length == OverFilterLength::Kept) run.FeedSilence(delay, write);
    target.PutHeader();
    return true;
}

} // namespace

OverFilterReport RemoveOverStream(const std::string& SourcePath, const std::string& TargetPath,
                                  OverFilterLength Length, const OverFilterRequest& Request)
{
    RefuseSourceAsTarget(SourcePath, TargetPath);
    OverFilterReport report;
    OverFilterRun run(SourcePath, Request);
    if (!run.HasSource()) return report;
    report.BufferLen = run.Filter().BufferLen();
    OpenFile file(fopen(TargetPath, "wb"));
    if (file.Failed()) {
        ShowFileError(wave_messages::kFopen, wave_messages::kNoOutput);
        return report;
    }
    RemoveUnlessKept half_written(TargetPath);
    TargetWriter target(file.Number(), run);
    const bool complete = RunInto(target, run, Length, report.QualityGood);
    report.end = complete ? OverFilterReport::End::Complete : OverFilterReport::End::Cancelled;
    report.QualityGood = run.Filter().QualityGood(); // the silence at the end counts too
    report.figures = run.Filter().Figures();
    report.regions_behind = run.Filter().Waiting();
    report.source_has_shrunk = run.SourceHasShrunk();
    if (!complete) return report;
    file.Close();
    half_written.Keep();
    run.Finish();
    return report;
}

} // namespace lumora
