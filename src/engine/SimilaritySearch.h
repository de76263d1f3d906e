#pragma once

#include "engine/EngineKernels.h"

#include <cstddef>
#include <span>

namespace lumora {

/// How the running energy and mean of the search follow the window. The fine search's run one
/// sample ahead of it. That is a fixed property of the engine: the places it jumps to depend on
/// it, so the two must not be aligned.
enum class EnergyWindow : std::size_t { Exact = 0, OneAhead = 1 };

/// The shift k in 0..shifts-1 at which the window x[k .. k + count - 1] is most like the target
/// y[0 .. count - 1], by Pearson's correlation coefficient on the samples as they are; the earliest
/// of equals. A window or target without variance (product of variances at most 1e-16) correlates
/// 0.0. `cross` is scratch for PaddedShifts(shifts) sums.
///
/// x must be readable as EngineKernels::correlate says. With OneAhead, x[shifts - 1 + count] is
/// read as well.
std::size_t BestShift(const EngineKernels& kernels, const double* x, const double* y,
                      std::size_t count, std::size_t shifts, EnergyWindow energy_window,
                      std::span<double> cross);

} // namespace lumora
