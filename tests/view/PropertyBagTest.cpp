#include "view/PropertyBag.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using Entries = std::vector<PropertyBag::Entry>;

TEST(PropertyBag, KeepsTheOrderOfWriting)
{
    PropertyBag bag;
    bag.WriteProperty("Max", 10);
    bag.WriteProperty("Font", std::string("Sans"));
    bag.WriteProperty("RightToLeft", true);
    EXPECT_EQ(bag.Entries(),
              (Entries{{"Max", 10}, {"Font", std::string("Sans")}, {"RightToLeft", true}}));
}

TEST(PropertyBag, TakesNamesThatDifferInCaseForOneKey)
{
    PropertyBag bag;
    bag.WriteProperty("TextYesNO", true);
    bag.WriteProperty("Max", 10);
    EXPECT_EQ(bag.ReadProperty("TextYesNo", false), PropertyValue(true));
    bag.WriteProperty("textyesno", false);
    EXPECT_EQ(bag.Entries(), (Entries{{"TextYesNO", false}, {"Max", 10}}));
}

TEST(PropertyBag, AnswersOtherwiseForANameThatIsNotThere)
{
    PropertyBag bag;
    bag.WriteProperty("Max", 10);
    EXPECT_EQ(bag.ReadProperty("Maximum", 7), PropertyValue(7));
    EXPECT_EQ(bag.ReadProperty("Max", 7), PropertyValue(10));
}

} // namespace
} // namespace lumora
