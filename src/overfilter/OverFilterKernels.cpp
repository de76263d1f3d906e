#include "overfilter/OverFilterKernels.h"

#include "base/PerWidth.h"
#include "base/Vectors.h"

#include <algorithm>
#include <cstring>

namespace lumora {

namespace {

/// R rows from `row` on times N vectors of columns from lag `lag` on, in registers over all times.
template <class V, std::size_t R, std::size_t N>
[[gnu::always_inline]] inline void Tile(const LaggedSignal& signal, std::size_t row,
                                        std::size_t lag, std::size_t stride, double* products)
{
    constexpr std::size_t kLanes = sizeof(V) / sizeof(double);
    V total[R][N] = {};
    for (const TimeRun run : signal.times) {
        const double* x = signal.newest_first + (signal.length - 1 - run.first);
        for (std::size_t count = run.last - run.first + 1; count > 0; --count, --x) {
            V column[N];
            for (std::size_t n = 0; n < N; ++n)
                column[n] = Load<V>(x + lag + n * kLanes);
            for (std::size_t r = 0; r < R; ++r)
                for (std::size_t n = 0; n < N; ++n)
                    total[r][n] += x[row + r] * column[n];
        }
    }
    for (std::size_t r = 0; r < R; ++r)
        std::memcpy(products + (row + r) * stride + lag - 1, total[r], sizeof total[r]);
}

/// R rows from `row` on, from the vector that holds the first lag they need to the last.
template <class V, std::size_t R>
[[gnu::always_inline]] inline void RowGroup(const LaggedSignal& signal, std::size_t row,
                                            std::size_t stride, double* products)
{
    constexpr std::size_t kLanes = sizeof(V) / sizeof(double);
    const std::size_t first = row == 0 ? 1 : (row - 1) / kLanes * kLanes + 1;
    std::size_t lag = first;
    for (; lag + 3 * kLanes <= stride + 1; lag += 3 * kLanes)
        Tile<V, R, 3>(signal, row, lag, stride, products);
    if (lag + 2 * kLanes <= stride + 1)
        Tile<V, R, 2>(signal, row, lag, stride, products);
    else if (lag + kLanes <= stride + 1)
        Tile<V, R, 1>(signal, row, lag, stride, products);
}

struct LaggedProducts {
    template <class V>
    [[gnu::always_inline]] static void Run(const LaggedSignal& signal, std::size_t order,
                                           double* products)
    {
        constexpr std::size_t kRows = 4;
        const std::size_t stride = PaddedOrder(order);
        RowGroup<V, 1>(signal, 0, stride, products);
        for (std::size_t row = 1; row <= order; row += kRows)
            RowGroup<V, kRows>(signal, row, stride, products);
    }
};

constexpr OverFilterKernels KernelsOf(VectorWidth width)
{
    return {PerWidth<LaggedProducts>::For(width)};
}

} // namespace

const OverFilterKernels& OverFilterKernelsFor(VectorWidth width)
{
    static constexpr TablePerWidth kTables(KernelsOf);
    return kTables[width];
}

} // namespace lumora
