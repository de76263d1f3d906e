#include "view/WavePage.h"

#include "audio/WaveSource.h"
#include "base/Numbers.h"
#include "base/OrOutOfMemory.h"
#include "base/RunTimeError.h"

#include <algorithm>
#include <cstddef>

namespace lumora {

namespace {

/// Values that are read at once: a window of any length passes through so much memory.
constexpr std::size_t kPieceValues = 8192;
/// Two bands of 2.0, the right one's centre as far above the bottom as the left one's is below the
/// top, and 0.2 between them.
constexpr double kBottomOfTwo = -3.2;
constexpr double kFullScale = 32768.0;

} // namespace

WavePage::WavePage(const WaveInfo& info, double Interval, const WaveSurface& surface)
    : Surface(surface),
      channels_(info.nChannels),
      bits_(info.nBitsPerSample),
      samples_amount_(info.TotalSamples),
      window_samples_(CLng(Int(info.TotalSamples * Interval)))
{
    if (HasTwoTracks()) BottomValue = kBottomOfTwo;
    PrepareTwoArrAndReturnNewSize();
}

std::int32_t WavePage::PrepareTwoArrAndReturnNewSize()
{
    return Prepare(std::min(window_samples_, samples_amount_));
}

std::int32_t WavePage::PrepareTwoArrAndReturnNewSizeTail(std::int32_t ReadSamples)
{
    return Prepare(ReadSamples);
}

std::int32_t WavePage::PrepareTwoByteArrAndReturnNewSize(std::int32_t ReadSamples)
{
    return Prepare(ReadSamples);
}

/// The step follows from the full window, so that a shorter one keeps the scale of the others.
std::int32_t WavePage::Prepare(std::int32_t read_samples)
{
    sample_step_ = std::max(CLng(Int(Divide(window_samples_, Density()))), 1);
    read_samples_ = read_samples;
    point_count_ = CLng((std::int64_t{read_samples_} - 1) / sample_step_ + 1);
    const std::size_t points = HasCurve() ? static_cast<std::size_t>(point_count_) : 0;
    OrOutOfMemory([&] {
        left_.assign(points, {});
        right_.assign(HasTwoTracks() ? points : 0, {});
    });
    return point_count_;
}

/// Points for the whole width; 0 where no rule is known.
double WavePage::Density() const
{
    if (DisplayKind != 1) return 0.0;
    if (PointDensity == 1 || PointDensity == 2) return Surface.ScaleWidth * 2.0;
    return PointDensity == 3 ? Surface.ScaleWidth * 6.28 : 0.0;
}

/// From 0 in the window. The last point is that of the last sample, so that curves end with the
/// sound and not up to a step before.
std::int32_t WavePage::SampleOfPoint(std::int32_t point) const
{
    return point == point_count_ - 1 ? read_samples_ - 1 : point * sample_step_;
}

double WavePage::UnitsPerValue() const
{
    return Surface.ScaleHeight / (TopValue - BottomValue);
}

/// Of 8 bits the right band is the left one moved down by half the height, which is not as low as
/// the value at which 16 bits have it.
double WavePage::RightCentre() const
{
    const double c = UnitsPerValue();
    return bits_ == 8 ? (3.0 * TopValue - BottomValue) / 2.0 * c : -c * BottomValue;
}

/// A byte widened to 16 bits over 32768 is the byte less 128 over 128, to the last bit: both
/// widths have one formula.
void WavePage::Place(std::int32_t point, std::span<const std::int16_t> frame)
{
    const double c = UnitsPerValue();
    const auto y = [&](double centre, std::int16_t sample) {
        return CLng(centre - sample * c / kFullScale);
    };
    const std::int32_t x =
        CLng(Surface.ScaleWidth * SampleOfPoint(point) / (window_samples_ - 1.0));
    const auto at = static_cast<std::size_t>(point);
    left_[at] = {x, y(c * TopValue, frame[0])};
    if (HasTwoTracks()) right_[at] = {x, y(RightCentre(), frame[1])};
}

void WavePage::PlotWave(std::span<const std::int16_t> samples)
{
    const auto width = static_cast<std::size_t>(std::max<std::int16_t>(channels_, 1));
    const auto frames = static_cast<std::size_t>(std::max(read_samples_, 0));
    if (samples.size() != frames * width) Raise(ErrorNumber::Subscript);
    for (std::int32_t point = 0; HasCurve() && point < point_count_; ++point)
        Place(point,
              samples.subspan(static_cast<std::size_t>(SampleOfPoint(point)) * width, width));
}

/// Points near each other are read at once, and what lies between points far from each other is
/// left out: an hour costs about as many reads as there are points.
bool WavePage::ReadWindow(WaveSource& source, std::int32_t FirstSample)
{
    const bool is_of_page =
        source.Info().nChannels == channels_ && source.Info().nBitsPerSample == bits_;
    if (!is_of_page) Raise(ErrorNumber::InvalidCall);
    PrepareTwoArrAndReturnNewSize();
    const std::int64_t behind = std::max<std::int64_t>(source.FramesHeld() - FirstSample + 1, 0);
    if (behind < read_samples_) {
        const std::int32_t rest = CLng(behind);
        bits_ == 8 ? PrepareTwoByteArrAndReturnNewSize(rest)
                   : PrepareTwoArrAndReturnNewSizeTail(rest);
    }
    if (!HasCurve()) return false;

    const auto width = static_cast<std::size_t>(channels_);
    std::vector<std::int16_t> piece(std::max(kPieceValues, width));
    const auto piece_frames = static_cast<std::int32_t>(piece.size() / width);
    for (std::int32_t from = 0, to = 0; from < point_count_; from = to) {
        const std::int32_t first = SampleOfPoint(from);
        to = from + 1;
        while (to < point_count_ && SampleOfPoint(to) - first < piece_frames)
            ++to;
        const auto frames = static_cast<std::size_t>(SampleOfPoint(to - 1) - first + 1);
        source.Read(std::int64_t{FirstSample} + first, std::span(piece).first(frames * width));
        for (std::int32_t point = from; point < to; ++point) {
            const auto frame = static_cast<std::size_t>(SampleOfPoint(point) - first);
            Place(point, std::span(piece).subspan(frame * width, width));
        }
    }
    return true;
}

std::array<WavePoint, 2> WavePage::SeparatorLine() const
{
    const std::int32_t middle = CLng(Surface.ScaleHeight / 2.0);
    return {WavePoint{0, middle}, WavePoint{CLng(Surface.ScaleWidth), middle}};
}

} // namespace lumora
