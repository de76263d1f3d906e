#include "view/FillBar.h"

#include "support/EdgeNumbers.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using namespace test;
using Names = std::vector<std::string>;
using Places = std::vector<double>;

template <FillBarKind kind> Places TicksOf(const FillBar<kind>& bar)
{
    Places places;
    for (const FillBarTick& tick : bar.Drawing().Ticks)
        places.push_back(tick.Place);
    return places;
}

template <FillBarKind kind> std::vector<TickSide> SidesOf(const FillBar<kind>& bar)
{
    std::vector<TickSide> sides;
    for (const FillBarTick& tick : bar.Drawing().Ticks)
        sides.push_back(tick.Side);
    return sides;
}

TEST(FillBar, StartsWithTheDefaultsOfItsKind)
{
    const Ambient ambient = {0xABCDEF, "Sans"};
    const FillBarPicH across(ambient);
    const FillBarProperties& p = across.Properties();
    EXPECT_EQ(p.Value, 1);
    EXPECT_EQ(p.Min, 0);
    EXPECT_EQ(p.Max, 10);
    EXPECT_EQ(p.BackColor, 0xABCDEF);
    EXPECT_EQ(p.BorderStyle, 1);
    EXPECT_EQ(p.BorderColor, 255);
    EXPECT_EQ(p.Font, "Sans");
    EXPECT_FALSE(p.TextYesNO);
    EXPECT_EQ(p.TickAlignment, 2);
    EXPECT_EQ(p.TickColor, 0xFFFFFF);
    EXPECT_EQ(p.TickFrequency, 1);
    EXPECT_EQ(p.HeaderColor, 0xFF0000);
    EXPECT_EQ(p.FillColor, 3);
    EXPECT_EQ(p.Picture, "");
    EXPECT_EQ(across.FillPicture(), 9);

    const FillBarH plain(ambient);
    EXPECT_EQ(plain.Properties(), p);
    EXPECT_EQ(plain.Properties().BackStyle, 1);
    EXPECT_EQ(plain.Properties().FillStyle, 0);

    FillBarProperties upward = p;
    upward.Value = 0;
    upward.TickAlignment = 3;
    upward.TickFrequency = 0;
    EXPECT_EQ(FillBarPicV(ambient).Properties(), upward);
}

TEST(FillBar, SlidesItsPictureInFromTheLeft)
{
    FillBarPicH bar;
    bar.SetBorderStyle(3);
    bar.Resize({200.0, 20.0, 10.0});
    EXPECT_FALSE(bar.Drawing().FillVisible);
    bar.SetValue(3);
    EXPECT_EQ(bar.Drawing().Fill, 60);
    EXPECT_EQ(bar.Drawing().PictureEdge, -140.0);
    EXPECT_EQ(bar.Drawing().LayerEdge, 60.0);
    EXPECT_TRUE(bar.Drawing().FillVisible);
    bar.SetValue(10);
    EXPECT_EQ(bar.Drawing().Fill, 200);
    EXPECT_EQ(bar.Drawing().PictureEdge, 0.0);
}

TEST(FillBar, FillsFromTheBottomUpward)
{
    FillBarPicV bar;
    bar.Resize({122.0, 20.0, 10.0}); // 100 usable
    bar.SetValue(3);
    EXPECT_EQ(bar.Drawing().Fill, 30);
    EXPECT_EQ(bar.Drawing().PictureEdge, 92.0);
    EXPECT_EQ(bar.Drawing().LayerEdge, 92.0);
    bar.SetValue(0);
    EXPECT_EQ(bar.Drawing().PictureEdge, 122.0);
}

TEST(FillBar, HidesFillAndLabelAtZero)
{
    FillBarPicH bar;
    bar.Resize({200.0, 20.0, 10.0});
    bar.SetValue(5);
    ASSERT_TRUE(bar.Drawing().FillVisible);
    bar.SetValue(0);
    EXPECT_FALSE(bar.Drawing().FillVisible);
    EXPECT_EQ(bar.Drawing().Fill, 0);
    EXPECT_EQ(bar.Drawing().LayerEdge, 0.0);
}

TEST(FillBar, StaysAsItWasWithoutARange)
{
    FillBarPicH bar;
    bar.Resize({200.0, 20.0, 10.0});
    bar.SetTextYesNO(true);
    bar.SetValue(5);
    const FillBarDrawing before = bar.Drawing();
    bar.SetMin(10);
    bar.SetValue(7);
    EXPECT_EQ(bar.Drawing(), before);
    EXPECT_EQ(bar.Properties().Value, 7);
    bar.SetMin(kLeast32); // a range beyond 32 bits
    bar.SetValue(8);
    EXPECT_EQ(bar.Drawing(), before);
    bar.SetMin(0);
    EXPECT_EQ(bar.Drawing(), before) << "until the next Value";
    bar.SetValue(10);
    EXPECT_EQ(bar.Drawing().Fill, 178);
    EXPECT_EQ(bar.Drawing().Text, "10");
}

