#include "platform/Conversion.h"

#include "audio/WaveStream.h"
#include "base/Numbers.h"
#include "platform/SoundFile.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace lumora {

void ToSixteenBits(std::span<const double> values, std::span<std::int16_t> shorts,
                   ConversionCount& count)
{
    constexpr double kScale = 32768.0;
    for (std::size_t k = 0; k < values.size(); ++k) {
        const double value = std::isnan(values[k]) ? 0.0 : values[k];
        if (std::isnan(values[k])) ++count.not_a_number;
        if (std::abs(value) > 1.0) ++count.clipped;
        // 1.0 itself is full scale and lies one step above the greatest 16-bit value.
        shorts[k] = CInt(std::clamp(Round(value * kScale), -kScale, kScale - 1.0));
    }
}

ConversionCount ConvertToPlainWave(const std::string& path, const std::string& plain,
                                   const std::function<void(std::int64_t)>& progress)
{
    constexpr std::int64_t kFramesAtOnce = 65536;
    SoundFile sound(path);
    const std::int64_t channels = sound.Channels();
    std::vector<double> values(static_cast<std::size_t>(kFramesAtOnce * channels));
    Array<std::int16_t> shorts;
    ConversionCount count;
    while (const std::int64_t frames = sound.Read(values)) {
        if (channels == 1)
            shorts.ReDimForOverwrite({1, frames});
        else
            shorts.ReDimForOverwrite({1, channels}, {1, frames});
        ToSixteenBits(std::span(values).first(shorts.Span().size()), shorts.Span(), count);
        if (count.samples == 0)
            WriteNewWave(shorts, sound.RateHz(), plain);
        else
            AppendWave(shorts, plain);
        count.samples += frames;
        progress(count.samples);
    }
    return count;
}

} // namespace lumora
