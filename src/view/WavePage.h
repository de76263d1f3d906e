#pragma once

#include "audio/WaveRecords.h"

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace lumora {

class WaveSource;

/// A point of a curve, in whole units of the surface; y grows downward.
struct WavePoint {
    std::int32_t x = 0;
    std::int32_t y = 0;
    bool operator==(const WavePoint&) const = default;
};

/// The picture that curves are drawn on, in its own scale.
struct WaveSurface {
    double ScaleWidth = 0.0;
    double ScaleHeight = 0.0;
};

/// One page of a file's waveform as the points of its curves, without a screen: every so many-th
/// sample of a window is a point, about two for each unit of width, and stands for its stretch.
/// One channel has one curve around the middle; of more the first two have one each, in two bands.
///
/// Order: the constructor; then for each page ReadWindow, or PlotWave with samples at hand.
/// Keeps: nothing of a page but its sizes and points.
/// Cost:  memory for the points and one piece of samples, however long the window is.
class WavePage {
public:
    WavePage() = default;
    /// Pages of a file with this header, each over the share `Interval` (0 to 1) of it. Errors 6
    /// (an Interval by which the window leaves 32 bits) and those of
    /// PrepareTwoArrAndReturnNewSize.
    WavePage(const WaveInfo& info, double Interval, const WaveSurface& surface);

    WaveSurface Surface; ///< to be followed by PrepareTwoArrAndReturnNewSize when it changes
    /// The rule by which points are picked: only kind 1 has one, with densities 1 to 3.
    std::int16_t DisplayKind = 1;
    std::int16_t PointDensity = 2;
    double TopValue = 1.0;     ///< the value at the top edge
    double BottomValue = -1.0; ///< at the bottom edge: -3.2 for two channels

    std::int32_t WindowSamples() const { return window_samples_; } ///< of each channel, when full
    std::int32_t ReadSamples() const { return read_samples_; }     ///< in the present window
    std::int32_t SampleStep() const { return sample_step_; }       ///< samples for each point
    std::int32_t PointCount() const { return point_count_; }
    /// Fewer than two points are no curve: the picture is to be cleared.
    bool HasCurve() const { return point_count_ >= 2; }
    bool HasTwoTracks() const { return channels_ >= 2; }

    /// The curves; empty where there is none, and RightPoints without a second track.
    const std::vector<WavePoint>& LeftPoints() const { return left_; }
    const std::vector<WavePoint>& RightPoints() const { return right_; }
    /// The ends of the line between two tracks, at half height. Error 6.
    std::array<WavePoint, 2> SeparatorLine() const;

    /// Sizes for a full window, or for the whole file where that is shorter. Answers PointCount.
    /// Errors 11 (no width, or no rule for these selectors) and 6.
    std::int32_t PrepareTwoArrAndReturnNewSize();
    /// The same for a last window of fewer samples, of 16 and of 8 bits.
    std::int32_t PrepareTwoArrAndReturnNewSizeTail(std::int32_t ReadSamples);
    std::int32_t PrepareTwoByteArrAndReturnNewSize(std::int32_t ReadSamples);

    /// Points from the samples of the present window: ReadSamples frames, interleaved, as 16-bit
    /// numbers, to which bytes are widened (less 128, times 256). Errors 9 (another count) and 6
    /// (a point beyond 32 bits).
    void PlotWave(std::span<const std::int16_t> samples);

    /// Sizes and points of the window that starts at FirstSample (from 1) of the file that the page
    /// was made for. Answers HasCurve. Errors 5 (a file of another format), 9 (a first sample below
    /// 1), those of PlotWave, of PrepareTwoArrAndReturnNewSize, and of WaveSource::Read.
    bool ReadWindow(WaveSource& source, std::int32_t FirstSample);

private:
    std::int32_t Prepare(std::int32_t read_samples);
    double Density() const;
    std::int32_t SampleOfPoint(std::int32_t point) const;
    double UnitsPerValue() const;
    double RightCentre() const;
    void Place(std::int32_t point, std::span<const std::int16_t> frame);

    std::int16_t channels_ = 1;
    std::int16_t bits_ = 16;
    std::int32_t samples_amount_ = 0;
    std::int32_t window_samples_ = 0;
    std::int32_t read_samples_ = 0;
    std::int32_t sample_step_ = 1;
    std::int32_t point_count_ = 0;
    std::vector<WavePoint> left_;
    std::vector<WavePoint> right_;
};

} // namespace lumora
