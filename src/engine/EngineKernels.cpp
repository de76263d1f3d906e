#include "engine/EngineKernels.h"

#include "base/PerWidth.h"
#include "base/Vectors.h"

#include <cmath>
#include <cstring>

namespace lumora {

namespace {

/// One pass over the target for N vectors of shifts side by side. The sums of the first window ride
/// along (x and y, then their squares), which hides them in the same loop.
template <class V, std::size_t N>
[[gnu::always_inline]] inline void
CorrelateGroup(const double* x, const double* y, std::size_t count, double* cross, WindowSums& sums)
{
    constexpr std::size_t kLanes = sizeof(V) / sizeof(double);
    V total[N] = {};
    Two plain{};
    Two squares{};
    for (std::size_t i = 0; i < count; ++i) {
        for (std::size_t n = 0; n < N; ++n)
            total[n] += y[i] * Load<V>(x + i + n * kLanes);
        const Two values{x[i], y[i]};
        plain += values;
        squares += values * values;
    }
    std::memcpy(cross, total, sizeof total);
    sums = {plain[0], plain[1], squares[0], squares[1]};
}

/// Three groups at a time: as many sums as the sixteen narrowest registers hold.
struct Correlate {
    template <class V>
    [[gnu::always_inline]] static void Run(const double* x, const double* y, std::size_t count,
                                           std::size_t shifts, double* cross, WindowSums& sums)
    {
        constexpr std::size_t kVectors = kShiftGroup * sizeof(double) / sizeof(V);
        WindowSums later; // only those at shift 0 are asked for
        for (std::size_t k = 0; k < shifts; k += 3 * kShiftGroup) {
            WindowSums& here = k == 0 ? sums : later;
            const std::size_t left = shifts - k;
            if (left > 2 * kShiftGroup)
                CorrelateGroup<V, 3 * kVectors>(x + k, y, count, cross + k, here);
            else if (left > kShiftGroup)
                CorrelateGroup<V, 2 * kVectors>(x + k, y, count, cross + k, here);
            else
                CorrelateGroup<V, kVectors>(x + k, y, count, cross + k, here);
        }
    }
};

/// Four shifts at a time; a window without variance correlates 0.0 in place of whatever the
/// quotient gives.
struct Coefficients {
    template <class V>
    [[gnu::always_inline]] static void
    Run(const double* __restrict sum_xx, const double* __restrict mean_x, double* __restrict cross,
        std::size_t shifts, const TargetMoments& target)
    {
        for (std::size_t k = 0; k < shifts; ++k) {
            const double product =
                (sum_xx[k] - target.points * (mean_x[k] * mean_x[k])) * target.variance;
            const double quotient =
                (cross[k] - target.points * mean_x[k] * target.mean) / std::sqrt(product);
            cross[k] = product <= kNoVariance ? 0.0 : quotient;
        }
    }
};

struct OverlapAdd {
    template <class V>
    [[gnu::always_inline]] static void Run(double* __restrict out, const double* __restrict in,
                                           const double* __restrict window, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            out[i] += in[i] * window[i];
    }
};

/// Neighbours lie together in memory, so one load brings both ends of an interval.
struct Interpolate {
    template <class V>
    [[gnu::always_inline]] static void Run(const double* s, const std::int32_t* index,
                                           const double* fraction, std::size_t count, double* out)
    {
        std::size_t j = 0;
        for (; j + 4 <= count; j += 4) {
            const Two a = Load<Two>(s + index[j]);
            const Two b = Load<Two>(s + index[j + 1]);
            const Two c = Load<Two>(s + index[j + 2]);
            const Two d = Load<Two>(s + index[j + 3]);
            const Four low =
                __builtin_shufflevector(__builtin_shufflevector(a, b, 0, 2),
                                        __builtin_shufflevector(c, d, 0, 2), 0, 1, 2, 3);
            const Four high =
                __builtin_shufflevector(__builtin_shufflevector(a, b, 1, 3),
                                        __builtin_shufflevector(c, d, 1, 3), 0, 1, 2, 3);
            const Four value = (high - low) * Load<Four>(fraction + j) + low;
            std::memcpy(out + j, &value, sizeof value);
        }
        for (; j < count; ++j) {
            const double* interval = s + index[j];
            out[j] = (interval[1] - interval[0]) * fraction[j] + interval[0];
        }
    }
};

struct TakeEveryOther {
    template <class V>
    [[gnu::always_inline]] static void Run(const std::int16_t* __restrict interleaved,
                                           std::size_t count, std::int16_t* __restrict frame)
    {
        for (std::size_t i = 0; i < count; ++i)
            frame[i] = interleaved[2 * i];
    }
};

constexpr EngineKernels KernelsOf(VectorWidth width)
{
    return {PerWidth<Correlate>::For(width), PerWidth<Coefficients>::For(width),
            PerWidth<OverlapAdd>::For(width), PerWidth<Interpolate>::For(width),
            PerWidth<TakeEveryOther>::For(width)};
}

} // namespace

const EngineKernels& EngineKernelsFor(VectorWidth width)
{
    static constexpr TablePerWidth kTables(KernelsOf);
    return kTables[width];
}

} // namespace lumora
