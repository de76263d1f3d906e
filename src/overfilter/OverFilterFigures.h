#pragma once

#include <cstdint>
#include <functional>
#include <span>

namespace lumora {

/// What the over-range filter has done since its SetUp. Regions that are still on their way to the
/// centre of the buffer do not count yet (ClsRemoveOverPolynom::Waiting).
struct OverFilterFigures {
    std::int64_t rebuilt = 0;          ///< regions rebuilt
    std::int64_t single = 0;           ///< of these, regions of one sample, put onto the limit
    std::int64_t left_too_long = 0;    ///< left as they were: too little of the buffer around them
    std::int64_t left_unpredicted = 0; ///< left: no usable coefficients, or no finite prediction
    std::int64_t crowded = 0;          ///< times that regions covered more than 0.15 of the buffer
    std::int64_t longest_region = 0;   ///< in samples of the stream, rebuilt or not
    double largest_gain = 1.0;         ///< the largest divisor of an output sample

    std::int64_t Regions() const { return rebuilt + left_too_long + left_unpredicted; }
    bool operator==(const OverFilterFigures&) const = default;
};

/// One region at the moment it was rebuilt.
struct RebuiltRegion {
    std::int64_t start = 0;        ///< place of its first sample in the stream put in, from 1
    std::int16_t length = 0;       ///< in samples of the stream (stereo: of both channels)
    std::int16_t sign = 0;         ///< +1 over the upper limit, -1 under the lower one
    std::int16_t buffer_start = 0; ///< place of its first sample in the spans below, from 0
    /// The whole buffer; both are good until the observer returns.
    std::span<const double> before;
    std::span<const double> after;
};
using RegionObserver = std::function<void(const RebuiltRegion&)>;

} // namespace lumora
