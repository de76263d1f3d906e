#pragma once

#include "base/Numbers.h"

#include <cstdint>

namespace lumora {

/// Blocks in a chunk, the unit of reading, writing and progress: about 1.45 seconds.
inline constexpr std::int32_t kBlocksPerChunk = 145;

/// Samples in a block (a frame), about 10 milliseconds: 220 at 22,050 Hz. Error 6 where the rate
/// gives more than 16 bits hold.
inline std::int16_t FrameLength(std::int32_t rate_hz)
{
    return CInt(static_cast<double>(CLng(std::int64_t{rate_hz} * 220)) / 22050.0);
}

} // namespace lumora
