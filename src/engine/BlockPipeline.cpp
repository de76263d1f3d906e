#include "engine/BlockPipeline.h"

#include "audio/SampleConversion.h"
#include "audio/WaveSource.h"
#include "audio/WaveStream.h"
#include "base/Numbers.h"
#include "base/Paths.h"
#include "engine/BlockPlan.h"
#include "engine/BlockResampler.h"
#include "engine/ClsWsolaQuick.h"

#include <array>
#include <span>
#include <vector>

namespace lumora {

namespace {

constexpr std::size_t kMostChannels = 2;

/// One channel's way through a block.
struct ChannelLine {
    ClsWsolaQuick core;
    std::vector<std::int16_t> frame; ///< BlockLen samples of the input, times 32768
    std::vector<double> resampled;   ///< BlockLen samples of the result
};

/// Buffers and state of one run. Channels are data: mono and stereo take the same road.
class Pipeline {
public:
    Pipeline(const PitchRun& run, BlockResampler& resampler, const RunHooks& hooks)
        : run_(run),
          resampler_(resampler),
          hooks_(hooks),
          source_(run.InFileName),
          channels_(static_cast<std::size_t>(run.Channels))
    {
    }

    PitchReport Run()
    {
        const std::int64_t total = source_.Info().TotalSamples;
        plan_ = BlockPlan::ForRate(source_.Info().nSamplesPerSec);
        chunk_count_ = CInt(DivideWhole(total, plan_.ChunkLen));
        scale_ = Divide(1.0, run_.Q_P == 0.0 ? 1.0 : run_.Q_P);
        StartProgress();
        SetUpLines();
        CheckSource();
        for (std::int16_t c = 1; c <= chunk_count_; ++c) {
            Transform({std::int64_t{c - 1} * plan_.ChunkLen + 1, plan_.ChunkLen});
            Step(c);
        }
        const std::int64_t before = std::int64_t{chunk_count_} * plan_.ChunkLen;
        Transform({before + 1, total - before});
        EndProgress();
        return {source_.HasShrunk()};
    }

private:
    void SetUpLines()
    {
        for (std::size_t channel = 0; channel < channels_; ++channel) {
            ChannelLine& line = lines_[channel];
            line.core.SetUp(plan_.BlockLen, plan_.CoarseStep, kExtraLen);
            line.frame.assign(static_cast<std::size_t>(plan_.BlockLen), 0);
            line.resampled.assign(static_cast<std::size_t>(plan_.BlockLen), 0.0);
        }
    }

    void CheckSource() const
    {
        source_.CheckHeld(source_.AllFrames());
        if (static_cast<std::size_t>(source_.Info().nChannels) != channels_)
            Raise(ErrorNumber::Subscript, run_.InFileName);
    }

    /// Reads the whole blocks of a range, runs them and writes them. Only the tail of a file is not
    /// made of whole blocks; what is left over is dropped.
    void Transform(const FrameRange& range)
    {
        const std::int64_t blocks = range.count / plan_.BlockLen;
        if (blocks == 0) {
            // Ending well with nothing written would pass an older file off as the result.
            if (!written_) Raise(ErrorNumber::Subscript, run_.InFileName);
            return;
        }
        const std::int64_t frames = blocks * plan_.BlockLen;
        samples_.resize(static_cast<std::size_t>(frames) * channels_);
        source_.Read(range.first, std::span(samples_));
        ShapeOutput(frames);
        for (std::int64_t j = 0; j < blocks; ++j)
            TransformBlock(j);
        Write();
    }

    void ShapeOutput(std::int64_t length)
    {
        if (channels_ == 2)
            output_.ReDimForOverwrite({1, 2}, {1, length});
        else
            output_.ReDimForOverwrite({1, length});
    }

    void TransformBlock(std::int64_t j)
    {
        const std::size_t block_values = static_cast<std::size_t>(plan_.BlockLen) * channels_;
        const std::size_t start = static_cast<std::size_t>(j) * block_values;
        const std::span<const std::int16_t> block =
            std::span(samples_).subspan(start, block_values);
        for (std::size_t channel = 0; channel < channels_; ++channel)
            TransformChannel(lines_[channel], block.subspan(channel));
        const std::span<std::int16_t> shorts = output_.Span().subspan(start, block_values);
        if (channels_ == 2)
            ShortsFromSamples(lines_[0].resampled, lines_[1].resampled, shorts);
        else
            ShortsFromSamples(lines_[0].resampled, shorts);
    }

    /// `interleaved` begins with the channel's first sample.
    void TransformChannel(ChannelLine& line, std::span<const std::int16_t> interleaved)
    {
        std::span<const std::int16_t> frame = interleaved;
        if (channels_ == 2) {
            kernels_.take_every_other(interleaved.data(), line.frame.size(), line.frame.data());
            frame = line.frame;
        }
        const std::span<const double> stretched = line.core.Stretch(frame, scale_);
        const double rate = plan_.BlockLen / static_cast<double>(stretched.size());
        resampler_.Resample(stretched, rate, line.resampled);
    }

    void Write()
    {
        if (written_)
            AppendWave(output_, run_.OutFileName);
        else
            WriteNewWave(output_, source_.Info().nSamplesPerSec, run_.OutFileName);
        written_ = true;
    }

    void StartProgress()
    {
        hooks_.StartBar(chunk_count_ + 1);
        hooks_.Pump();
        hooks_.Publish(1);
    }

    void Step(std::int16_t chunk)
    {
        hooks_.StepBar();
        hooks_.Pump();
        hooks_.Publish(CInt(chunk * 100.0 / (chunk_count_ + 1)));
    }

    void EndProgress()
    {
        hooks_.Publish(100);
        hooks_.FillBar();
        hooks_.Pump();
    }

    const PitchRun& run_;
    BlockResampler& resampler_;
    const RunHooks& hooks_;
    const EngineKernels& kernels_ = EngineKernelsFor(WidestVectors());

    WaveSource source_;
    std::size_t channels_;
    BlockPlan plan_;
    std::int16_t chunk_count_ = 0;
    double scale_ = 1.0;
    bool written_ = false;

    std::array<ChannelLine, kMostChannels> lines_;
    std::vector<std::int16_t> samples_; ///< of a chunk, times 32768, interleaved
    Array<std::int16_t> output_;
};

} // namespace

PitchReport RunBlockPipeline(const PitchRun& run, BlockResampler& resampler, const RunHooks& hooks)
{
    if (run.Channels < 1 || run.Channels > int{kMostChannels}) Raise(ErrorNumber::InvalidCall);
    if (run.InFileName.empty() || !FileExists(run.InFileName)) return {};
    RefuseSourceAsTarget(run.InFileName, run.OutFileName);
    return Pipeline(run, resampler, hooks).Run();
}

} // namespace lumora
