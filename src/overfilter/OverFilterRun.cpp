#include "overfilter/OverFilterRun.h"

#include "base/Numbers.h"
#include "overfilter/OverFilterPlan.h"

#include <cmath>

namespace lumora {

namespace {

/// Below this a sample is digital silence, which would make the normal equations singular.
constexpr double kSilence = 1e-10;
constexpr double kDitherDivisor = 1e9;

} // namespace

OverFilterRun::OverFilterRun(const std::string& source, const OverFilterRequest& request)
    : request_(request), source_(source)
{
    if (source_.Failed()) return;
    if (!source_.HasFrames()) Raise(ErrorNumber::Subscript, source);
    channels_ = Info().nChannels == 1 ? 1 : 2;
    SetUpForRate(filter_, Info().nSamplesPerSec);
    filter_.Observe(request.OnRegion);
    source_.CheckHeld(source_.AllFrames());
}

bool OverFilterRun::Run(const SampleSink& sink, std::int16_t& QualityFlag)
{
    const std::int64_t rate = Info().nSamplesPerSec;
    const std::int64_t blocks = Info().TotalSamples / rate;
    const RunHooks& hooks = request_.Hooks;
    hooks.StartBar(CLng(blocks + 2));
    bool failed = false;
    const auto copy_quality = [&] {
        if (!failed) QualityFlag = filter_.QualityGood();
        failed = QualityFlag == 0;
    };
    for (std::int64_t b = 0; b < blocks; ++b) {
        FilterRange({b * rate + 1, rate}, sink);
        copy_quality();
        if (hooks.Cancelled()) return false;
        hooks.StepBar();
        hooks.Pump();
    }
    FilterRange({blocks * rate + 1, Info().TotalSamples - blocks * rate}, sink);
    hooks.StepBar();
    copy_quality();
    return true;
}

void OverFilterRun::FeedSilence(std::size_t count, const SampleSink& sink)
{
    block_.assign(count, 0.0);
    Dither(block_);
    filter_.Process(block_, block_);
    sink(block_);
}

void OverFilterRun::Finish()
{
    filter_.Destruct();
    request_.Hooks.FillBar();
    request_.Hooks.Pump();
}

void OverFilterRun::FilterRange(const FrameRange& range, const SampleSink& sink)
{
    if (range.count == 0) return;
    Read(range);
    Dither(block_);
    filter_.Process(block_, block_);
    sink(block_);
}

/// Fills the block with the channels that are taken.
void OverFilterRun::Read(const FrameRange& range)
{
    block_.resize(static_cast<std::size_t>(range.count * channels_));
    const auto channels = static_cast<std::size_t>(Info().nChannels);
    if (Info().nChannels == channels_) {
        source_.Read(range.first, std::span(block_));
        return;
    }
    all_channels_.resize(static_cast<std::size_t>(range.count) * channels);
    source_.Read(range.first, std::span(all_channels_));
    for (std::size_t k = 0; k < block_.size(); ++k)
        block_[k] = all_channels_[k / 2 * channels + k % 2];
}

void OverFilterRun::Dither(std::span<double> samples)
{
    for (double& sample : samples)
        if (std::abs(sample) <= kSilence)
            sample = ((request_.Random ? request_.Random() : own_noise_()) - 0.5) / kDitherDivisor;
}

} // namespace lumora
