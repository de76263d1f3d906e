#include "view/FillBar.h"

#include "support/Raised.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace lumora {
namespace {

using namespace test;
using Names = std::vector<std::string>;

template <FillBarKind kind> Names NamesInBag(const FillBar<kind>& bar)
{
    PropertyBag bag;
    bar.WriteProperties(bag);
    Names names;
    for (const PropertyBag::Entry& entry : bag.Entries())
        names.push_back(entry.name);
    return names;
}

TEST(FillBarInABag, HasThePropertiesOfItsKindInTheirOrder)
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

TEST(FillBarInABag, ComesBackAsItWentIn)
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

TEST(FillBarInABag, TakesItsDefaultsForWhatIsMissing)
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

TEST(FillBarInABag, RefusesValuesOfAnotherKindAsAWhole)
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

} // namespace
} // namespace lumora
