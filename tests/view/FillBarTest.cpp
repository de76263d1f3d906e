#include "view/FillBar.h"

#include "support/Raised.h"

#include <gtest/gtest.h>
#include <limits>

namespace lumora {
namespace {

using namespace test;
using Names = std::vector<std::string>;
using Places = std::vector<double>;

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();

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

template <FillBarKind kind> Names NamesInBag(const FillBar<kind>& bar)
{
    PropertyBag bag;
    bar.WriteProperties(bag);
    Names names;
    for (const PropertyBag::Entry& entry : bag.Entries())
        names.push_back(entry.name);
    return names;
}

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
    EXPECT_EQ(Raised([] { FillLength({100.0, 0.0, 0.0}, 3, 1, kLeast, kMost); }), kOverflow);
    EXPECT_EQ(Raised([] { FillLength({100.0, 0.0, 0.0}, 3, kMost, 0, 1); }), kOverflow);
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
    bar.SetMin(kLeast); // a range beyond 32 bits
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

TEST(FillBar, KeepsThePropertiesOfItsKindInTheirOrder)
{
    const Names common = {"FillColor",     "BorderColor", "BackColor",     "Max",
                          "Min",           "Value",       "TextYesNO",     "Font",
                          "TickAlignment", "TickColor",   "TickFrequency", "HeaderColor"};
    const auto with = [&](const Names& own) {
        Names names = common;
        names.insert(names.end(), own.begin(), own.end());
        return names;
    };
    EXPECT_EQ(NamesInBag(FillBarH()), with({"BorderStyle", "BackStyle", "FillStyle"}));
    EXPECT_EQ(NamesInBag(FillBarPicH()), with({"Picture", "BorderStyle"}));
    EXPECT_EQ(NamesInBag(FillBarPicV()),
              with({"Picture", "BorderStyle", "RightToLeft", "MousePointer"}));
}

TEST(FillBar, ComesBackFromABagAsItWentInto)
{
    FillBarPicV bar;
    bar.Resize({110.0, 5.0, 10.0});
    bar.SetMax(20);
    bar.SetMin(-2);
    bar.SetBackColor(4);
    bar.SetBorderStyle(2); // 1.1 x 10 of 110
    bar.SetBorderColor(5);
    bar.SetFont("Serif");
    bar.SetTickFrequency(7);
    bar.SetTickAlignment(2); // which refuses a frequency that is set, but not one that is read
    bar.SetTickColor(6);
    bar.SetHeaderColor(8);
    bar.SetFillColor(9);
    bar.SetPicture("sky");
    bar.SetRightToLeft(true);
    bar.SetMousePointer(11);
    bar.SetTextYesNO(true);
    bar.SetValue(11);
    PropertyBag bag;
    bar.WriteProperties(bag);

    FillBarPicV other;
    Names announced;
    other.PropertyChanged = [&](std::string_view name) { announced.emplace_back(name); };
    other.Resize({110.0, 5.0, 10.0});
    other.ReadProperties(bag);
    EXPECT_EQ(other.Properties(), bar.Properties());
    EXPECT_EQ(other.Drawing(), bar.Drawing());
    EXPECT_EQ(other.Drawing().Fill, 50); // 99 x 11 / 22, rounded to even
    EXPECT_EQ(other.Drawing().Ticks.size(), 7U);
    EXPECT_EQ(other.Drawing().Ticks.back().Caption, "20");
    EXPECT_EQ(announced, Names{});
}

TEST(FillBar, TakesWhatABagLacksForItsDefaults)
{
    PropertyBag bag;
    bag.WriteProperty("textyesno", true);
    FillBarPicH bar({7, "Sans"});
    bar.SetMax(99);
    bar.SetFont("Serif");
    bar.ReadProperties(bag);
    EXPECT_TRUE(bar.Properties().TextYesNO);
    EXPECT_EQ(bar.Properties().Max, 10);
    EXPECT_EQ(bar.Properties().Font, "Sans");
    EXPECT_EQ(bar.Properties().BackColor, 7);
}

TEST(FillBar, RefusesABagWithValuesOfAnotherKindAsAWhole)
{
    const std::pair<PropertyValue, int> table[] = {
        {std::string("4"), 13}, {true, 13}, {std::int32_t{40000}, kOverflow}};
    for (const auto& [value, error] : table) {
        PropertyBag bag;
        bag.WriteProperty("Max", 50);
        bag.WriteProperty("TickFrequency", value);
        FillBarPicH bar;
        const FillBarProperties before = bar.Properties();
        EXPECT_EQ(Raised([&] { bar.ReadProperties(bag); }), error);
        EXPECT_EQ(bar.Properties(), before);
    }
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
