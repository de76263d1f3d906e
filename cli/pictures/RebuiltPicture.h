#pragma once

#include "cli/pictures/RebuiltPanels.h"
#include "platform/Canvas.h"

#include <cstdint>
#include <string>

namespace lumora {

/// What a picture of rebuilt regions tells besides their samples.
struct RebuiltCaption {
    std::string name; ///< of the source
    std::int32_t rate_hz = 0;
    std::int32_t channels = 0; ///< 1 or 2
    std::int64_t rebuilt = 0;  ///< regions of the whole sound
    double largest_gain = 1.0; ///< the largest divisor of an output sample
};

/// Draws the panels, of which there is at least one, before and after over each other, each channel
/// as a curve of its own, with the limits of the filter and full scale. Levels are those ahead of
/// the gain, so that only what was rebuilt differs. JobFailure if it cannot be written.
void DrawRebuilt(const RebuiltPanels& rebuilt, const RebuiltCaption& caption,
                 const std::string& file, PictureKind kind);

} // namespace lumora
