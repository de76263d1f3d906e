#include "numeric/Matrices.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace lumora::test {
namespace {

constexpr double kHuge = 1e306;

std::vector<double> RealValues(const Variant& result)
{
    return Values(*result.As<Ref<clsMatrix>>());
}
std::vector<Complex> ComplexValues(const Variant& result)
{
    return Values(*result.As<Ref<clsComplexMatrix>>());
}
std::vector<Complex> ObjectValues(const Variant& result)
{
    return Values(*result.As<Ref<clsMatrixComplex>>());
}
Complex ScalarValue(const Variant& result)
{
    const Ref<clsComplex> z = result.As<Ref<clsComplex>>();
    return {z->Real, z->Image};
}

TEST(Power, OfRealElementsIsRealForPositiveBasesAndWholeExponents)
{
    EXPECT_EQ(RealValues(RealMatrix({{4, -3, 0}})->Power(2)), (std::vector{16.0, 9.0, 0.0}));
    EXPECT_EQ(RealValues(RealMatrix({{4, 9, 0}})->Power(0.5)), (std::vector{2.0, 3.0, 0.0}));
    EXPECT_EQ(RealValues(RealMatrix({{-2}})->Power(-3)), std::vector{-0.125});
    EXPECT_EQ(RealValues(LongMatrix({{2, -2}})->Power(-1)), (std::vector{0.5, -0.5}));
    EXPECT_EQ(RealValues(RealMatrix({{-2, 0, 5}})->Power(0)), (std::vector{1.0, 1.0, 1.0}));
}

TEST(Power, IsComplexInAllElementsOnceANegativeBaseMeetsAFraction)
{
    const auto values = ComplexValues(RealMatrix({{4, -4, 0}})->Power(0.5));
    EXPECT_EQ(values[0], Complex(2, 0));
    EXPECT_NEAR(std::abs(values[1] - Complex(0, 2)), 0, 1e-14);
    EXPECT_EQ(values[2], Complex(0, 0));
    // One negative base with a whole exponent of its own stays real.
    EXPECT_EQ(RealValues(RealMatrix({{-2, 2}})->Power(RealMatrix({{3, 0.5}}))),
              (std::vector{-8.0, std::sqrt(2.0)}));
}

TEST(Power, TakesElementByElement)
{
    const Ref<clsMatrix> bases = RealMatrix({{1, 2}, {3, 4}});
    const Ref<clsLong> exponents = LongMatrix({{5, 4}, {3, 2}});
    const Variant power = bases->Power(exponents);
    EXPECT_EQ(RealValues(power), (std::vector{1.0, 27.0, 16.0, 16.0}));
    EXPECT_EQ(ShapeOf(*power.As<Ref<clsMatrix>>()), Sized(2, 2));
}

TEST(Power, TakesEveryKindOfOperand)
{
    const Ref<clsMatrix> m = RealMatrix({{2, 3}});
    EXPECT_EQ(RealValues(m->Power(2)), (std::vector{4.0, 9.0}));
    EXPECT_EQ(RealValues(m->Power(std::string("2"))), (std::vector{4.0, 9.0}));
    EXPECT_EQ(RealValues(m->Power(RealMatrix({{2}}))), (std::vector{4.0, 9.0}));
    EXPECT_EQ(RealValues(m->Power(LongMatrix({{2, 3}}))), (std::vector{4.0, 27.0}));
    EXPECT_EQ(RealValues(m->Power(Row({2.0, 3.0}))), (std::vector{4.0, 27.0}));
    EXPECT_EQ(RealValues(m->Power(Row({-1.0, 0.5}))), (std::vector{0.5, std::sqrt(3.0)}));
    EXPECT_EQ(RealValues(m->Power(Row<std::int16_t>({2, 3}))), (std::vector{4.0, 27.0}));
    const std::vector<Complex> squares = {4, 9};
    EXPECT_EQ(ComplexValues(m->Power(Scalar(2, 0))), squares);
    EXPECT_EQ(ComplexValues(m->Power(ComplexMatrix({{2, 2}}))), squares);
    EXPECT_EQ(ComplexValues(m->Power(ObjectMatrix({{2}}))), squares);
    EXPECT_EQ(ComplexValues(m->Power(Row({Scalar(2, 0), Scalar(2, 0)}))), squares);
}

TEST(Power, OfAComplexClassIsOfThatClass)
{
    const std::vector<Complex> expected = {Complex(-3, 4), Complex(0, -2)};
    const Rows<Complex> rows = {{{1, 2}, {1, -1}}};
    const auto near = [&](const std::vector<Complex>& values) {
        ASSERT_EQ(values.size(), 2U);
        EXPECT_NEAR(std::abs(values[0] - expected[0]), 0, 1e-14);
        EXPECT_NEAR(std::abs(values[1] - expected[1]), 0, 1e-14);
    };
    near(ComplexValues(ComplexMatrix(rows)->Power(2)));
    near(ComplexValues(ComplexMatrix(rows)->Power(RealMatrix({{2, 2}}))));
    near(ComplexValues(ComplexMatrix(rows)->Power(ObjectMatrix({{2, 2}}))));
    near(ComplexValues(ObjectMatrix(rows)->Power(2)));
    near(ComplexValues(ObjectMatrix(rows)->Power(LongMatrix({{2}}))));
    near(ComplexValues(ObjectMatrix(rows)->Power(ComplexMatrix({{2, 2}}))));
    near(ObjectValues(ObjectMatrix(rows)->Power(ObjectMatrix({{2, 2}}))));
    near(ObjectValues(ObjectMatrix(rows)->Power(ObjectMatrix({{2}}))));
}

TEST(Power, OfAScalarTakesTheShapeOfItsOperand)
{
    const Ref<clsComplex> two = Scalar(2, 0);
    EXPECT_EQ(ScalarValue(two->Power(3)), Complex(8, 0));
    EXPECT_EQ(ScalarValue(two->Power(Scalar(-1, 0))), Complex(0.5, 0));
    const Variant table = two->Power(RealMatrix({{1, 2}, {3, 4}}));
    EXPECT_EQ(ComplexValues(table), (std::vector<Complex>{2, 8, 4, 16}));
    EXPECT_EQ(ShapeOf(*table.As<Ref<clsComplexMatrix>>()), Sized(2, 2));
    EXPECT_EQ(ComplexValues(two->Power(LongMatrix({{3}}))), std::vector<Complex>{8});
    EXPECT_EQ(ComplexValues(two->Power(Row({1.0, 2.0}))), (std::vector<Complex>{2, 4}));
    EXPECT_EQ(ComplexValues(two->Power(Row({0.0, -1.0}))), (std::vector<Complex>{1, 0.5}));
    EXPECT_EQ(ComplexValues(two->Power(ObjectMatrix({{1, 2}}))), (std::vector<Complex>{2, 4}));
}

TEST(Power, OfComplexExponentsFollowsTheLogarithm)
{
    // i^i = exp(-pi/2); e^(i pi) = -1; (-1)^i = exp(-pi).
    const double pi = 2 * std::acos(0.0);
    const auto near = [](const Variant& value, Complex expected) {
        EXPECT_LT(std::abs(ScalarValue(value) - expected), 1e-14 * (1.0 + std::abs(expected)));
    };
    near(Scalar(0, 1)->Power(Scalar(0, 1)), std::exp(-pi / 2));
    near(Scalar(std::exp(1.0), 0)->Power(Scalar(0, pi)), -1);
    near(Scalar(-1, 0)->Power(Scalar(0, 1)), std::exp(-pi));
    near(Scalar(1, 2)->Power(Scalar(0.5, -1.5)), std::pow(Complex(1, 2), Complex(0.5, -1.5)));
    near(Scalar(-1, -2)->Power(Scalar(-0.5, 1.5)), std::pow(Complex(-1, -2), Complex(-0.5, 1.5)));
}

TEST(Power, OfZeroIsZeroOneOrDividesByZero)
{
    MessageRecorder messages;
    EXPECT_EQ(RealValues(RealMatrix({{0, 0}})->Power(RealMatrix({{2, 0}}))),
              (std::vector{0.0, 1.0}));
    EXPECT_EQ(ScalarValue(Scalar(0, 0)->Power(Scalar(1, 5))), Complex(0, 0));
    EXPECT_EQ(ScalarValue(Scalar(0, 0)->Power(Scalar(0, 0))), Complex(1, 0));
    EXPECT_EQ(messages.Take(), Shown());
    EXPECT_EQ(RealValues(RealMatrix({{0, 2, 0}})->Power(-1)), (std::vector{kHuge, 0.5, kHuge}));
    EXPECT_EQ(messages.Take(), Shown{Plain("Divide by zero.")});
    EXPECT_EQ(RealValues(RealMatrix({{-0.0}})->Power(-1)), std::vector{kHuge});
    EXPECT_EQ(messages.Take(), Shown{Plain("Divide by zero.")});
    EXPECT_EQ(ScalarValue(Scalar(0, 0)->Power(Scalar(0, 1))), Complex(kHuge, 0));
    EXPECT_EQ(messages.Take(), Shown{Plain("Divide by zero.")});
    EXPECT_EQ(ComplexValues(ComplexMatrix({{0, 0}})->Power(Scalar(-1, 1))),
              (std::vector<Complex>{kHuge, kHuge}));
    EXPECT_EQ(messages.Take(), Shown{Plain("Divide by zero.")});
}

TEST(Power, WantsTheSizesOfItsReceiver)
{
    MessageRecorder messages;
    const Variant row = RealMatrix({{1, 2, 3}});
    EXPECT_TRUE(RealMatrix({{1, 2}})->Power(row).IsEmpty());
    EXPECT_TRUE(RealMatrix({{1}, {2}, {3}})->Power(row).IsEmpty());
    EXPECT_TRUE(RealMatrix({{2}})->Power(row).IsEmpty());
    EXPECT_TRUE(ComplexMatrix({{2, 1}})->Power(Row({1.0, 2.0, 3.0})).IsEmpty());
    EXPECT_TRUE(ObjectMatrix({{2, 1}})->Power(row).IsEmpty());
    EXPECT_EQ(messages.shown, Shown(5, Plain("Matrix dimensions must agree.")));
}

TEST(Power, RefusesOtherOperands)
{
    MessageRecorder messages;
    const Variant text = TextMatrix({{"1"}});
    EXPECT_TRUE(RealMatrix({{1}})->Power(text).IsEmpty());
    EXPECT_TRUE(LongMatrix({{1}})->Power(Variant()).IsEmpty());
    EXPECT_TRUE(ComplexMatrix({{1}})->Power(std::string("two")).IsEmpty());
    EXPECT_TRUE(ObjectMatrix({{1}})->Power(Row<std::string>({"a", "b"})).IsEmpty());
    EXPECT_EQ(messages.Take(), Shown(4, Plain("Incorrect type of object.")));
    EXPECT_TRUE(Scalar(1, 1)->Power(text).IsEmpty());
    EXPECT_TRUE(Scalar(1, 1)->Power(std::string("two")).IsEmpty());
    EXPECT_EQ(messages.Take(), Shown(2, Plain("Parametr must be number or cls")));
}

TEST(Power, StopsWhereAnOperandsTagBeliesItsClass)
{
    const Ref<clsMatrix> disguised = RealMatrix({{2}});
    disguised->TypeOfMatrix = "c";
    EXPECT_EQ(Raised([&] { RealMatrix({{2}})->Power(disguised); }), 13);
}

TEST(Power, RaisesOverflowButPassesInfinities)
{
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(Raised([] { RealMatrix({{10}})->Power(400); }), 6);
    EXPECT_EQ(Raised([] { Scalar(10, 0)->Power(400); }), 6);
    EXPECT_EQ(Raised([] { Scalar(10, 1)->Power(400); }), 6);
    EXPECT_EQ(Raised([] { ObjectMatrix({{{10, 1}}})->Power(ObjectMatrix({{400}})); }), 6);
    EXPECT_EQ(RealValues(RealMatrix({{infinity, -infinity}})->Power(3)),
              (std::vector{infinity, -infinity}));
}

} // namespace
} // namespace lumora::test
