#include "cli/pictures/RebuiltPanels.h"

#include <algorithm>

namespace lumora {

namespace {

/// The place in the stream of the buffer's first sample.
std::int64_t BufferFirst(const RebuiltRegion& region)
{
    return region.start - region.buffer_start;
}

/// Puts the buffer's samples from `first` up to `end` behind those of the panel.
void Append(const RebuiltRegion& region, std::int64_t first, std::int64_t end, RebuiltPanel& panel)
{
    const auto from = static_cast<std::size_t>(first - BufferFirst(region));
    const auto count = static_cast<std::size_t>(std::max<std::int64_t>(end - first, 0));
    const auto before = region.before.subspan(from, count);
    const auto after = region.after.subspan(from, count);
    panel.before.insert(panel.before.end(), before.begin(), before.end());
    panel.after.insert(panel.after.end(), after.begin(), after.end());
    panel.is_rebuilt.resize(panel.before.size(), false);
}

} // namespace

RebuiltPanels::RebuiltPanels(std::int32_t rate_hz, std::int32_t channels)
{
    constexpr std::int64_t kLeastFrames = 12;
    constexpr std::int64_t kContextsPerPanel = 8;
    const std::int64_t one_ms = rate_hz / 1000;
    context_ = channels * std::max(one_ms, kLeastFrames);
    widest_ = kContextsPerPanel * context_;
}

void RebuiltPanels::Take(const RebuiltRegion& region)
{
    const std::int64_t first =
        std::max({region.start - context_, BufferFirst(region), std::int64_t{1}});
    const std::int64_t end = std::min(region.start + region.length + context_,
                                      BufferFirst(region) + std::ssize(region.before));
    const bool joined = !panels_.empty() && first <= panels_.back().End() && Join(region, end);
    if (!joined && panels_.size() < kMost) Begin(region, first, end);
    Mark(region);
}

/// Into the last panel; false if it would become too wide.
bool RebuiltPanels::Join(const RebuiltRegion& region, std::int64_t end)
{
    RebuiltPanel& last = panels_.back();
    if (end - last.first > widest_) return false;
    Append(region, last.End(), end, last);
    ++regions_;
    return true;
}

void RebuiltPanels::Begin(const RebuiltRegion& region, std::int64_t first, std::int64_t end)
{
    RebuiltPanel panel;
    panel.first = first;
    Append(region, first, end, panel);
    if (!panels_.empty()) { // the buffer holds earlier regions as they were rebuilt
        const RebuiltPanel& earlier = panels_.back();
        for (std::int64_t place = first; place < std::min(earlier.End(), end); ++place) {
            const auto here = static_cast<std::size_t>(place - first);
            const auto there = static_cast<std::size_t>(place - earlier.first);
            panel.before[here] = earlier.before[there];
            panel.is_rebuilt[here] = earlier.is_rebuilt[there];
        }
    }
    panels_.push_back(std::move(panel));
    ++regions_;
}

/// Puts the new samples into every panel that shows their place.
void RebuiltPanels::Mark(const RebuiltRegion& region)
{
    for (RebuiltPanel& panel : panels_) {
        const std::int64_t end = std::min(region.start + region.length, panel.End());
        for (std::int64_t place = std::max(region.start, panel.first); place < end; ++place) {
            const auto here = static_cast<std::size_t>(place - panel.first);
            panel.after[here] = region.after[static_cast<std::size_t>(place - BufferFirst(region))];
            panel.is_rebuilt[here] = true;
        }
    }
}

} // namespace lumora
