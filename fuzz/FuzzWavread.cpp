// The arguments of wavread and a WAVE file from any bytes: samples are those that stand in the
// file, a failure is marked and has at most the messages it should, and no file stays open. What
// wavread gives for 8 and 16 bits, wavwrite writes again.
//
// Input: 1 byte (form of the arguments), Arg1 and Arg2 (4 bytes each, signed, low byte first), then
// the file.

#include "audio/Wavread.h"
#include "audio/Wavwrite.h"
#include "support/FuzzInput.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace lumora {
namespace {

using fuzz::ComesBack;
using fuzz::Demand;

using Bytes = std::span<const std::uint8_t>;

/// The sample whose bytes begin at `offset`; those that lie outside the data chunk are zero.
double SampleAt(Bytes file, const WaveInfo& info, std::int64_t offset, std::int64_t width)
{
    const std::int64_t end = std::int64_t{info.DataStart} - 1 + info.DataSize;
    std::uint32_t number = 0;
    for (std::int64_t k = 0; k < width; ++k)
        if (offset + k < end)
            number |= std::uint32_t{file[static_cast<std::size_t>(offset + k)]} << (8 * k);
    if (width == 1) return (static_cast<double>(number) - 128.0) / 128.0;
    if (width == 2) return static_cast<std::int16_t>(number) / 32768.0;
    return static_cast<std::int32_t>(number) / 2147483648.0;
}

void CheckSamples(const WavreadResult& result, Bytes file, std::int32_t first)
{
    const WaveInfo& info = result.Info;
    const clsMatrix& samples = *result.Samples;
    const std::int64_t width = (info.nBitsPerSample + 7) / 8;
    Demand(samples.size2 == info.nChannels);
    Demand(std::int64_t{samples.size1} * samples.size2 <=
           static_cast<std::int64_t>(file.size()) + info.nChannels);
    const auto values = samples.Elements().Span();
    const std::size_t step = 1 + values.size() / 2000; // of many, some stand for all
    for (std::size_t k = 0; k < values.size(); k += step) {
        const auto column = static_cast<std::int64_t>(k) / samples.size1;
        const std::int64_t row = static_cast<std::int64_t>(k) % samples.size1 + first - 1;
        const std::int64_t offset = info.DataStart - 1 + (row * info.nChannels + column) * width;
        Demand(values[k] == SampleAt(file, info, offset, width));
    }
}

void CheckTrailing(const WavreadResult& result, Bytes file)
{
    const std::string& text = result.Trailing;
    Demand(text.size() <= file.size());
    Demand(std::equal(text.rbegin(), text.rend(), file.rbegin(), [](char c, std::uint8_t byte) {
        return static_cast<std::uint8_t>(c) == byte;
    }));
}

/// A name in memory that may be deleted and made anew, which a MemoryFile's may not.
struct ScratchFile {
    ~ScratchFile() { unlink(name.c_str()); }
    const std::string name = "/dev/shm/lumora-fuzz-" + std::to_string(getpid()) + ".wav";
};

/// The same samples in 8 or 16 bits, read again.
void WriteAgain(const WavreadResult& result)
{
    if (result.Bits > 16 || result.Samples->size1 < 3) return; // few rows may mean channels
    const ScratchFile copy;
    const std::int16_t width = result.Bits > 8 ? 16 : 8;
    const auto write = [&] { Demand(wavwrite(result.Samples, result.Rate, width, copy.name)); };
    if (!ComesBack(write)) { // a rate or a count of channels that the header cannot hold
        Demand(result.Info.nChannels > 10000 || result.Rate > 10000 || result.Rate < -10000);
        return;
    }
    const WavreadResult back = wavread(copy.name);
    Demand(back.Bits == width && back.Rate == result.Rate);
    Demand(back.Samples->Elements() == result.Samples->Elements());
}

void CheckSize(const WavreadResult& result)
{
    Demand(result.Samples->size1 == 1 && result.Samples->size2 == 2);
    Demand(result.Samples->Real(1, 1) >= 0.0);
    Demand(result.Samples->Real(1, 2) == result.Info.nChannels);
}

} // namespace
} // namespace lumora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace lumora;
    constexpr std::size_t kHead = 9;
    if (size < kHead) return 0;
    std::int32_t limits[2];
    std::memcpy(limits, data + 1, sizeof limits);
    const Bytes bytes(data + kHead, size - kHead);
    const fuzz::MemoryFile file(bytes);
    const fuzz::CountedMessages messages;

    const int form = data[0] % 4;
    const Variant forms[][2] = {{{}, {}}, {"size", {}}, {limits[0], limits[1]}, {limits[0], {}}};
    WavreadResult result;
    if (fuzz::ComesBack([&] { result = wavread(file.Name(), forms[form][0], forms[form][1]); })) {
        if (result.Bits == -1) {
            Demand(!result.Samples && result.Trailing.empty());
            Demand(result.Info.Message.empty() == (messages.count == 0));
        } else {
            Demand(messages.count == 0 && form != 3);
            if (form == 1) {
                CheckSize(result);
            } else if (result.Samples->size1 > 0) {
                CheckSamples(result, bytes, form == 2 ? std::min(limits[0], limits[1]) : 1);
                CheckTrailing(result, bytes);
                WriteAgain(result);
            }
        }
    }
    fuzz::Demand(OpenFile(fopen(file.Name(), "rb")).Number() == 1);
    return 0;
}
