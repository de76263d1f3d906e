#pragma once

#include "overfilter/OverSounds.h"
#include "overfilter/PlainRemoveOver.h"
#include "support/LittleEndian.h"
#include "support/WaveBuilder.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

/// Files for the over-range filter and, worked out by the plain one, what has to become of them.
namespace lumora::test {

/// A source in memory: the numbers of the file in its order.
struct Source {
    int channels = 1;
    int bits = 16;
    int rate_hz = 8000;
    std::vector<int> numbers;

    double Sample(std::size_t k) const
    {
        return bits == 8 ? (numbers[k] - 128) / 128.0 : numbers[k] / 32768.0;
    }
};

/// Sound that is driven by `drive`, with a stretch of digital silence in it.
inline Source SourceOf(Noise& noise, int channels, int bits, int rate_hz, std::size_t frames,
                       double drive)
{
    const std::size_t count = frames * static_cast<std::size_t>(channels);
    Source source{channels, bits, rate_hz, {}};
    const Stream stream = Driven(noise, count, rate_hz, static_cast<std::size_t>(channels), drive);
    for (std::size_t k = 0; k < count; ++k) {
        const double x = k > count / 2 && k < count / 2 + 40 ? 0.0 : stream[k];
        source.numbers.push_back(static_cast<int>(bits == 8 ? std::min(255.0, x * 128.0 + 128.0)
                                                            : std::min(32767.0, x * 32768.0)));
    }
    return source;
}

inline std::string DataOf(const std::vector<int>& numbers, int bits)
{
    std::string data;
    for (const int number : numbers)
        data +=
            LittleEndian(static_cast<std::uint64_t>(number), static_cast<std::size_t>(bits / 8));
    return data;
}

/// The file, with the zero that makes odd data even.
inline std::string FileOf(const Source& source)
{
    const FormatSpec spec{source.channels, source.bits, source.rate_hz};
    const std::string data = DataOf(source.numbers, source.bits);
    const std::string pad(data.size() % 2, '\0');
    return Wave(FormatChunk(spec) + Chunk("data", data) + pad);
}

/// A simple source of numbers in 0..1.
class Ramp {
public:
    double operator()()
    {
        value_ += 0.6180339887498949;
        return value_ -= std::floor(value_);
    }

private:
    double value_ = 0.25;
};

struct Expected {
    std::string file;
    int quality_good = 0;
};

/// What the run makes of a source; `keep_length` feeds silence and drops the delay.
inline Expected ExpectedOf(const Source& source, bool keep_length = false)
{
    PlainRemoveOver plain(PlainForRate(source.rate_hz));
    Ramp random;
    const auto delay = static_cast<std::size_t>(plain.Length() - 1);
    const std::size_t count = source.numbers.size();
    Source result = source;
    result.numbers.clear();
    for (std::size_t k = 0; k < count + (keep_length ? delay : 0); ++k) {
        double x = k < count ? source.Sample(k) : 0.0;
        if (x == 0.0) x = (random() - 0.5) / 1e9;
        const double y = plain.Operation(x);
        if (keep_length && k < delay) continue;
        result.numbers.push_back(static_cast<int>(
            source.bits == 8 ? std::nearbyint(y * 128.0 + 128.0) : std::nearbyint(y * 32768.0)));
    }
    return {FileOf(result), plain.QualityGood()};
}

} // namespace lumora::test
