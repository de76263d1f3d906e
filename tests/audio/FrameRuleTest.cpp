#include "audio/FrameRule.h"

#include "support/Raised.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using test::Raised;

TEST(FrameLength, IsAboutTenMillisecondsRounded)
{
    // rate x 220 / 22050, worked out by hand
    const int table[][2] = {{22050, 220}, {44100, 440}, {11025, 110}, {8000, 80},     {16000, 160},
                            {32000, 319}, {48000, 479}, {96000, 958}, {192000, 1916}, {100, 1},
                            {50, 0},      {0, 0},       {2206, 22},   {820510, 8186}};
    for (const auto& [rate, length] : table)
        EXPECT_EQ(FrameLength(rate), length) << rate;
}

TEST(FrameLength, OverflowsWhereSixteenBitsDoNotHoldIt)
{
    EXPECT_EQ(FrameLength(3284197), 32767);         // 32767.498
    for (std::int32_t rate : {3284198, 2147483647}) // 32767.508 and far more
        EXPECT_EQ(Raised([&] { FrameLength(rate); }), 6) << rate;
}

TEST(HighestRateOfFrame, IsTheLastWholeRateOfEveryLength)
{
    for (std::int32_t samples = 0; samples <= 32767; ++samples) {
        const std::int32_t rate = HighestRateOfFrame(samples);
        ASSERT_EQ(FrameLength(rate), samples);
        if (samples < 32767) {
            ASSERT_EQ(FrameLength(rate + 1), samples + 1);
        }
    }
    EXPECT_EQ(HighestRateOfFrame(32767), 3284197); // 32767.498, the next 32767.508
}

} // namespace
} // namespace lumora
