#include "audio/FrameRule.h"
#include "audio/SampleConversion.h"
#include "audio/WaveChunks.h"
#include "audio/WaveStream.h"
#include "base/Numbers.h"

#include <algorithm>
#include <array>
#include <span>

namespace lumora {

namespace {

/// The part of a file that a call asks for.
struct FrameRange {
    WaveInfo info;
    std::int64_t first = 1;
    std::int64_t count = 0; ///< 0: nothing to read

    FrameRange(const std::string& file_name, std::optional<std::int64_t> First,
               std::optional<std::int64_t> Last)
        : info(ReadWaveInfo(file_name))
    {
        const std::int64_t total = info.TotalSamples;
        if (!info.Message.empty() || total < 1) return;
        first = std::clamp(First.value_or(1), std::int64_t{1}, total);
        std::int64_t last = std::clamp(Last.value_or(total), std::int64_t{1}, total);
        if (last < first) std::swap(first, last);
        count = last - first + 1;
    }

    bool HasBits(std::int16_t bits) const { return count > 0 && info.nBitsPerSample == bits; }
    std::int64_t Channels() const { return info.nChannels; }
    std::int64_t Elements() const { return count * Channels(); }
    std::int64_t Position() const
    {
        return info.DataStart + (first - 1) * (info.nBitsPerSample * Channels() / 8);
    }
};

template <class T> void Shape(Array<T>& array, const FrameRange& range)
{
    if (range.Channels() == 1)
        array.ReDimForOverwrite({1, range.count});
    else
        array.ReDimForOverwrite({1, range.Channels()}, {1, range.count});
}

/// One reading of a range: opens, stands at the first frame, and hands out elements in file order.
template <class Raw> class RangeReader {
public:
    RangeReader(const std::string& file_name, const FrameRange& range) : file_(open_wav(file_name))
    {
        const std::int64_t there =
            std::max<std::int64_t>(FileLength(file_.Number()) - range.Position() + 1, 0);
        if (range.Elements() - there / std::int64_t{sizeof(Raw)} >
            MostMissingValues(range.info.nSamplesPerSec))
            Raise(ErrorNumber::OutOfMemory, file_name);
        SeekTo(file_.Number(), range.Position());
    }

    /// What the file does not hold is zero.
    void Read(std::span<Raw> values)
    {
        const auto bytes = std::as_writable_bytes(values);
        const std::size_t read = ReadBytes(file_.Number(), bytes);
        std::fill(bytes.begin() + static_cast<std::ptrdiff_t>(read), bytes.end(), std::byte{0});
    }

private:
    OpenFile file_;
};

template <class Raw>
void ReadRaw(const std::string& file_name, const FrameRange& range, Array<Raw>& values)
{
    RangeReader<Raw> reader(file_name, range);
    Shape(values, range);
    reader.Read(values.Span());
}

/// Channels beyond the second are not served: they read as zero.
void SilenceFurtherChannels(std::span<double> samples, std::size_t channels)
{
    for (std::size_t frame = 0; frame < samples.size(); frame += channels)
        std::fill_n(samples.data() + frame + 2, channels - 2, 0.0);
}

template <class Raw>
void ReadConverted(const std::string& file_name, const FrameRange& range, Array<double>& samples)
{
    RangeReader<Raw> reader(file_name, range);
    Shape(samples, range);
    // Pieces that stay in the nearest cache between reading and conversion.
    std::array<Raw, 8192> piece;
    std::span<double> rest = samples.Span();
    while (!rest.empty()) {
        const std::span<Raw> raw = std::span(piece).first(std::min(piece.size(), rest.size()));
        reader.Read(raw);
        Convert(std::span<const Raw>(raw), rest.first(raw.size()));
        rest = rest.subspan(raw.size());
    }
    if (range.Channels() > 2)
        SilenceFurtherChannels(samples.Span(), static_cast<std::size_t>(range.Channels()));
}

} // namespace

void ReadWaveSamples(const std::string& FileName, Array<double>& Samples,
                     std::optional<std::int64_t> First, std::optional<std::int64_t> Last)
{
    const FrameRange range(FileName, First, Last);
    if (range.HasBits(16))
        ReadConverted<std::int16_t>(FileName, range, Samples);
    else if (range.HasBits(8))
        ReadConverted<std::uint8_t>(FileName, range, Samples);
}

void ReadWaveBytes(const std::string& FileName, Array<std::uint8_t>& Bytes,
                   std::optional<std::int64_t> First, std::optional<std::int64_t> Last)
{
    const FrameRange range(FileName, First, Last);
    if (range.HasBits(8)) ReadRaw(FileName, range, Bytes);
}

void ReadWaveShorts(const std::string& FileName, Array<std::int16_t>& Shorts,
                    std::optional<std::int64_t> First, std::optional<std::int64_t> Last)
{
    const FrameRange range(FileName, First, Last);
    if (range.HasBits(16)) ReadRaw(FileName, range, Shorts);
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
