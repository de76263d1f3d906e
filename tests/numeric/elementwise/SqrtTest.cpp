#include "numeric/elementwise/Sqrt.h"

#include "numeric/Matrices.h"
#include "numeric/elementwise/RealPartOf.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>

namespace lumora::test {
namespace {

TEST(Sqrt, OfANumberIsANumberOrImaginary)
{
    EXPECT_EQ(Sqrt(9).Number(), 3.0);
    EXPECT_EQ(Sqrt(0).Number(), 0.0);
    EXPECT_EQ(Sqrt(std::string("6.25")).Number(), 2.5);
    const Ref<clsComplex> root = Sqrt(-9.0).As<Ref<clsComplex>>();
    EXPECT_EQ(root->Real, 0.0);
    EXPECT_EQ(root->Image, 3.0);
}

TEST(Sqrt, OfAComplexNumberLiesRightOfTheImaginaryAxis)
{
    for (const Complex z : {Complex(3, 4), Complex(3, -4), Complex(-3, 4), Complex(-3, -4),
                            Complex(1e8, 1), Complex(-1e8, -1), Complex(0, 2), Complex(0, -2)}) {
        const Ref<clsComplex> root = Sqrt(Scalar(z.real(), z.imag())).As<Ref<clsComplex>>();
        const Complex expected = std::sqrt(z);
        EXPECT_NEAR(root->Real, expected.real(), 4e-16 * std::abs(expected.real())) << z;
        EXPECT_NEAR(root->Image, expected.imag(), 4e-16 * std::abs(expected.imag())) << z;
    }
}

TEST(Sqrt, OfARealNumberInAComplexOneIsExactlyRealOrImaginary)
{
    for (const double x : {0.0, 4.0, 2.0, 1e-100}) {
        const Ref<clsComplex> real = Sqrt(Scalar(x, 0)).As<Ref<clsComplex>>();
        const Ref<clsComplex> imaginary = Sqrt(Scalar(-x, 0)).As<Ref<clsComplex>>();
        EXPECT_DOUBLE_EQ(real->Real, std::sqrt(x));
        EXPECT_EQ(real->Image, 0.0);
        EXPECT_EQ(imaginary->Real, 0.0);
        EXPECT_DOUBLE_EQ(imaginary->Image, std::sqrt(x));
    }
}

TEST(Sqrt, OfARealMatrixIsComplexOnceAnElementIsNegative)
{
    const Ref<clsMatrix> real = Sqrt(RealMatrix({{4, 9}, {0, 1}})).As<Ref<clsMatrix>>();
    EXPECT_EQ(Values(*real), (std::vector{2.0, 0.0, 3.0, 1.0}));
    EXPECT_EQ(ShapeOf(*real), Sized(2, 2));
    EXPECT_EQ(Values(*Sqrt(RealMatrix({{4, -9}})).As<Ref<clsComplexMatrix>>()),
              (std::vector{Complex(2, 0), Complex(0, 3)}));
}

TEST(Sqrt, OfAComplexMatrixIsOfItsClass)
{
    const Rows<Complex> rows = {{{3, 4}, {-3, -4}, -16}};
    const auto near = [](const std::vector<Complex>& values) {
        ASSERT_EQ(values.size(), 3U);
        EXPECT_NEAR(std::abs(values[0] - Complex(2, 1)), 0, 1e-15);
        EXPECT_NEAR(std::abs(values[1] - Complex(1, -2)), 0, 1e-15);
        EXPECT_NEAR(std::abs(values[2] - Complex(0, 4)), 0, 1e-15);
    };
    near(Values(*Sqrt(ComplexMatrix(rows)).As<Ref<clsComplexMatrix>>()));
    near(Values(*Sqrt(ObjectMatrix(rows)).As<Ref<clsMatrixComplex>>()));
}

TEST(Sqrt, OfAnythingElseShowsTheTitledMessageWithTheShorterRule)
{
    const ShownMessage message =
        Titled("Error using Sqrt", "Type not option.", "----------------------");
    for (const Variant& value : {Variant(LongMatrix({{4}})), Variant(TextMatrix({{"4"}})),
                                 Variant(Row({4.0})), Variant(std::string("four")), Variant()}) {
        MessageRecorder messages;
        EXPECT_EQ(Values(*Sqrt(value).As<Ref<clsMatrix>>()), std::vector{-1.0});
        EXPECT_EQ(messages.Take(), Shown{message});
        MessageRecorder refusing(MessageAnswer::Cancel);
        EXPECT_TRUE(Sqrt(value).IsEmpty());
        EXPECT_EQ(refusing.Take(), Shown{message});
    }
}

TEST(Sqrt, RaisesOverflow)
{
    EXPECT_EQ(Raised([] { Sqrt(Scalar(1e155, 1)); }), 6);
    EXPECT_EQ(Raised([] { Sqrt(ComplexMatrix({{{1e155, 1}}})); }), 6);
}

TEST(RealPartOf, IsANewRealMatrix)
{
    const Ref<clsComplexMatrix> m = ComplexMatrix({{{1, 2}, {3, 4}}, {{5, 6}, {7, 8}}});
    const Ref<clsMatrix> real = RealPartOf(*m);
    EXPECT_EQ(Values(*real), (std::vector{1.0, 5.0, 3.0, 7.0}));
    EXPECT_EQ(ShapeOf(*real), Sized(2, 2));
    real->Real(1, 1, 9);
    EXPECT_EQ(m->Real(1, 1), 1.0);
    EXPECT_EQ(Raised([] { RealPartOf(*MakeRef<clsComplexMatrix>()); }), 9);
}

} // namespace
} // namespace lumora::test
