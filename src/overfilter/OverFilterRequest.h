#pragma once

#include "base/Progress.h"
#include "overfilter/OverFilterFigures.h"

#include <functional>

namespace lumora {

/// What goes with a run of the over-range filter. Everything may be empty.
struct OverFilterRequest {
    /// Bar goes over 0..whole seconds + 2. CancelRequested is asked after every whole second of
    /// sound, and true ends the run with nothing left behind; PumpEvents is called after every
    /// second and at the end. PublishPercent is not.
    RunHooks Hooks = {};
    /// Uniform random numbers in 0..1 for the dither of digital silence. Empty: DitherNoise from
    /// its own seed, the same for every run.
    std::function<double()> Random = {};
    RegionObserver OnRegion = {}; ///< told of each region as it is rebuilt
};

} // namespace lumora
