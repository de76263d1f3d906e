#pragma once

#include "audio/WaveSource.h"
#include "overfilter/ClsRemoveOverPolynom.h"
#include "overfilter/DitherNoise.h"
#include "overfilter/OverFilterRequest.h"

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

namespace lumora {

/// Takes the samples that have left the filter, interleaved, a block a call.
using SampleSink = std::function<void(std::span<const double>)>;

/// One WAVE file through the filter, in blocks of one second. Memory does not grow with its length.
class OverFilterRun {
public:
    /// Opens the source and sets the filter up; `request` has to outlive the run. Errors: 9 (no
    /// samples; another width than 8 or 16 bits; a rate below 919 Hz), 6 (a rate above 2.46 MHz), 7
    /// (the file lacks more than 1.45 seconds of what its header promises), those of ReadWaveInfo.
    OverFilterRun(const std::string& source, const OverFilterRequest& request);

    /// False if there is no source or its header is faulty; a message has told so.
    bool HasSource() const { return !source_.Failed(); }
    bool SourceHasShrunk() const { return source_.HasShrunk(); }
    const WaveInfo& Info() const { return source_.Info(); }
    /// 1, or 2 for anything else: of more channels the first two are taken.
    std::int32_t Channels() const { return channels_; }
    const ClsRemoveOverPolynom& Filter() const { return filter_; }

    /// All samples of the file. False if the run was cancelled. QualityFlag follows the filter's
    /// after every block until that is 0. Bytes that the file promises but does not hold are zero.
    bool Run(const SampleSink& sink, std::int16_t& QualityFlag);
    /// `count` more samples of silence.
    void FeedSilence(std::size_t count, const SampleSink& sink);
    /// Shows the end of the run and releases the filter's arrays.
    void Finish();

private:
    void FilterRange(const FrameRange& range, const SampleSink& sink);
    void Read(const FrameRange& range);
    void Dither(std::span<double> samples);

    const OverFilterRequest& request_;
    DitherNoise own_noise_;
    WaveSource source_;
    std::int32_t channels_ = 0;
    ClsRemoveOverPolynom filter_;
    std::vector<double> block_;
    std::vector<double> all_channels_; ///< of a block, where the source has more than are taken
};

} // namespace lumora
