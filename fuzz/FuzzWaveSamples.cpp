// A range and a WAVE file from any bytes: what the readers hand out is in the file, or zero where
// the file promises more than it holds.
//
// Input: 1 byte (reader, which ends of the range are given), First and Last (4 bytes each, signed,
// low byte first), then the file.

#include "audio/WaveStream.h"
#include "support/FuzzInput.h"

#include <algorithm>
#include <cstring>
#include <optional>

namespace lumora {
namespace {

using fuzz::ComesBack;
using fuzz::Demand;

using Bytes = std::span<const std::uint8_t>;

struct Range {
    std::optional<std::int64_t> first, last;
};

/// The element that stands `offset` bytes into the file, with zeros behind its end.
template <class Raw> Raw At(Bytes file, std::int64_t offset)
{
    std::uint8_t bytes[sizeof(Raw)] = {};
    for (std::size_t k = 0; k < sizeof(Raw); ++k)
        if (const std::size_t place = static_cast<std::size_t>(offset) + k; place < file.size())
            bytes[k] = file[place];
    Raw raw;
    std::memcpy(&raw, bytes, sizeof raw);
    return raw;
}

double Sample(std::int16_t raw)
{
    return raw / 32768.0;
}
double Sample(std::uint8_t raw)
{
    return (raw - 128) / 128.0;
}

template <class Raw, class Value>
bool IsRight(Value value, Raw raw, [[maybe_unused]] std::int64_t channel)
{
    if constexpr (std::is_same_v<Value, double>)
        return value == (channel > 2 ? 0.0 : Sample(raw));
    else
        return value == raw;
}

/// The array is the range's, element by element. Of a long one the ends stand for all.
template <class Raw, class Value>
void CheckElements(const Array<Value>& values, const WaveInfo& info, const Range& range, Bytes file)
{
    const std::int64_t total = info.TotalSamples;
    std::int64_t first = std::clamp<std::int64_t>(range.first.value_or(1), 1, total);
    std::int64_t last = std::clamp<std::int64_t>(range.last.value_or(total), 1, total);
    if (last < first) std::swap(first, last);
    const std::int64_t channels = info.nChannels;
    Demand(values.Dimensions() == (channels == 1 ? 1 : 2));
    Demand(values.UBound(values.Dimensions()) == last - first + 1);
    Demand(std::ssize(values.Span()) == channels * (last - first + 1));

    constexpr std::int64_t kMany = 2000;
    const std::int64_t count = std::ssize(values.Span());
    const auto check = [&](std::int64_t k) {
        const std::int64_t element = (first - 1) * channels + k;
        const std::int64_t offset = info.DataStart - 1 + element * std::int64_t{sizeof(Raw)};
        Demand(IsRight(values.Span()[static_cast<std::size_t>(k)], At<Raw>(file, offset),
                       k % channels + 1));
    };
    for (std::int64_t k = 0; k < std::min(count, kMany); ++k)
        check(k);
    for (std::int64_t k = std::max(count - kMany, kMany); k < count; ++k)
        check(k);
}

/// Runs a range reader over an array that holds one mark, and checks all that it may leave there.
template <class Value>
void TryRange(void (*read)(const std::string&, Array<Value>&, std::optional<std::int64_t>,
                           std::optional<std::int64_t>),
              const Range& range, const std::string& name, Bytes file)
{
    Array<Value> values(1);
    values(1) = Value{99};
    if (!ComesBack([&] { read(name, values, range.first, range.last); })) return;
    const bool untouched = values.Span().size() == 1 && values.Span()[0] == Value{99};
    const WaveInfo info = ReadWaveInfo(name);
    const bool samples = info.Message.empty() && info.TotalSamples >= 1 && info.nChannels >= 1;
    constexpr bool kShortsServed = !std::is_same_v<Value, std::uint8_t>;
    constexpr bool kBytesServed = !std::is_same_v<Value, std::int16_t>;
    if (samples && kShortsServed && info.nBitsPerSample == 16)
        CheckElements<std::int16_t>(values, info, range, file);
    else if (samples && kBytesServed && info.nBitsPerSample == 8)
        CheckElements<std::uint8_t>(values, info, range, file);
    else
        Demand(untouched);
}

/// Reads Last frames from position First of the open file into an array of a few frames.
template <class Value>
void TryOpen(std::int64_t (*read)(FileNumber, Array<Value>&, std::int64_t, std::int64_t),
             const Range& range, int channels, const std::string& name, Bytes file)
{
    constexpr std::int64_t kRoom = 50;
    Array<Value> values = channels == 1 ? Array<Value>(kRoom) : Array<Value>(channels, kRoom);
    const OpenFile open(fopen(name, "rb"));
    const std::int64_t first = range.first.value_or(1);
    const std::int64_t wanted = range.last.value_or(kRoom);
    std::int64_t count = 0;
    if (!ComesBack([&] { count = read(open.Number(), values, first, wanted); })) {
        Demand(first < 1);
        return;
    }
    const auto frame_bytes = static_cast<std::int64_t>(sizeof(Value)) * channels;
    const std::int64_t held = std::max<std::int64_t>(std::ssize(file) - first + 1, 0) / frame_bytes;
    Demand(first >= 1);
    Demand(count == std::max<std::int64_t>(std::min({wanted, held, kRoom}), 0));
    for (std::int64_t k = 0; k < count * channels; ++k)
        Demand(values.Span()[static_cast<std::size_t>(k)] ==
               At<Value>(file, first - 1 + k * std::int64_t{sizeof(Value)}));
}

void TryReader(std::uint8_t choice, const Range& range, const std::string& name, Bytes file)
{
    const int channels = 1 + (choice >> 6 & 3);
    switch (choice % 8) {
    case 0:
        return TryRange(ReadWaveBytes, range, name, file);
    case 1:
        return TryRange(ReadWaveShorts, range, name, file);
    case 2:
        return TryOpen(ReadOpenBytes, range, channels, name, file);
    case 3:
        return TryOpen(ReadOpenShorts, range, channels, name, file);
    default:
        return TryRange(ReadWaveSamples, range, name, file);
    }
}

} // namespace
} // namespace lumora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace lumora;
    constexpr std::size_t kHead = 9;
    if (size < kHead) return 0;
    const Bytes head(data, kHead);
    const Bytes bytes(data + kHead, size - kHead);
    Range range;
    if (head[0] & 0x10) range.first = At<std::int32_t>(head, 1);
    if (head[0] & 0x20) range.last = At<std::int32_t>(head, 5);

    const fuzz::MemoryFile file(bytes);
    const fuzz::CountedMessages messages;
    // A header that ends in an error does so before any sample is read.
    if (fuzz::ComesBack([&] { ReadWaveInfo(file.Name()); }) || head[0] % 8 == 2 || head[0] % 8 == 3)
        TryReader(head[0], range, file.Name(), bytes);
    fuzz::Demand(OpenFile(fopen(file.Name(), "rb")).Number() == 1);
    return 0;
}
