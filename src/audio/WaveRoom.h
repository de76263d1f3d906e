#pragma once

#include <cstdint>
#include <limits>

namespace lumora {

/// Bytes ahead of the data in a file of WriteNewWave; one of wavwrite has fewer.
inline constexpr std::int32_t kStreamedHeaderBytes = 58;

/// Frames for which a plain WAVE file has room, so that it can be read back: sizes, and the
/// position of the last byte, are signed 32-bit numbers.
constexpr std::int64_t MostFramesInWave(std::int32_t channels, std::int32_t bytes_per_sample)
{
    return (std::numeric_limits<std::int32_t>::max() - kStreamedHeaderBytes) /
           (std::int64_t{channels} * bytes_per_sample);
}

} // namespace lumora
