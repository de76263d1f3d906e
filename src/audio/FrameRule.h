#pragma once

#include "base/Numbers.h"

#include <cstdint>

namespace lumora {

/// Blocks in a chunk, the unit of reading, writing and progress: about 1.45 seconds.
inline constexpr std::int32_t kBlocksPerChunk = 145;

/// The longest block that the core takes: four of them and 20 samples are its input buffer, whose
/// positions have 16 bits.
inline constexpr std::int32_t kLongestBlock = (32767 - 20) / 4;

/// The frame rule: so many samples at this rate in Hz, and in proportion at any other.
inline constexpr std::int32_t kRuleFrame = 220;
inline constexpr std::int32_t kRuleRate = 22050;

/// Samples in a block (a frame), about 10 milliseconds: 220 at 22,050 Hz. Error 6 where the rate
/// gives more than 16 bits hold.
inline std::int16_t FrameLength(std::int32_t rate_hz)
{
    return CInt(static_cast<double>(CLng(std::int64_t{rate_hz} * kRuleFrame)) / kRuleRate);
}

/// The highest rate whose frame has no more than so many samples, 0 to 32,767. No whole rate gives
/// exactly half a sample, so all that rounds down is below half.
constexpr std::int32_t HighestRateOfFrame(std::int32_t samples)
{
    const std::int64_t halves = 2 * std::int64_t{samples} + 1;
    return static_cast<std::int32_t>(halves * kRuleRate / (std::int64_t{2} * kRuleFrame));
}

} // namespace lumora
