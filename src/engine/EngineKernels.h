#pragma once

#include "base/VectorWidth.h"

#include <cstddef>
#include <cstdint>

namespace lumora {

/// Plain sums over one window of a signal x and a target y.
struct WindowSums {
    double x = 0.0;
    double y = 0.0;
    double xx = 0.0;
    double yy = 0.0;
};

/// What a search knows of its target: points in a window, their mean, and their sum of squares
/// about the mean.
struct TargetMoments {
    double points = 0.0;
    double mean = 0.0;
    double variance = 0.0;
};

/// A product of variances up to here is taken for silence.
inline constexpr double kNoVariance = 1e-16;

/// Shifts are worked on in groups of this many.
inline constexpr std::size_t kShiftGroup = 8;
/// `shifts`, filled up to whole groups.
constexpr std::size_t PaddedShifts(std::size_t shifts)
{
    return (shifts + kShiftGroup - 1) / kShiftGroup * kShiftGroup;
}

/// The loops in which a run spends its time, for one width of vectors. Lanes hold independent
/// results and each sum runs in rising order, so every width gives the bits of the plain loop.
struct EngineKernels {
    /// For each shift k: cross[k] = sum over i of y[i] * x[k + i], i below `count`; `sums` is over
    /// the window at shift 0. Whole groups are computed: x must be readable up to index
    /// count + PaddedShifts(shifts) - 2, and `cross` must hold PaddedShifts(shifts).
    void (*correlate)(const double* x, const double* y, std::size_t count, std::size_t shifts,
                      double* cross, WindowSums& sums);

    /// Pearson's coefficient of each shift k from its sum of squares, its mean and cross[k], which
    /// it replaces; 0.0 where the product of the variances is at most kNoVariance.
    void (*coefficients)(const double* sum_xx, const double* mean_x, double* cross,
                         std::size_t shifts, const TargetMoments& target);

    /// out[i] += in[i] * window[i]. The arrays do not overlap.
    void (*overlap_add)(double* out, const double* in, const double* window, std::size_t count);

    /// out[j] = (s[k + 1] - s[k]) * fraction[j] + s[k] with k = index[j].
    void (*interpolate)(const double* s, const std::int32_t* index, const double* fraction,
                        std::size_t count, double* out);

    /// frame[i] = interleaved[2 * i].
    void (*take_every_other)(const std::int16_t* interleaved, std::size_t count,
                             std::int16_t* frame);
};

const EngineKernels& EngineKernelsFor(VectorWidth width);

} // namespace lumora
