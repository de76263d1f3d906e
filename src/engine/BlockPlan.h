#pragma once

#include "audio/FrameRule.h"

#include <cstdint>
#include <limits>

namespace lumora {

/// Samples by which the core's input buffer exceeds four blocks.
inline constexpr std::int16_t kExtraLen = 20;

/// The step of the coarse search at kRuleRate, and in proportion at any other rate.
inline constexpr std::int32_t kRuleStep = 5;

/// The sizes of a run, from the sample rate.
struct BlockPlan {
    std::int16_t BlockLen = 0;   ///< samples of a block: 220 at 22,050 Hz, 440 at 44,100 Hz
    std::int16_t CoarseStep = 0; ///< decimation of the coarse search: 5, 10
    std::int32_t ChunkLen = 0;   ///< samples of a chunk: 31,900, 63,800
    std::int16_t BlocksPerChunk = 0;

    /// Errors 6 (a size beyond its width) and 11 (a rate so low that a block has no samples).
    static BlockPlan ForRate(std::int32_t rate_hz);

    /// The rates in Hz at which a run is possible. Below the first the coarse step rounds to 0, by
    /// which the core divides (error 11): half a step, 2205 Hz, goes to the even number.
    static constexpr std::int32_t kLowestRate = kRuleRate / (2 * kRuleStep) + 1;
    /// Above the last the core's input buffer, four blocks and kExtraLen samples, has positions
    /// beyond 16 bits (error 6).
    static constexpr std::int32_t kHighestRate = HighestRateOfFrame(kLongestBlock);

    /// The shortest sound that runs, in samples per channel, at a rate that runs: one block; of
    /// fewer samples nothing would be written (error 9).
    static std::int64_t LeastSamples(std::int32_t rate_hz);
    /// The longest: chunks are counted in 16 bits (error 6), and less than a chunk may follow them.
    static std::int64_t MostSamples(std::int32_t rate_hz);
};

static_assert(4 * kLongestBlock + kExtraLen <= std::numeric_limits<std::int16_t>::max());

} // namespace lumora
