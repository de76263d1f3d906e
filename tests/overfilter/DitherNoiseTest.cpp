#include "overfilter/DitherNoise.h"

#include <cstdint>
#include <gtest/gtest.h>

namespace lumora {
namespace {

TEST(DitherNoise, GivesTheUpperBitsOfThePublishedGenerator)
{
    DitherNoise noise(1234567); // the seed of the generator's published test values
    for (const std::uint64_t value :
         {6457827717110365317U, 3203168211198807973U, 9817491932198370423U, 4593380528125082431U,
          16408922859458223821U})
        EXPECT_EQ(noise(), static_cast<double>(value / 2048) / 9007199254740992.0);
}

TEST(DitherNoise, FillsZeroToOneEvenly)
{
    DitherNoise noise;
    int tenths[10] = {};
    for (int k = 0; k < 100000; ++k) {
        const double value = noise();
        ASSERT_GE(value, 0.0);
        ASSERT_LT(value, 1.0);
        ++tenths[static_cast<int>(value * 10.0)];
    }
    for (const int count : tenths)
        EXPECT_NEAR(count, 10000, 500); // five standard deviations
}

TEST(DitherNoise, EverySeedHasItsOwnNumbers)
{
    EXPECT_NE(DitherNoise(1)(), DitherNoise(2)());
    EXPECT_EQ(DitherNoise()(), DitherNoise(1)());
}

} // namespace
} // namespace lumora
