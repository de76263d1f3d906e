#include "audio/WaveSource.h"
#include "audio/WaveStream.h"

#include <algorithm>
#include <cstdlib>
#include <span>

namespace lumora {

namespace {

/// The frames that a call asks for: held within the file, ends exchanged where they are the wrong
/// way round.
FrameRange AskedFor(const WaveInfo& info, std::optional<std::int64_t> First,
                    std::optional<std::int64_t> Last)
{
    const std::int64_t total = info.TotalSamples;
    const std::int64_t first = std::clamp<std::int64_t>(First.value_or(1), 1, total);
    const std::int64_t last = std::clamp<std::int64_t>(Last.value_or(total), 1, total);
    return {std::min(first, last), std::abs(last - first) + 1};
}

template <class T> void Shape(Array<T>& array, std::int64_t channels, std::int64_t frames)
{
    if (channels == 1)
        array.ReDimForOverwrite({1, frames});
    else
        array.ReDimForOverwrite({1, channels}, {1, frames});
}

/// Fills an array with a range of a source that has frames.
template <class T>
void ReadRange(WaveSource& source, Array<T>& values, std::optional<std::int64_t> First,
               std::optional<std::int64_t> Last)
{
    const FrameRange range = AskedFor(source.Info(), First, Last);
    source.CheckHeld(range);
    Shape(values, source.Info().nChannels, range.count);
    source.Read(range.first, values.Span());
}

/// Channels beyond the second are not served: they read as zero.
void SilenceFurtherChannels(std::span<double> samples, std::size_t channels)
{
    for (std::size_t frame = 0; frame < samples.size(); frame += channels)
        std::fill_n(samples.data() + frame + 2, channels - 2, 0.0);
}

} // namespace

void ReadWaveSamples(const std::string& FileName, Array<double>& Samples,
                     std::optional<std::int64_t> First, std::optional<std::int64_t> Last)
{
    WaveSource source(FileName);
    if (!source.HasFrames()) return;
    ReadRange(source, Samples, First, Last);
    if (source.Info().nChannels > 2)
        SilenceFurtherChannels(Samples.Span(), static_cast<std::size_t>(source.Info().nChannels));
}

void ReadWaveBytes(const std::string& FileName, Array<std::uint8_t>& Bytes,
                   std::optional<std::int64_t> First, std::optional<std::int64_t> Last)
{
    WaveSource source(FileName);
    if (source.HasFrames() && source.Info().nBitsPerSample == 8)
        ReadRange(source, Bytes, First, Last);
}

void ReadWaveShorts(const std::string& FileName, Array<std::int16_t>& Shorts,
                    std::optional<std::int64_t> First, std::optional<std::int64_t> Last)
{
    WaveSource source(FileName);
    if (source.HasFrames() && source.Info().nBitsPerSample == 16)
        ReadRange(source, Shorts, First, Last);
}

namespace {

template <class Raw>
std::int64_t ReadOpen(FileNumber file, Array<Raw>& values, std::int64_t first, std::int64_t count)
{
    const std::int64_t channels =
        values.Dimensions() == 2 ? values.UBound(1) - values.LBound(1) + 1 : 1;
    const int frames = values.Dimensions() == 2 ? 2 : 1;
    const std::int64_t room = values.UBound(frames) - values.LBound(frames) + 1;
    SeekTo(file, first);
    const std::int64_t there = std::max<std::int64_t>(FileLength(file) - first + 1, 0);
    const std::int64_t whole = there / (channels * std::int64_t{sizeof(Raw)});
    const std::int64_t wanted = std::max<std::int64_t>(std::min({count, room, whole}), 0);
    const auto elements = static_cast<std::size_t>(wanted * channels);
    return static_cast<std::int64_t>(ReadValues(file, values.Span().first(elements))) / channels;
}

} // namespace

std::int64_t ReadOpenBytes(FileNumber File, Array<std::uint8_t>& Bytes, std::int64_t First,
                           std::int64_t Count)
{
    return ReadOpen(File, Bytes, First, Count);
}

std::int64_t ReadOpenShorts(FileNumber File, Array<std::int16_t>& Shorts, std::int64_t First,
                            std::int64_t Count)
{
    return ReadOpen(File, Shorts, First, Count);
}

} // namespace lumora
