#include "numeric/order/MinMax.h"
#include "numeric/Matrices.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <cmath>

namespace lumora {
namespace {

using namespace test;

std::vector<double> Held(const Variant& result)
{
    return Values(*result.As<Ref<clsMatrix>>());
}

TEST(FreeMin, OfTwoNumbersIsTheSmaller)
{
    EXPECT_EQ(Min(2.0, 1.0), Variant(1.0));
    EXPECT_EQ(Max(2.0, 1.0), Variant(2.0));
    EXPECT_EQ(Min(std::int32_t{2}, 2.5), Variant(std::int32_t{2}));
    EXPECT_EQ(Max(std::int16_t{2}, 2.5F), Variant(2.5F));
}

TEST(FreeMin, OfTwoEqualNumbersIsTheFirst)
{
    EXPECT_EQ(Min(std::int32_t{2}, 2.0), Variant(std::int32_t{2}));
    EXPECT_EQ(Max(2.0, std::int32_t{2}), Variant(2.0));
    EXPECT_TRUE(std::signbit(Max(-0.0, 0.0).Number()));
}

TEST(FreeMin, OfANumberAndAnObjectHasTheObjectsSizes)
{
    const Ref<clsMatrix> m = RealMatrix({{1, 5}, {3, 2}});
    EXPECT_EQ(Held(Min(2.5, m)), Values(*RealMatrix({{1, 2.5}, {2.5, 2}})));
    EXPECT_EQ(Held(Max(m, 2.5)), Values(*RealMatrix({{2.5, 5}, {3, 2.5}})));
    EXPECT_EQ(ShapeOf(*Min(2.5, LongMatrix({{1}, {5}})).As<Ref<clsMatrix>>()), Sized(2, 1));
    EXPECT_EQ(Held(Min(2.5, LongMatrix({{1}, {5}}))), (std::vector<double>{1, 2.5}));
    EXPECT_EQ(Values(*m), Values(*RealMatrix({{1, 5}, {3, 2}})));
}

TEST(FreeMin, TakesTextsAndValuesThatAreNumbers)
{
    clsVariant values;
    values.Initial_matrix(1, 2);
    values.Real(1, 1, std::int32_t{1});
    values.Real(1, 2, "7.5");
    EXPECT_EQ(Held(Max(values.CopyObjectVariant(), 5.0)), (std::vector<double>{5, 7.5}));
    EXPECT_EQ(Held(Min(TextMatrix({{"1", " 9 "}}), LongMatrix({{3, 3}}))),
              (std::vector<double>{1, 3}));
}

TEST(FreeMin, OfTwoObjectsGoesElementByElement)
{
    EXPECT_EQ(Held(Min(RealMatrix({{1, 5.5}}), LongMatrix({{2, 5}}))), (std::vector<double>{1, 5}));
    EXPECT_EQ(Held(Max(LongMatrix({{2}, {5}}), RealMatrix({{1}, {5.5}}))),
              (std::vector<double>{2, 5.5}));
    EXPECT_TRUE(std::signbit(Held(Min(RealMatrix({{-0.0}}), RealMatrix({{0.0}})))[0]));
}

TEST(FreeMin, OfOtherSizesShowsItsTitle)
{
    const Variant square = RealMatrix({{1, 2}, {3, 4}});
    for (const Variant& other : {Variant(RealMatrix({{1}})), Variant(LongMatrix({{1, 2, 3, 4}}))}) {
        MessageRecorder ok;
        EXPECT_EQ(Held(Min(square, other)), std::vector<double>{-1});
        EXPECT_EQ(Held(Max(other, square)), std::vector<double>{-1});
        EXPECT_EQ(ok.Take(), (Shown{Titled("Error using Min.", " Matrix dimensions must agree."),
                                    Titled("Error using Max.", " Matrix dimensions must agree.")}));
        MessageRecorder cancel(MessageAnswer::Cancel);
        EXPECT_TRUE(Min(square, other).IsEmpty());
        EXPECT_TRUE(Max(square, other).IsEmpty());
        EXPECT_EQ(cancel.shown.size(), 2U);
    }
}

TEST(FreeMin, StopsAtWhatIsNoNumber)
{
    const Variant one = RealMatrix({{1}});
    for (const Variant& other : {Variant("3"), Variant(), Variant(Row<double>({1})),
                                 Variant(Scalar(1, 2)), Variant(ComplexMatrix({{1}})),
                                 Variant(ObjectMatrix({{1}})), Variant(TextMatrix({{"one"}}))}) {
        EXPECT_EQ(Raised([&] { Min(other, 1.0); }), 13);
        EXPECT_EQ(Raised([&] { Max(1.0, other); }), 13);
        EXPECT_EQ(Raised([&] { Min(one, other); }), 13);
        EXPECT_EQ(Raised([&] { Max(other, one); }), 13);
    }
    EXPECT_EQ(Raised([] { Min(Ref<clsMatrix>(), 1.0); }), 91);
    EXPECT_EQ(Raised([] { Min(MakeRef<clsMatrix>(), 1.0); }), 9);
}

TEST(MagnitudesDiffer, ComparesSquaresWithoutTolerance)
{
    EXPECT_FALSE(MagnitudesDiffer(3, 4, -5, 0));
    EXPECT_TRUE(MagnitudesDiffer(3, 4, 5.5, 0));
    EXPECT_TRUE(MagnitudesDiffer(3, 4, 4.5, 0));
    EXPECT_TRUE(MagnitudesDiffer(0, 0, 1e-160, 0));
    // The square of 1e-170 is zero.
    EXPECT_FALSE(MagnitudesDiffer(0, 0, 1e-170, 0));
}

TEST(MagnitudesDiffer, IsAlwaysTrueUnderAPositiveTolerance)
{
    EXPECT_TRUE(MagnitudesDiffer(3, 4, 5, 0, 1e-9));
    EXPECT_TRUE(MagnitudesDiffer(3, 4, 5, 0, 100));
    EXPECT_TRUE(MagnitudesDiffer(0, 0, 0, 0, 1e-300));
    EXPECT_TRUE(MagnitudesDiffer(1, 0, 9, 0, 0.5));
    EXPECT_TRUE(MagnitudesDiffer(9, 0, 1, 0, 0.5));
}

TEST(MagnitudesDiffer, MakesABandOfANegativeTolerance)
{
    EXPECT_FALSE(MagnitudesDiffer(2, 0, 2.1, 0, -0.5));
    EXPECT_FALSE(MagnitudesDiffer(2.1, 0, 2, 0, -0.5));
    EXPECT_TRUE(MagnitudesDiffer(2, 0, 2.5, 0, -0.5));
    EXPECT_TRUE(MagnitudesDiffer(2.5, 0, 2, 0, -0.5));
}

TEST(MagnitudesDiffer, RaisesError6WhereASquareOverflows)
{
    EXPECT_EQ(Raised([] { MagnitudesDiffer(1e200, 0, 1, 0); }), 6);
    EXPECT_EQ(Raised([] { MagnitudesDiffer(1, 0, 1e154, 1e154); }), 6);
    const double infinite = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(MagnitudesDiffer(infinite, 0, 0, infinite));
}

} // namespace
} // namespace lumora