TEST(FillBar, MovesItsFillAtTheNextValueAfterANewRange)
{
    FillBarPicH bar;
    bar.SetBorderStyle(3);
    bar.Resize({200.0, 20.0, 10.0});
    bar.SetValue(5);
    bar.SetMax(20);
    EXPECT_EQ(bar.Drawing().Fill, 100);
    bar.SetMin(10);
    EXPECT_EQ(bar.Drawing().Fill, 100);
    bar.SetValue(4);
    EXPECT_EQ(bar.Drawing().Fill, 80);
}

TEST(FillBar, WritesItsValueOnlyWhereItIsAskedTo)
{
    FillBarH bar;
    bar.Resize({200.0, 20.0, 10.0});
    bar.SetValue(-4);
    EXPECT_EQ(bar.Drawing().Text, "");
    bar.SetTextYesNO(true);
    EXPECT_EQ(bar.Drawing().Text, "-4");
    bar.SetValue(116);
    EXPECT_EQ(bar.Drawing().Text, "116");
    bar.SetTextYesNO(false);
    EXPECT_EQ(bar.Drawing().Text, "");
}

TEST(FillBar, FollowsNewMeasuresWithItsTicksAtOnceAndWithItsFillAtTheNextValue)
{
    FillBarPicH bar;
    bar.SetBorderStyle(3);
    bar.Resize({200.0, 20.0, 10.0});
    bar.SetValue(5);
    bar.Resize({100.0, 10.0, 10.0});
    EXPECT_EQ(TicksOf(bar), Places{90.0});
    EXPECT_EQ(bar.Drawing().Fill, 100);
    bar.SetTextYesNO(true); // lays the value out too
    EXPECT_EQ(bar.Drawing().Fill, 50);
}

TEST(FillBar, TellsMaxOnItsLastTick)
{
    FillBarPicV bar;
    bar.Resize({100.0, 10.0, 10.0});
    bar.SetTickFrequency(2);
    bar.SetMax(116);
    ASSERT_EQ(bar.Drawing().Ticks.size(), 2U);
    EXPECT_EQ(bar.Drawing().Ticks[0].Caption, "");
    EXPECT_EQ(bar.Drawing().Ticks[1].Caption, "116");
    bar.SetTickFrequency(3);
    ASSERT_EQ(bar.Drawing().Ticks.size(), 3U);
    EXPECT_EQ(bar.Drawing().Ticks[1].Caption, "");
    EXPECT_EQ(bar.Drawing().Ticks[2].Caption, "116");
}

TEST(FillBar, RefusesANewTickFrequencyWhileItsAlignmentIsTwo)
{
    FillBarPicH bar;
    Names announced;
    bar.PropertyChanged = [&](std::string_view name) { announced.emplace_back(name); };
    bar.Resize({100.0, 10.0, 10.0});
    bar.SetTickFrequency(4);
    EXPECT_EQ(bar.Properties().TickFrequency, 1);
    EXPECT_EQ(announced, Names{});
    bar.SetTickAlignment(1);
    bar.SetTickFrequency(4);
    EXPECT_EQ(bar.Properties().TickFrequency, 4);
    EXPECT_EQ(TicksOf(bar), (Places{30.0, 50.0, 70.0, 90.0}));
    EXPECT_EQ(announced, (Names{"TickAlignment", "TickFrequency"}));
}

TEST(FillBar, PutsItsTicksOnTheSideOfTheirAlignment)
{
    using enum TickSide;
    using Sides = std::vector<TickSide>;
    FillBarPicV bar;
    bar.SetTickFrequency(3);
    EXPECT_EQ(SidesOf(bar), (Sides{Before, Behind, Before})) << "the default, 3";
    const std::vector<Sides> table = {
        {Before, Before, Before}, {Behind, Behind, Behind}, {Middle, Middle, Middle}};
    for (std::int32_t alignment = 0; alignment < 3; ++alignment) {
        bar.SetTickAlignment(alignment);
        EXPECT_EQ(SidesOf(bar), table[static_cast<std::size_t>(alignment)]) << alignment;
    }
    bar.SetTickAlignment(1);
    bar.SetTickAlignment(4);
    EXPECT_EQ(SidesOf(bar), table[1]) << "no side, so they stay";
    EXPECT_EQ(bar.Properties().TickAlignment, 4);
}

