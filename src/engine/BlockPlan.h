#pragma once

#include <cstdint>

namespace lumora {

/// The sizes of a run, from the sample rate.
struct BlockPlan {
    std::int16_t BlockLen = 0;   ///< samples of a block: 220 at 22,050 Hz, 440 at 44,100 Hz
    std::int16_t CoarseStep = 0; ///< decimation of the coarse search: 5, 10
    std::int32_t ChunkLen = 0;   ///< samples of a chunk: 31,900, 63,800
    std::int16_t BlocksPerChunk = 0;

    /// Errors 6 (a size beyond its width) and 11 (a rate so low that a block has no samples).
    static BlockPlan ForRate(std::int32_t rate_hz);
};

/// Samples by which the core's input buffer exceeds four blocks.
inline constexpr std::int16_t kExtraLen = 20;

} // namespace lumora
