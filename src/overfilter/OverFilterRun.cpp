#include "overfilter/OverFilterRun.h"

#include "audio/FrameRule.h"
#include "audio/SampleConversion.h"
#include "audio/WaveChunks.h"
#include "audio/WaveStream.h"
#include "base/Numbers.h"
#include "overfilter/OverFilterPlan.h"

#include <algorithm>
#include <cmath>

namespace lumora {

namespace {

/// Below this a sample is digital silence, which would make the normal equations singular.
constexpr double kSilence = 1e-10;
constexpr double kDitherDivisor = 1e9;

} // namespace

OverFilterRun::OverFilterRun(const std::string& source, const OverFilterRequest& request)
    : request_(request), info_(ReadWaveInfo(source))
{
    if (!info_.Message.empty() || info_.DataID.empty()) return;
    const bool plain = info_.nBitsPerSample == 8 || info_.nBitsPerSample == 16;
    if (info_.TotalSamples < 1 || !plain) Raise(ErrorNumber::Subscript, source);
    channels_ = info_.nChannels == 1 ? 1 : 2;
    SetUpForRate(filter_, info_.nSamplesPerSec);
    filter_.Observe(request.OnRegion);
    file_ = std::make_unique<OpenFile>(open_wav(source));
    has_source_ = !file_->Failed();
    if (has_source_) CheckPromise();
}

void OverFilterRun::CheckPromise() const
{
    const std::int64_t there =
        std::max<std::int64_t>(FileLength(file_->Number()) - info_.DataStart + 1, 0);
    const std::int64_t promised = std::int64_t{info_.TotalSamples} * info_.nChannels;
    if (promised - there * 8 / info_.nBitsPerSample > MostMissingValues(info_.nSamplesPerSec))
        Raise(ErrorNumber::OutOfMemory);
}

bool OverFilterRun::Run(const SampleSink& sink, std::int16_t& QualityFlag)
{
    const std::int64_t rate = info_.nSamplesPerSec;
    const std::int64_t blocks = info_.TotalSamples / rate;
    const RunHooks& hooks = request_.Hooks;
    hooks.StartBar(CLng(blocks + 2));
    bool failed = false;
    const auto copy_quality = [&] {
        if (!failed) QualityFlag = filter_.QualityGood();
        failed = QualityFlag == 0;
    };
    for (std::int64_t b = 0; b < blocks; ++b) {
        FilterRange(b * rate, rate, sink);
        copy_quality();
        if (hooks.Cancelled()) return false;
        hooks.StepBar();
        hooks.Pump();
    }
    FilterRange(blocks * rate, info_.TotalSamples - blocks * rate, sink);
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

void OverFilterRun::FilterRange(std::int64_t first_frame, std::int64_t frames,
                                const SampleSink& sink)
{
    if (frames == 0) return;
    block_.resize(static_cast<std::size_t>(frames * channels_));
    Read(first_frame, block_);
    Dither(block_);
    filter_.Process(block_, block_);
    sink(block_);
}

void OverFilterRun::Read(std::int64_t first_frame, std::span<double> samples)
{
    if (info_.nBitsPerSample == 8)
        ReadAs(bytes_, first_frame, samples);
    else
        ReadAs(shorts_, first_frame, samples);
}

template <class Raw>
void OverFilterRun::ReadAs(Array<Raw>& raw, std::int64_t first_frame, std::span<double> samples)
{
    const std::int64_t channels = info_.nChannels;
    const std::int64_t frames = std::ssize(samples) / channels_;
    raw.ReDim({1, channels}, {1, frames}); // what the file does not hold stays zero
    const std::int64_t position =
        info_.DataStart + first_frame * channels * std::int64_t{sizeof(Raw)};
    if constexpr (sizeof(Raw) == 1)
        ReadOpenBytes(file_->Number(), raw, position, frames);
    else
        ReadOpenShorts(file_->Number(), raw, position, frames);
    if (channels == channels_) {
        Convert(std::span<const Raw>(raw.Span()), samples);
        return;
    }
    std::vector<Raw> first_two(samples.size());
    for (std::size_t k = 0; k < first_two.size(); ++k)
        first_two[k] = raw.Span()[k / 2 * static_cast<std::size_t>(channels) + k % 2];
    Convert(std::span<const Raw>(first_two), samples);
}

void OverFilterRun::Dither(std::span<double> samples)
{
    for (double& sample : samples)
        if (std::abs(sample) <= kSilence)
            sample = ((request_.Random ? request_.Random() : own_noise_()) - 0.5) / kDitherDivisor;
}

} // namespace lumora
