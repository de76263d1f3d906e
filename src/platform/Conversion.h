#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>

namespace lumora {

struct ConversionCount {
    std::int64_t samples = 0;      ///< per channel, written
    std::int64_t clipped = 0;      ///< values beyond full scale, held at the 16-bit limits
    std::int64_t not_a_number = 0; ///< values that are no numbers, written as silence
};

/// Full scale -1..1 to 16 bits: times 32768, nearest, half to even, held at -32768 and 32767. The
/// counts grow by what had to be mended.
void ToSixteenBits(std::span<const double> values, std::span<std::int16_t> shorts,
                   ConversionCount& count);

/// Writes the sound of `path`, any format with one channel or two, as a plain 16-bit WAVE file of
/// the same rate. Memory does not grow with the file. `progress` takes the samples done. Where the
/// file is damaged it ends with what came before. Errors: UnreadableSound, and those of
/// WriteNewWave and AppendWave; a file without a sample writes nothing.
ConversionCount ConvertToPlainWave(const std::string& path, const std::string& plain,
                                   const std::function<void(std::int64_t)>& progress);

} // namespace lumora
