#include "view/FillBarLayout.h"

#include "support/EdgeNumbers.h"
#include "support/Raised.h"

#include <gtest/gtest.h>
#include <vector>

namespace lumora {
namespace {

using namespace test;
using Places = std::vector<double>;

TEST(FillLength, IsTheShareOfWhatTheStyleLeaves)
{
    // 1.1 x 20 is 22 of the label, 1.1 x 10 is 11 of the border.
    constexpr FillBarMeasure kMeasure = {200.0, 20.0, 10.0};
    const struct {
        std::int32_t style, value, min, max, fill;
    } table[] = {
        {0, 10, 0, 10, 178}, {1, 10, 0, 10, 178}, {2, 10, 0, 10, 189},  {3, 10, 0, 10, 200},
        {9, 10, 0, 10, 200}, {-1, 5, 0, 10, 100}, {1, 5, 0, 10, 89},    {2, 1, 0, 10, 19},
        {3, 0, 0, 10, 0},    {3, 20, 0, 10, 400}, {3, -5, 0, 10, -100},
    };
    for (const auto& row : table)
        EXPECT_EQ(FillLength(kMeasure, row.style, row.value, row.min, row.max), row.fill)
            << row.style << ' ' << row.value;
}

TEST(FillLength, IsRoundedToNearestHalfToEven)
{
    EXPECT_EQ(FillLength({5.0, 0.0, 0.0}, 3, 1, 0, 2), 2);
    EXPECT_EQ(FillLength({7.0, 0.0, 0.0}, 3, 1, 0, 2), 4);
    EXPECT_EQ(FillLength({100.0, 0.0, 0.0}, 3, 1, 0, 3), 33);
    EXPECT_EQ(FillLength({100.0, 0.0, 0.0}, 3, 2, 0, 3), 67);
}

TEST(FillLength, StandsTooHighByMinWhichIsNotTakenOff)
{
    // A value of Min does not empty the bar, and Max more than fills it.
    EXPECT_EQ(FillLength({100.0, 0.0, 0.0}, 3, 10, 10, 20), 100);
    EXPECT_EQ(FillLength({100.0, 0.0, 0.0}, 3, 20, 10, 20), 200);
}

TEST(FillLength, HasNoneWithoutARange)
{
    EXPECT_EQ(Raised([] { FillLength({100.0, 0.0, 0.0}, 3, 1, 5, 5); }), kDivision);
    EXPECT_EQ(Raised([] { FillLength({100.0, 0.0, 0.0}, 3, 1, kLeast32, kMost32); }), kOverflow);
    EXPECT_EQ(Raised([] { FillLength({100.0, 0.0, 0.0}, 3, kMost32, 0, 1); }), kOverflow);
}

TEST(TickPlaces, AreAtTheEndsOfEqualStepsOverTheSpreadOfEachStyle)
{
    // 100 less twice 10 of the label from 10 on; 100 less 0.3 x 20 of the border from 3 on.
    constexpr FillBarMeasure kMeasure = {100.0, 10.0, 20.0};
    for (const std::int32_t style : {0, 1, 3})
        EXPECT_EQ(TickPlaces(kMeasure, style, 4), (Places{30.0, 50.0, 70.0, 90.0})) << style;
    EXPECT_EQ(TickPlaces(kMeasure, 2, 2), (Places{50.0, 97.0}));
    EXPECT_EQ(TickPlaces(kMeasure, 7, 2), (Places{50.0, 100.0}));
    EXPECT_EQ(TickPlaces(kMeasure, 1, 1), Places{90.0});
    EXPECT_TRUE(TickPlaces(kMeasure, 1, 0).empty());
    EXPECT_TRUE(TickPlaces(kMeasure, 1, -3).empty());
    EXPECT_EQ(TickPlaces(kMeasure, 1, 32767).size(), 32767U);
}

} // namespace
} // namespace lumora
