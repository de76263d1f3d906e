#include "cli/pitch/ToneText.h"
#include "cli/terminal/UsageError.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace lumora {
namespace {

/// Every sign, whole number and fraction that the grammar has, with its exact value.
template <class Check> void ForEachSetting(Check&& check)
{
    for (const int denominator : {2, 4, 8, 16, 32, 64}) {
        for (int numerator = 0; numerator <= denominator; ++numerator) {
            const std::string fraction =
                std::to_string(numerator) + "/" + std::to_string(denominator);
            const int part = numerator * 64 / denominator;
            const std::string plus = '+' + fraction;
            const std::string minus = '-' + fraction;
            check(fraction, part);
            check(plus, part);
            check(minus, -part);
            for (int whole = 0; whole < 6; ++whole) {
                const std::string up = std::to_string(whole) + plus;
                const std::string down = std::to_string(-whole) + minus;
                check(up, 64 * whole + part);
                check('+' + up, 64 * whole + part);
                if (whole > 0) check(down, -64 * whole - part);
            }
        }
    }
}

TEST(ToneText, ReadsEveryWholeNumberFractionAndSumOfThemExactly)
{
    ForEachSetting([](const std::string& text, int sixty_fourths) {
        EXPECT_EQ(ReadTones(text), sixty_fourths) << text;
    });
    for (int whole = 0; whole <= 6; ++whole) {
        EXPECT_EQ(ReadTones(std::to_string(whole)), 64 * whole);
        EXPECT_EQ(ReadTones('+' + std::to_string(whole)), 64 * whole);
        EXPECT_EQ(ReadTones('-' + std::to_string(whole)), -64 * whole);
    }
}

TEST(ToneText, ReadsTheDecimalOfEvery64th)
{
    for (int k = 0; k <= 384; ++k) {
        char decimal[20];
        std::snprintf(decimal, sizeof decimal, "%.6f", k / 64.0); // exact: a 64th has six places
        EXPECT_EQ(ReadTones(decimal), k) << decimal;
        EXPECT_EQ(ReadTones(std::string("-") + decimal), -k) << decimal;
    }
    EXPECT_EQ(ReadTones("-0.25"), -16);
    EXPECT_EQ(ReadTones(".5"), 32);
    EXPECT_EQ(ReadTones("+2."), 128);
    EXPECT_EQ(ReadTones("1.50000000000"), 96);
}

TEST(ToneText, TakesAFractionOfMoreThanATone)
{
    EXPECT_EQ(ReadTones("9/8"), 72);
    EXPECT_EQ(ReadTones("-384/64"), -384);
}

TEST(ToneText, WritesASettingAsItReadsIt)
{
    for (int k = -384; k <= 384; ++k) {
        const std::string text = TonesText(k);
        EXPECT_EQ(ReadTones(text.substr(0, text.find(' '))), k) << text;
    }
    EXPECT_EQ(TonesText(8), "+1/8 tone");
    EXPECT_EQ(TonesText(-152), "-2-3/8 tones");
    EXPECT_EQ(TonesText(64), "+1 tone");
    EXPECT_EQ(TonesText(-384), "-6 tones");
    EXPECT_EQ(TonesText(0), "0 tones");
}

class RefusedTones : public testing::TestWithParam<const char*> {};

TEST_P(RefusedTones, AreRefused)
{
    EXPECT_THROW(ReadTones(GetParam()), UsageError);
}

INSTANTIATE_TEST_SUITE_P(ToneText, RefusedTones,
                         testing::Values("", "+", "-", "one", "1 ", " 1", "1/3", "1/1", "1/128",
                                         "1/0", "1/", "/8", "1/8/8", "+-1", "--1", "1+1/8x", "1+",
                                         "1-", "+1+", "1+2", "0x1", "1e0", "nan", "inf", ".", "-.",
                                         "0.1", "0.333", "0.0078125", "1.5/2", "1/8.0", "1,5", "7",
                                         "-7", "6+1/64", "-6-1/64", "6.015625", "385/64",
                                         "9999999999999999999", "1/-8", "1+-1/8"));

TEST(ToneText, RefusesPartsThatPointInOppositeWays)
{
    for (const char* text : {"-2+3/8", "+2-3/8", "2-3/8"}) {
        try {
            ReadTones(text);
            ADD_FAILURE() << text;
        } catch (const UsageError& error) {
            EXPECT_NE(std::string(error.what()).find("opposite"), std::string::npos);
        }
    }
}

} // namespace
} // namespace lumora
