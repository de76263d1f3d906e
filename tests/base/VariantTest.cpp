#include "base/Variant.h"

#include "support/Arrays.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using test::Raised;
using test::Row;

TEST(Variant, IsEmptyWhenFresh)
{
    const Variant fresh;
    EXPECT_TRUE(fresh.IsEmpty());
    EXPECT_FALSE(fresh.IsNumber() || fresh.IsText() || fresh.IsArray());
    EXPECT_EQ(Raised([&] { fresh.Number(); }), 13);
    EXPECT_EQ(Raised([&] { (void)fresh.As<double>(); }), 13);
}

TEST(Variant, TellsEveryKindOfNumber)
{
    const Variant numbers[] = {std::uint8_t{3}, std::int16_t{3}, std::int32_t{3}, 3.0F, 3.0,
                               Currency{30000}, Date{3.0}};
    for (const Variant& number : numbers) {
        EXPECT_TRUE(number.IsNumber());
        EXPECT_FALSE(number.IsEmpty() || number.IsText() || number.IsArray());
        EXPECT_EQ(number.Number(), 3.0);
    }
}

TEST(Variant, CountsCurrencyInTenThousandths)
{
    EXPECT_EQ(Variant(Currency{-9999990}).Number(), -999.999);
    EXPECT_EQ(Variant(Currency{1}).Number(), 0.0001);
}

TEST(Variant, ReadsANumberFromItsText)
{
    EXPECT_TRUE(Variant("text").IsText());
    EXPECT_FALSE(Variant("12").IsNumber());
    EXPECT_EQ(Variant(" 12.5 ").Number(), 12.5);
    EXPECT_EQ(Raised([] { Variant("twelve").Number(); }), 13);
}

TEST(Variant, TellsEveryKindOfArray)
{
    const Variant arrays[] = {Array<std::uint8_t>(1), Array<std::int16_t>(1),
                              Array<std::int32_t>(1), Array<float>(1),
                              Array<double>(1),       Array<Currency>(1),
                              Array<Date>(1),         Array<std::string>(1)};
    for (const Variant& array : arrays) {
        EXPECT_TRUE(array.IsArray());
        EXPECT_FALSE(array.IsEmpty() || array.IsText() || array.IsNumber());
        EXPECT_EQ(Raised([&] { array.Number(); }), 13);
    }
}

TEST(Variant, HoldsARefThatIsNoNumberAndNoArray)
{
    const Variant object = Ref<clsMatrix>();
    EXPECT_TRUE(object.Is<Ref<clsMatrix>>());
    EXPECT_FALSE(object.IsEmpty() || object.IsNumber() || object.IsText() || object.IsArray());
    EXPECT_EQ(Raised([&] { object.Number(); }), 13);
    EXPECT_EQ(Raised([&] { (void)object.As<Ref<clsLong>>(); }), 13);
}

TEST(Variant, HandsOutItsExactTypeOnly)
{
    const Variant sixteen = std::int16_t{5};
    EXPECT_EQ(sixteen.As<std::int16_t>(), 5);
    EXPECT_EQ(Raised([&] { (void)sixteen.As<std::int32_t>(); }), 13);
    EXPECT_EQ(Raised([&] { (void)sixteen.As<double>(); }), 13);

    const Variant array = Row<double>({1, 2});
    EXPECT_EQ(array.As<Array<double>>()(2), 2.0);
    EXPECT_EQ(Raised([&] { (void)array.As<Array<float>>(); }), 13);
}

TEST(Variant, EqualsAnotherOfTheSameTypeAndValue)
{
    EXPECT_EQ(Variant(std::int16_t{5}), Variant(std::int16_t{5}));
    EXPECT_NE(Variant(std::int16_t{5}), Variant(std::int32_t{5}));
    EXPECT_NE(Variant(5.0), Variant(5.5));
    EXPECT_EQ(Variant(), Variant());
    EXPECT_NE(Variant(), Variant(""));
}

TEST(Variant, KeepsACopyOfItsArray)
{
    auto array = Row<std::int16_t>({1, 2});
    const Variant held = array;
    array(1) = 99;
    EXPECT_EQ(held.As<Array<std::int16_t>>()(1), 1);
}

} // namespace
} // namespace lumora
