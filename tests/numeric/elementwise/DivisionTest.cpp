#include "numeric/Matrices.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

namespace lumora::test {
namespace {

const Shown kToldOnce{Plain("Divide by zero.")};

TEST(Rdivide, OfARowByZerosShowsOneMessage)
{
    MessageRecorder messages;
    EXPECT_EQ(Values(*RealMatrix({{1, 2, 3}})->RdivideR(*RealMatrix({{1, 0, 0}}))),
              (std::vector<double>{1, 1e306, 1e306}));
    EXPECT_EQ(messages.Take(), kToldOnce);
}

TEST(Rdivide, ByZeroIsPositiveWhateverTheDividendAndTheSignOfTheZero)
{
    MessageRecorder messages;
    EXPECT_EQ(Values(*RealMatrix({{-1, -2, 0}})->RdivideR(*RealMatrix({{0.0, -0.0, 0.0}}))),
              (std::vector<double>{1e306, 1e306, 1e306}));
    EXPECT_EQ(messages.Take(), kToldOnce);
}

TEST(Rdivide, EveryCallTellsForItself)
{
    MessageRecorder messages;
    const auto ones = RealMatrix({{1, 1}});
    const auto zeros = RealMatrix({{0, 0}});
    ones->RdivideR(*zeros);
    ones->RdivideR(*zeros);
    EXPECT_EQ(messages.Take().size(), 2U);
}

TEST(Rdivide, ByTheNumberZeroGivesTheSameEverywhere)
{
    MessageRecorder messages;
    const std::vector<double> huge(4, 1e306);
    EXPECT_EQ(Values(*RealMatrix({{1, -2}, {3, 4}})->RdivideNum(0.0)), huge);
    EXPECT_EQ(Values(*LongMatrix({{1, -2}, {3, 4}})->RdivideNum(0.0)), huge);
    EXPECT_EQ(messages.Take().size(), 2U);
}

TEST(Rdivide, OfComplexElementsByZeroLeavesTheImaginaryPartZero)
{
    MessageRecorder messages;
    const auto a = ComplexMatrix({{{1, 2}, {3, 4}}});
    const std::vector<Complex> expected{{1e306, 0}, {1.5, 2}};
    EXPECT_EQ(Values(*a->RdivideR(*RealMatrix({{0, 2}}))), expected);
    EXPECT_EQ(Values(*a->RdivideC(*ComplexMatrix({{{0, 0}, {2, 0}}}))), expected);
    EXPECT_EQ(Values(*RealMatrix({{5}})->RdivideC(*ComplexMatrix({{{0, -0.0}}}))),
              (std::vector<Complex>{{1e306, 0}}));
    EXPECT_EQ(messages.Take().size(), 3U);
}

TEST(Rdivide, ByATinyComplexNumberWhoseSquaresVanishIsByZero)
{
    MessageRecorder messages;
    const auto quotient = RealMatrix({{1}})->RdivideComplexNum(clsComplex(1e-200, 1e-200));
    EXPECT_EQ(Values(*quotient), (std::vector<Complex>{{1e306, 0}}));
    EXPECT_EQ(messages.Take(), kToldOnce);
}

TEST(Rdivide, ByAHugeComplexNumberWhoseSquaresOverflowFails)
{
    MessageRecorder messages;
    EXPECT_EQ(Raised([] { RealMatrix({{1}})->RdivideComplexNum(clsComplex(1e200, 0)); }), 6);
    EXPECT_EQ(messages.Take(), Shown{});
}

TEST(Rdivide, OfAScalarByZeroIsAScalar)
{
    MessageRecorder messages;
    const auto by_number = Scalar(1, 2)->RdivideNum(0.0);
    EXPECT_EQ(by_number->Real, 1e306);
    EXPECT_EQ(by_number->Image, 0.0);
    const auto by_complex = Scalar(1, 2)->RdivideComplexNum(clsComplex());
    EXPECT_EQ(by_complex->Real, 1e306);
    EXPECT_EQ(by_complex->Image, 0.0);
    EXPECT_EQ(messages.Take(), (Shown{Plain("Divide by zero."), Plain("Divide by zero.")}));
}

TEST(Rdivide, OfElementObjectsTellsOnceToo)
{
    MessageRecorder messages;
    const auto quotient =
        ObjectMatrix({{{1, 1}, {2, 2}}})->RdivideMC(*ObjectMatrix({{{0, 0}, {0, 0}}}));
    EXPECT_EQ(Values(*quotient), (std::vector<Complex>{{1e306, 0}, {1e306, 0}}));
    EXPECT_EQ(messages.Take(), kToldOnce);
}

TEST(Rdivide, OfWholeNumbersIsNotWhole)
{
    EXPECT_EQ(Values(*LongMatrix({{1, 7}})->RdivideL(*LongMatrix({{2, -2}}))),
              (std::vector<double>{0.5, -3.5}));
}

TEST(Rdivide, TellsOfAZeroBeforeALaterOverflowAndNotAfterAnEarlierOne)
{
    MessageRecorder messages;
    const auto a = RealMatrix({{1, 1e300}});
    EXPECT_EQ(Raised([&] { a->RdivideR(*RealMatrix({{0, 1e-300}})); }), 6);
    EXPECT_EQ(messages.Take(), kToldOnce);
    const auto b = RealMatrix({{1e300, 1}});
    EXPECT_EQ(Raised([&] { b->RdivideR(*RealMatrix({{1e-300, 0}})); }), 6);
    EXPECT_EQ(messages.Take(), Shown{});
}

} // namespace
} // namespace lumora::test
