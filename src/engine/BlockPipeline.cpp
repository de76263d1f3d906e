#include "engine/BlockPipeline.h"

#include "audio/SampleConversion.h"
#include "audio/WaveStream.h"
#include "base/Numbers.h"
#include "base/Paths.h"
#include "engine/BlockPlan.h"
#include "engine/BlockResampler.h"
#include "engine/ClsWsolaQuick.h"

#include <array>
#include <optional>
#include <span>

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
          channels_(static_cast<std::size_t>(run.Channels))
    {
    }

    void Run()
    {
        const WaveInfo info = ReadWaveInfo(run_.InFileName);
        rate_hz_ = info.nSamplesPerSec;
        bits_ = info.nBitsPerSample;
        plan_ = BlockPlan::ForRate(rate_hz_);
        chunk_count_ = CInt(DivideWhole(info.TotalSamples, plan_.ChunkLen));
        scale_ = Divide(1.0, run_.Q_P == 0.0 ? 1.0 : run_.Q_P);
        StartProgress();
        SetUpLines();
        for (std::int16_t c = 1; c <= chunk_count_; ++c) {
            const std::int64_t before = std::int64_t{c - 1} * plan_.ChunkLen;
            Transform(before + 1, before + plan_.ChunkLen);
            Step(c);
        }
        Transform(std::int64_t{chunk_count_} * plan_.ChunkLen + 1, {});
        EndProgress();
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

    /// Reads samples times 32768. Other widths than 8 and 16 bits are no samples: the array stays
    /// without shape, and the first look at it fails.
    void Read(std::int64_t first, std::optional<std::int64_t> last)
    {
        if (bits_ == 8) {
            ReadWaveBytes(run_.InFileName, bytes_, first, last);
            ShapeLike(bytes_, samples_);
            ShortsFromBytes(bytes_.Span(), samples_.Span());
        } else {
            ReadWaveShorts(run_.InFileName, samples_, first, last);
        }
    }

    /// Reads a range of samples, runs its whole blocks and writes them. Only the tail of a file is
    /// not made of whole blocks; what is left over is dropped.
    void Transform(std::int64_t first, std::optional<std::int64_t> last)
    {
        Read(first, last);
        const bool stereo = channels_ == 2;
        const std::int64_t there = samples_.Dimensions() == 1 ? 1 : samples_.UBound(1);
        if (there != static_cast<std::int64_t>(channels_)) Raise(ErrorNumber::Subscript);
        const std::int64_t length = samples_.UBound(stereo ? 2 : 1);
        const std::int64_t blocks = length / plan_.BlockLen;
        if (blocks == 0) {
            // Ending well with nothing written would pass an older file off as the result.
            if (!written_) Raise(ErrorNumber::Subscript, run_.InFileName);
            return;
        }
        ShapeOutput(blocks * plan_.BlockLen);
        for (std::int64_t j = 0; j < blocks; ++j)
            TransformBlock(j);
        Write();
    }

    static void ShapeLike(const Array<std::uint8_t>& model, Array<std::int16_t>& array)
    {
        if (model.Dimensions() == 2)
            array.ReDimForOverwrite({1, model.UBound(1)}, {1, model.UBound(2)});
        else
            array.ReDimForOverwrite({1, model.UBound()});
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
        const std::span<const std::int16_t> block = samples_.Span().subspan(start, block_values);
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
            WriteNewWave(output_, rate_hz_, run_.OutFileName);
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

    std::size_t channels_;
    std::int32_t rate_hz_ = 0;
    std::int16_t bits_ = 0;
    BlockPlan plan_;
    std::int16_t chunk_count_ = 0;
    double scale_ = 1.0;
    bool written_ = false;

    std::array<ChannelLine, kMostChannels> lines_;
    Array<std::uint8_t> bytes_;
    Array<std::int16_t> samples_;
    Array<std::int16_t> output_;
};

} // namespace

void RunBlockPipeline(const PitchRun& run, BlockResampler& resampler, const RunHooks& hooks)
{
    if (run.Channels < 1 || run.Channels > int{kMostChannels}) Raise(ErrorNumber::InvalidCall);
    if (run.InFileName.empty() || !FileExists(run.InFileName)) return;
    Pipeline(run, resampler, hooks).Run();
}

} // namespace lumora
