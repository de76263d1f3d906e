#include "cli/pitch/PitchSetting.h"
#include "cli/terminal/UsageError.h"

#include <gtest/gtest.h>

#include <cmath>

namespace lumora {
namespace {

struct QuotientOfTones {
    const char* tones;
    double quotient;
};

TEST(PitchSetting, GivesTheQuotientOfATonePadToSevenPlaces)
{
    constexpr QuotientOfTones kTable[] = {
        {"+6", 0.5},          {"+3", 0.7071068},    {"+1", 0.8908987},    {"+1/2", 0.9438743},
        {"+1/8", 0.9856632},  {"+1/16", 0.9928057}, {"+1/32", 0.9963964}, {"+1/64", 0.9981966},
        {"-1/64", 1.0018067}, {"-1", 1.122462},     {"-6", 2.0},
    };
    for (const auto& [tones, quotient] : kTable)
        EXPECT_NEAR(PitchSetting::FromTones(tones).Q_P, quotient, 0.5e-7) << tones;
    EXPECT_EQ(PitchSetting::FromTones("+6").Q_P, 0.5);
    EXPECT_EQ(PitchSetting::FromTones("-6").Q_P, 2.0);
    EXPECT_EQ(PitchSetting::FromTones("0").Q_P, 1.0);
}

TEST(PitchSetting, EveryUnitSaysTheSameChange)
{
    const double third_of_an_octave = std::cbrt(0.5);
    EXPECT_NEAR(PitchSetting::FromTones("+2").Q_P, third_of_an_octave, 1e-15);
    EXPECT_NEAR(PitchSetting::FromOctaves("0.33333333333333333").Q_P, third_of_an_octave, 1e-15);
    EXPECT_NEAR(PitchSetting::FromCents("+400").Q_P, third_of_an_octave, 1e-15);
    EXPECT_EQ(PitchSetting::FromQuotient("0.75").Q_P, 0.75);
    EXPECT_EQ(PitchSetting::FromTones("-2-3/8").cents_asked, -475.0);
    EXPECT_EQ(PitchSetting::FromOctaves("-0.5").cents_asked, -600.0);
    EXPECT_EQ(PitchSetting::FromCents("12.5").cents_asked, 12.5);
    EXPECT_EQ(PitchSetting::FromQuotient("2").cents_asked, -1200.0);
}

TEST(PitchSetting, TheEndsOfEachRangeStayWithinTheEnginesReach)
{
    EXPECT_EQ(PitchSetting::FromOctaves("1").Q_P, 0.5);
    EXPECT_EQ(PitchSetting::FromOctaves("-1").Q_P, 2.0);
    EXPECT_EQ(PitchSetting::FromCents("1200").Q_P, 0.5);
    EXPECT_EQ(PitchSetting::FromCents("-1200").Q_P, 2.0);
    EXPECT_EQ(PitchSetting::FromQuotient("0.5").Q_P, 0.5);
    EXPECT_EQ(PitchSetting::FromQuotient("2.0").Q_P, 2.0);
}

TEST(PitchSetting, RefusesWhatIsNoNumberOrOutOfRange)
{
    for (const char* text :
         {"", "+", "x", "1x", "nan", "inf", "-inf", "+-1", "0x1", "1e999", " 1"}) {
        EXPECT_THROW(PitchSetting::FromOctaves(text), UsageError) << text;
        EXPECT_THROW(PitchSetting::FromCents(text), UsageError) << text;
        EXPECT_THROW(PitchSetting::FromQuotient(text), UsageError) << text;
    }
    EXPECT_THROW(PitchSetting::FromOctaves("1.0000001"), UsageError);
    EXPECT_THROW(PitchSetting::FromOctaves("-1.0000001"), UsageError);
    EXPECT_THROW(PitchSetting::FromCents("1200.001"), UsageError);
    EXPECT_THROW(PitchSetting::FromCents("-1200.001"), UsageError);
    EXPECT_THROW(PitchSetting::FromQuotient("0.4999999"), UsageError);
    EXPECT_THROW(PitchSetting::FromQuotient("2.0000001"), UsageError);
    EXPECT_THROW(PitchSetting::FromQuotient("-1"), UsageError);
}

TEST(PitchSetting, NamesTheChangeInTheUnitThatWasAsked)
{
    EXPECT_EQ(PitchSetting::FromTones("1/8").asked, "+1/8 tone");
    EXPECT_EQ(PitchSetting::FromOctaves("0.5").asked, "+0.5 octaves");
    EXPECT_EQ(PitchSetting::FromCents("-15").asked, "-15 cents");
    EXPECT_EQ(PitchSetting::FromCents("0").asked, "0 cents");
    EXPECT_EQ(PitchSetting::FromQuotient("0.9").asked, "Q_P 0.9");
}

} // namespace
} // namespace lumora
