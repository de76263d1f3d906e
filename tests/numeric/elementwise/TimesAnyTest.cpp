#include "numeric/elementwise/TimesAny.h"
#include "numeric/Matrices.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

namespace lumora::test {
namespace {

TEST(TimesAny, LetsTheLeftObjectDecide)
{
    const Variant b = RealMatrix({{2, 3}});
    EXPECT_TRUE(TimesAny(RealMatrix({{1, 2}}), b).Is<Ref<clsMatrix>>());
    EXPECT_TRUE(TimesAny(LongMatrix({{1, 2}}), b).Is<Ref<clsMatrix>>());
    EXPECT_TRUE(TimesAny(LongMatrix({{1, 2}}), LongMatrix({{3, 4}})).Is<Ref<clsLong>>());
    EXPECT_TRUE(TimesAny(ComplexMatrix({{1, 2}}), b).Is<Ref<clsComplexMatrix>>());
    EXPECT_TRUE(TimesAny(ObjectMatrix({{1, 2}}), b).Is<Ref<clsComplexMatrix>>());
    EXPECT_TRUE(TimesAny(Scalar(1, 1), 2.0).Is<Ref<clsComplex>>());
}

TEST(TimesAny, WrapsAnArrayByItsElements)
{
    EXPECT_EQ(Values(*TimesAny(Row<double>({1, 2}), 3.0).As<Ref<clsMatrix>>()),
              (std::vector<double>{3, 6}));
    EXPECT_TRUE(TimesAny(Row<double>({1, 2}), LongMatrix({{3, 4}})).Is<Ref<clsLong>>());
    EXPECT_TRUE(TimesAny(Row<double>({1.5, 2}), LongMatrix({{3, 4}})).Is<Ref<clsMatrix>>());
    EXPECT_TRUE(TimesAny(Row<std::string>({"i"}), 3.0).Is<Ref<clsComplexMatrix>>());
    MessageRecorder messages;
    EXPECT_TRUE(TimesAny(Row<std::string>({"one"}), 3.0).IsEmpty());
    EXPECT_EQ(messages.Take(), Shown{});
}

TEST(TimesAny, OfANumberAsksTheOtherOperand)
{
    EXPECT_EQ(TimesAny(2.0, 3.5).As<double>(), 7.0);
    EXPECT_EQ(TimesAny(std::int16_t{2}, std::string("3")).As<double>(), 6.0);
    EXPECT_EQ(Values(*TimesAny(2.0, RealMatrix({{3, 4}})).As<Ref<clsMatrix>>()),
              (std::vector<double>{6, 8}));
    EXPECT_EQ(Values(*TimesAny(2.0, Row<double>({3, 4.5})).As<Ref<clsMatrix>>()),
              (std::vector<double>{6, 9}));
    EXPECT_EQ(Raised([] { TimesAny(1e200, 1e200); }), 6);
}

TEST(TimesAny, SaysWhatItCannotMultiply)
{
    MessageRecorder messages;
    EXPECT_TRUE(TimesAny(TextMatrix({{"1"}}), 2.0).IsEmpty());
    EXPECT_EQ(messages.Take(), Shown{Plain("Incorrect Type of object.")});
    EXPECT_TRUE(TimesAny(2.0, Variant()).IsEmpty());
    EXPECT_TRUE(TimesAny(2.0, std::string("two")).IsEmpty());
    EXPECT_EQ(messages.Take(), (Shown{Plain("Incorrect type."), Plain("Incorrect type.")}));
    EXPECT_TRUE(TimesAny(Variant(), 2.0).IsEmpty());
    EXPECT_TRUE(TimesAny(std::string("two"), 2.0).IsEmpty());
    EXPECT_EQ(messages.Take(), Shown{});
}

} // namespace
} // namespace lumora::test
