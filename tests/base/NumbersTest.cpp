#include "base/Numbers.h"

#include "support/EdgeNumbers.h"
#include "support/Raised.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace lumora {
namespace {

using namespace test;

TEST(Round, GoesToTheNearestAndTakesTheEvenOneOfTwo)
{
    const double table[][2] = {{0.5, 0},     {1.5, 2},
                               {2.5, 2},     {3.5, 4},
                               {-0.5, 0},    {-1.5, -2},
                               {-2.5, -2},   {2.4, 2},
                               {2.6, 3},     {-2.4, -2},
                               {-2.6, -3},   {7, 7},
                               {1e15, 1e15}, {0.49999999999999994, 0}};
    for (const auto& [value, rounded] : table)
        EXPECT_EQ(Round(value), rounded) << value;
}

TEST(Round, HasNoRangeLimit)
{
    EXPECT_EQ(Round(1e300), 1e300);
    EXPECT_EQ(Round(-kInfinity), -kInfinity);
    EXPECT_TRUE(std::isnan(Round(kNan)));
}

TEST(Int, IsTheFloorBelowZeroToo)
{
    const double table[][2] = {{2.9, 2}, {2, 2}, {-0.1, -1}, {-2, -2}, {-2.5, -3}, {1e300, 1e300}};
    for (const auto& [value, floor] : table)
        EXPECT_EQ(Int(value), floor) << value;
}

TEST(CInt, RoundsHalfToEvenUpToTheVeryEdgesOfSixteenBits)
{
    const struct {
        double value;
        int whole;
    } table[] = {{0.5, 0},         {1.5, 2},         {-2.5, -2},         {32766.5, 32766},
                 {32767.0, 32767}, {32767.4, 32767}, {-32768.0, -32768}, {-32768.5, -32768},
                 {219.5, 220},     {220.5, 220}};
    for (const auto& row : table)
        EXPECT_EQ(CInt(row.value), row.whole) << row.value;
}

TEST(CInt, OverflowsBeyondSixteenBits)
{
    for (double value :
         {32767.5, 32768.0, -32768.51, -32769.0, 1e9, 1e300, kNan, kInfinity, -kInfinity})
        EXPECT_EQ(Raised([&] { CInt(value); }), 6) << value;
}

TEST(CLng, RoundsHalfToEvenUpToTheVeryEdgesOfThirtyTwoBits)
{
    const struct {
        double value;
        std::int32_t whole;
    } table[] = {{0.5, 0},
                 {-1.5, -2},
                 {32768.5, 32768},
                 {2147483646.5, 2147483646},
                 {2147483647.49, 2147483647},
                 {-2147483648.5, std::numeric_limits<std::int32_t>::min()}};
    for (const auto& row : table)
        EXPECT_EQ(CLng(row.value), row.whole) << row.value;
}

TEST(CLng, OverflowsBeyondThirtyTwoBits)
{
    for (double value :
         {2147483647.5, 2147483648.0, -2147483649.0, 1e300, kNan, kInfinity, -kInfinity})
        EXPECT_EQ(Raised([&] { CLng(value); }), 6) << value;
}

TEST(CByte, RoundsHalfToEvenWithinEightUnsignedBits)
{
    const struct {
        double value;
        int whole;
    } table[] = {{0, 0}, {-0.5, 0}, {0.5, 0}, {1.5, 2}, {254.5, 254}, {255.4, 255}};
    for (const auto& row : table)
        EXPECT_EQ(CByte(row.value), row.whole) << row.value;
    for (double value : {255.5, 256.0, -0.51, -1.0, kNan, kInfinity})
        EXPECT_EQ(Raised([&] { CByte(value); }), 6) << value;
}

TEST(WholeNumbers, NarrowExactlyOrOverflow)
{
    EXPECT_EQ(CInt(32767), 32767);
    EXPECT_EQ(CInt(std::int64_t{-32768}), -32768);
    EXPECT_EQ(CLng(std::int64_t{2147483647}), 2147483647);
    EXPECT_EQ(CLng(std::int64_t{-2147483648}), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(Raised([] { CInt(32768); }), 6);
    EXPECT_EQ(Raised([] { CInt(-32769); }), 6);
    EXPECT_EQ(Raised([] { CLng(std::int64_t{2147483648}); }), 6);
    EXPECT_EQ(Raised([] { CLng(std::int64_t{-2147483649}); }), 6);
    EXPECT_EQ(Raised([] { CLng(std::numeric_limits<std::int64_t>::min()); }), 6);
    EXPECT_EQ(Raised([] { CLng(std::numeric_limits<std::int64_t>::max()); }), 6);
}

TEST(CDbl, ReadsTheNumberThatATextSpells)
{
    const struct {
        const char* text;
        double value;
    } table[] = {{"12", 12},   {"-1.25", -1.25},      {"+3.5", 3.5},
                 {"  7 ", 7},  {"1e3", 1000},         {"2.5E-1", 0.25},
                 {"0", 0},     {".5", 0.5},           {"-0.125", -0.125},
                 {"0.1", 0.1}, {"16777217", 16777217}};
    for (const auto& row : table)
        EXPECT_EQ(CDbl(row.text), row.value) << row.text;
}

TEST(CDbl, RefusesATextThatSpellsNoNumber)
{
    for (const char* text : {"", "   ", "abc", "1.5x", "1 2", "--1", "+-1", "-+1", "++1", "1,5",
                             "0x10", "nan", "inf", "-", "+", ".", "e5"})
        EXPECT_EQ(Raised([&] { CDbl(text); }), 13) << '"' << text << '"';
}

TEST(Divide, GivesTheQuotientAndRaisesOnAZeroDivisor)
{
    EXPECT_EQ(Divide(1.0, 4.0), 0.25);
    EXPECT_EQ(Divide(0.0, -3.0), 0.0);
    for (double dividend : {1.0, 0.0, kNan}) {
        EXPECT_EQ(Raised([&] { Divide(dividend, 0.0); }), 11) << dividend;
        EXPECT_EQ(Raised([&] { Divide(dividend, -0.0); }), 11) << dividend;
    }
}

TEST(DivideWhole, CutsTowardsZeroAndRaisesOnAZeroDivisor)
{
    EXPECT_EQ(DivideWhole(7, 2), 3);
    EXPECT_EQ(DivideWhole(-7, 2), -3);
    EXPECT_EQ(DivideWhole(7, -2), -3);
    EXPECT_EQ(Raised([] { DivideWhole(7, 0); }), 11);
    EXPECT_EQ(Raised([] { DivideWhole(0, 0); }), 11);
}

} // namespace
} // namespace lumora
