#pragma once

#include "overfilter/OverFilterFigures.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace lumora {

/// A piece of the stream with rebuilt regions in it.
struct RebuiltPanel {
    std::int64_t first = 0; ///< place of its first sample in the stream, from 1
    std::vector<double> before;
    std::vector<double> after;
    std::vector<bool> is_rebuilt; ///< of each sample

    std::int64_t End() const { return first + static_cast<std::int64_t>(before.size()); }
};

/// Keeps the first rebuilt regions, with some of the sound around them, to be looked at. Regions
/// close to each other share a panel. What is kept does not grow with the length of the sound.
class RebuiltPanels {
public:
    static constexpr std::size_t kMost = 6;

    RebuiltPanels(std::int32_t rate_hz, std::int32_t channels);

    /// Takes the next region of the stream, as the filter's observer gets it.
    void Take(const RebuiltRegion& region);

    const std::vector<RebuiltPanel>& Panels() const { return panels_; }
    /// Regions that stand in the panels.
    std::int64_t Regions() const { return regions_; }

private:
    void Mark(const RebuiltRegion& region);
    bool Join(const RebuiltRegion& region, std::int64_t end);
    void Begin(const RebuiltRegion& region, std::int64_t first, std::int64_t end);

    std::int64_t context_; ///< samples of the stream shown to either side of a region
    std::int64_t widest_;  ///< a panel takes no more regions beyond this many samples
    std::int64_t regions_ = 0;
    std::vector<RebuiltPanel> panels_;
};

} // namespace lumora
