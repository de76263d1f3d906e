#include "numeric/Matrices.h"
#include "numeric/elementwise/AbsAny.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

namespace lumora::test {
namespace {

std::vector<double> ArrayValues(const Variant& array)
{
    return Elements(array.As<Array<double>>());
}

TEST(AbsM, GivesMagnitudesAsFloats)
{
    EXPECT_EQ(Values(*RealMatrix({{-1.5, 0}, {2, -0.0}})->AbsM()),
              (std::vector{1.5, 2.0, 0.0, 0.0}));
    EXPECT_EQ(Values(*LongMatrix({{std::numeric_limits<std::int32_t>::min(), 3}})->AbsM()),
              (std::vector{2147483648.0, 3.0}));
    EXPECT_EQ(Values(*ComplexMatrix({{{3, 4}, {-5, 12}}})->AbsM()), (std::vector{5.0, 13.0}));
    EXPECT_EQ(Values(*ObjectMatrix({{{3, -4}, {0, 0}}})->AbsM()), (std::vector{5.0, 0.0}));
    EXPECT_EQ(Scalar(-8, 6)->AbsM(), 10.0);
}

TEST(AbsM, KeepsTheShape)
{
    EXPECT_EQ(ShapeOf(*ComplexMatrix({{1, 2}, {3, 4}, {5, 6}})->AbsM()), Sized(3, 2));
    EXPECT_EQ(ShapeOf(*ObjectMatrix({{1, 2}})->AbsM()), Sized(1, 2));
}

TEST(AbsM, RaisesOverflowOfTheSquares)
{
    EXPECT_EQ(Raised([] { ComplexMatrix({{{1e155, 0}}})->AbsM(); }), 6);
    EXPECT_EQ(Raised([] { ObjectMatrix({{{0, 1e155}}})->AbsM(); }), 6);
    EXPECT_EQ(Raised([] { MakeRef<clsMatrix>()->AbsM(); }), 9);
}

TEST(AbsAny, CallsTheObjectsOwn)
{
    EXPECT_EQ(Values(*AbsAny(LongMatrix({{-2, 3}})).As<Ref<clsMatrix>>()), (std::vector{2.0, 3.0}));
    EXPECT_EQ(Values(*AbsAny(RealMatrix({{-2.5}})).As<Ref<clsMatrix>>()), std::vector{2.5});
    EXPECT_EQ(Values(*AbsAny(ComplexMatrix({{{3, 4}}})).As<Ref<clsMatrix>>()), std::vector{5.0});
    EXPECT_EQ(Values(*AbsAny(ObjectMatrix({{{3, 4}}})).As<Ref<clsMatrix>>()), std::vector{5.0});
    EXPECT_EQ(AbsAny(Scalar(3, 4)).Number(), 5.0);
}

TEST(AbsAny, TakesArraysOfNumbersAndOfComplexElements)
{
    EXPECT_EQ(ArrayValues(AbsAny(Row({-1.5, 2.0}))), (std::vector{1.5, 2.0}));
    EXPECT_EQ(ArrayValues(AbsAny(Row<std::int16_t>({-32768, 2}))), (std::vector{32768.0, 2.0}));
    EXPECT_EQ(ArrayValues(AbsAny(Row({Scalar(3, 4), Scalar(0, -2)}))), (std::vector{5.0, 2.0}));
    EXPECT_EQ(ArrayValues(AbsAny(Row<std::string>({"3 + 4i", "-2i"}))), (std::vector{5.0, 2.0}));
}

TEST(AbsAny, KeepsTheBoundsOfAnArray)
{
    Array<double> array;
    array.ReDim({0, 1}, {-1, 1});
    array(0, -1) = -3;
    const Variant magnitudes = AbsAny(array);
    EXPECT_EQ(magnitudes.As<Array<double>>()(0, -1), 3.0);
    EXPECT_EQ(magnitudes.As<Array<double>>().LBound(2), -1);
}

TEST(AbsAny, TakesNumbersAndTextsThatSpellOne)
{
    EXPECT_EQ(AbsAny(-2.5).Number(), 2.5);
    EXPECT_EQ(AbsAny(std::int16_t{-32768}).Number(), 32768.0);
    EXPECT_EQ(AbsAny(std::string("-7")).Number(), 7.0);
}

TEST(AbsAny, RefusesTheRestInThreeWays)
{
    MessageRecorder messages;
    EXPECT_TRUE(AbsAny(TextMatrix({{"1"}})).IsEmpty());
    EXPECT_EQ(messages.Take(), Shown{Plain("Incorrect Type of object.")});
    EXPECT_TRUE(AbsAny(Row<std::string>({"one", "two"})).IsEmpty());
    EXPECT_EQ(messages.Take(), Shown{Plain("Incorrect type of Array.")});
    EXPECT_TRUE(AbsAny(std::string("one")).IsEmpty());
    EXPECT_TRUE(AbsAny(Variant()).IsEmpty());
    EXPECT_EQ(messages.Take(), Shown(2, Plain("Incorrect type.")));
}

} // namespace
} // namespace lumora::test
