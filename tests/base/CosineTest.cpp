#include "base/Cosine.h"

#include "support/ReferenceCosine.h"

#include <bit>
#include <cstdint>
#include <gtest/gtest.h>
#include <random>

namespace lumora {
namespace {

using test::ReferenceCosine;
using test::ReferenceSine;

std::uint64_t Bits(double value)
{
    return std::bit_cast<std::uint64_t>(value);
}

TEST(Cosine, IsTheNearestDoubleForEveryWindowValue)
{
    for (int N : {1, 2, 22, 80, 110, 160, 220, 240, 319, 440, 441, 479, 480, 882, 958, 960, 1916,
                  1920, 8186}) {
        const double step = 6.28318530717959 / (2 * N);
        for (int i = 0; i <= 2 * N; ++i)
            ASSERT_EQ(Bits(Cosine(i * step)), Bits(ReferenceCosine(i * step)))
                << "N " << N << ", i " << i;
    }
}

TEST(Cosine, IsTheNearestDoubleAnywhereUpToAHundred)
{
    std::mt19937_64 generator(20);
    std::uniform_real_distribution<double> anywhere(0.0, 100.0);
    for (int k = 0; k < 100000; ++k) {
        const double x = anywhere(generator);
        ASSERT_EQ(Bits(Cosine(x)), Bits(ReferenceCosine(x))) << x;
    }
}

TEST(Cosine, IsTheNearestDoubleBesideEveryQuarterTurn)
{
    // The neighbours of the multiples of pi/2, where leading bits cancel.
    for (int quarter = 1; quarter <= 63; ++quarter) {
        const std::uint64_t middle = Bits(quarter * 1.5707963267948966);
        for (std::uint64_t bits = middle - 50; bits <= middle + 50; ++bits) {
            const double x = std::bit_cast<double>(bits);
            ASSERT_EQ(Bits(Cosine(x)), Bits(ReferenceCosine(x))) << x;
        }
    }
}

TEST(Cosine, IsTheNearestDoubleForSmallArguments)
{
    for (double x = 1.0; x > 1e-300; x *= 0.37)
        ASSERT_EQ(Bits(Cosine(x)), Bits(ReferenceCosine(x))) << x;
    EXPECT_EQ(Bits(Cosine(0.0)), Bits(1.0));
}

TEST(Sine, IsTheNearestDoubleForEveryFactorOfATransform)
{
    for (double angle = 3.141592653589793; angle > 1e-12; angle /= 2.0) {
        ASSERT_EQ(Bits(Sine(angle)), Bits(ReferenceSine(angle))) << angle;
        ASSERT_EQ(Bits(Cosine(angle)), Bits(ReferenceCosine(angle))) << angle;
    }
    EXPECT_EQ(Bits(Sine(0.0)), Bits(0.0));
}

TEST(Sine, IsTheNearestDoubleAnywhereUpToAHundred)
{
    std::mt19937_64 generator(21);
    std::uniform_real_distribution<double> anywhere(0.0, 100.0);
    for (int k = 0; k < 20000; ++k) {
        const double x = anywhere(generator);
        ASSERT_EQ(Bits(Sine(x)), Bits(ReferenceSine(x))) << x;
    }
}

} // namespace
} // namespace lumora