TEST(FillBar, ExchangesLeftAndRightOfAnUpwardBar)
{
    using enum TickSide;
    using Sides = std::vector<TickSide>;
    FillBarPicV bar;
    bar.SetTickFrequency(3);
    EXPECT_FALSE(bar.Drawing().Mirrored);
    bar.SetRightToLeft(true);
    EXPECT_TRUE(bar.Drawing().Mirrored);
    EXPECT_EQ(SidesOf(bar), (Sides{Behind, Before, Behind}));
    bar.SetTickAlignment(0);
    EXPECT_EQ(SidesOf(bar), (Sides{Behind, Behind, Behind}));
    bar.SetTickAlignment(2);
    EXPECT_EQ(SidesOf(bar), (Sides{Middle, Middle, Middle}));
}

TEST(FillBar, AnnouncesEachPropertyByItsName)
{
    Names announced;
    const auto note = [&](std::string_view name) { announced.emplace_back(name); };
    FillBarH plain;
    plain.PropertyChanged = note;
    plain.SetValue(2);
    plain.SetMin(1);
    plain.SetMax(3);
    plain.SetBackColor(4);
    plain.SetBorderStyle(2);
    plain.SetBorderColor(5);
    plain.SetFont("Serif");
    plain.SetTextYesNO(true);
    plain.SetTickAlignment(0);
    plain.SetTickColor(6);
    plain.SetTickFrequency(7);
    plain.SetHeaderColor(8);
    plain.SetFillColor(9);
    plain.SetBackStyle(0);
    plain.SetFillStyle(1);
    EXPECT_EQ(announced, (Names{"Value", "Min", "Max", "BackColor", "BorderStyle", "BorderColor",
                                "Font", "TextYesNO", "TickAlignment", "TickColor", "TickFrequency",
                                "HeaderColor", "FillColor", "BackStyle", "FillStyle"}));
    announced.clear();
    FillBarPicV upward;
    upward.PropertyChanged = note;
    upward.SetPicture("sky");
    upward.SetRightToLeft(true);
    upward.SetMousePointer(11);
    upward.Resize({1.0, 0.0, 0.0}); // no property
    EXPECT_EQ(announced, (Names{"Picture", "RightToLeft", "MousePointer"}));
}

TEST(FillBar, TakesTheRangeOfAProgressOverAheadOfItsValue)
{
    FillBarPicH bar;
    bar.SetBorderStyle(3);
    bar.Resize({200.0, 20.0, 10.0});
    Names announced;
    bar.PropertyChanged = [&](std::string_view name) { announced.emplace_back(name); };
    bar.Follow({.Value = 3, .Min = 2, .Max = 6});
    EXPECT_EQ(bar.Drawing().Fill, 150);
    bar.Follow({.Value = 4, .Min = 2, .Max = 6});
    EXPECT_EQ(bar.Drawing().Fill, 200);
    EXPECT_EQ(announced, (Names{"Min", "Max", "Value", "Value"}));
}

TEST(FillBar, ShowsTheProgressOfARun)
{
    // As the main screen sets it up, with two units of length for each of 116; the run has 3
    // chunks.
    FillBarPicH bar;
    bar.SetBackColor(0x808080);
    bar.SetMax(116);
    bar.SetFillColor(3);
    bar.SetBorderStyle(3);
    bar.Resize({232.0, 20.0, 10.0});
    bar.SetValue(58);
    EXPECT_EQ(bar.Drawing().Fill, 116);

    ProgressBar progress;
    const RunHooks hooks = {.Bar = &progress, .PumpEvents = [&] { bar.Follow(progress); }};
    std::vector<std::int32_t> fills;
    const auto pump = [&] {
        hooks.Pump();
        fills.push_back(bar.Drawing().Fill);
    };
    hooks.StartBar(4);
    pump();
    for (int chunk = 0; chunk < 3; ++chunk) {
        hooks.StepBar();
        pump();
    }
    hooks.FillBar();
    pump();
    EXPECT_EQ(fills, (std::vector<std::int32_t>{0, 58, 116, 174, 232}));
    EXPECT_EQ(bar.Properties().Max, 4);
    EXPECT_EQ(bar.Properties().Min, 0);
    ASSERT_EQ(bar.Drawing().Ticks.size(), 1U);
    EXPECT_EQ(bar.Drawing().Ticks[0].Caption, "4");
}

} // namespace
} // namespace lumora
