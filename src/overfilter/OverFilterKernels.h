#pragma once

#include "base/VectorWidth.h"

#include <cstddef>
#include <span>

namespace lumora {

/// Places first..last in the buffer, from 0.
struct TimeRun {
    std::size_t first = 0;
    std::size_t last = 0;
};

/// Rows and columns of lagged products come in groups of this many.
inline constexpr std::size_t kLagGroup = 8;
/// `order`, filled up to whole groups.
constexpr std::size_t PaddedOrder(std::size_t order)
{
    return (order + kLagGroup - 1) / kLagGroup * kLagGroup;
}

/// What sums are taken over: x(t) = newest_first[length - 1 - t], and kLagGroup samples behind the
/// oldest one can be read, whatever stands there.
struct LaggedSignal {
    const double* newest_first = nullptr;
    std::size_t length = 0;
    std::span<const TimeRun> times;
};

/// The loop in which a run on loud music spends its time, for one width of vectors. Lanes hold
/// independent sums and each runs over the times in rising order, so every width gives the bits of
/// the plain loop.
struct OverFilterKernels {
    /// products[r * PaddedOrder(order) + c - 1] = sum over t of x(t - r) x(t - c), for r = 0..order
    /// and c = max(r, 1)..order. Other elements are undefined; there are (PaddedOrder(order) + 1) x
    /// PaddedOrder(order) of them in all.
    void (*lagged_products)(const LaggedSignal& signal, std::size_t order, double* products);
};

const OverFilterKernels& OverFilterKernelsFor(VectorWidth width);

} // namespace lumora
