#include "overfilter/OverFilterKernels.h"

#include "overfilter/OverSounds.h"
#include "support/VectorWidths.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>

namespace lumora {
namespace {

using namespace test;

class OverFilterKernel : public testing::TestWithParam<VectorWidth> {};
INSTANTIATE_TEST_SUITE_P(, OverFilterKernel, EveryWidth(), WidthName);

TEST_P(OverFilterKernel, SumsEveryLagInRisingOrderOfTime)
{
    Noise noise{41};
    for (std::size_t order = 1; order <= 60; ++order) {
        // Numbers of widely different sizes: another order of summing gives other bits.
        Stream x(180);
        for (double& value : x)
            value = std::ldexp(Uniform(noise, -1.0, 1.0), -Whole(noise, 0, 40));
        const std::vector<TimeRun> times{{order, order}, {order + 4, 100}, {120, x.size() - 1}};
        Stream newest_first(x.rbegin(), x.rend());
        newest_first.resize(x.size() + PaddedOrder(order) + kLagGroup, 0.0);
        const std::size_t stride = PaddedOrder(order);
        Stream products((stride + 1) * stride);
        OverFilterKernelsFor(GetParam())
            .lagged_products({newest_first.data(), x.size(), times}, order, products.data());
        for (std::size_t r = 0; r <= order; ++r)
            for (std::size_t c = std::max<std::size_t>(r, 1); c <= order; ++c) {
                double sum = 0.0;
                for (const TimeRun& run : times)
                    for (std::size_t t = run.first; t <= run.last; ++t)
                        sum += x[t - r] * x[t - c];
                ASSERT_EQ(std::bit_cast<std::uint64_t>(products[r * stride + c - 1]),
                          std::bit_cast<std::uint64_t>(sum))
                    << "order " << order << ", lags " << r << " and " << c;
            }
    }
}

} // namespace
} // namespace lumora
