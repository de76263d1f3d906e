#pragma once

#include "base/VectorWidth.h"
#include "engine/EngineKernels.h"

#include <cstddef>
#include <cstdint>

namespace lumora {

/// Samples that come from a 16-bit file are whole multiples of 2^-15. A sum of their products is
/// then a whole multiple of 2^-30 far below 2^53 of them, so every double on the way to it is exact
/// and integers in any order give the same bits, at a third of the time.
struct ShortKernels {
    /// Samples are worked on in groups of this many.
    static constexpr std::size_t kGroup = 16;

    /// cross[k] = sum over i of y[i] * x[k + i] as if of samples, i below `count`, k below
    /// `shifts`; `sums` over the window at shift 0. y must be zero up to the next whole group
    /// behind `count`, and x readable up to index PaddedShifts(shifts) + that many - 2. `cross`
    /// holds PaddedShifts(shifts).
    void (*correlate)(const std::int16_t* x, const std::int16_t* y, std::size_t count,
                      std::size_t shifts, double* cross, WindowSums& sums);
};

/// Null where the processor has no instructions for them.
const ShortKernels* ShortKernelsFor(VectorWidth width);

} // namespace lumora
