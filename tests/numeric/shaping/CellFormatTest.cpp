#include "numeric/shaping/CellFormat.h"

#include "numeric/Matrices.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>
#include <random>

namespace lumora {
namespace {

using test::ComplexMatrix;
using test::LongMatrix;
using test::Raised;
using test::RealMatrix;
using test::ShapeOf;
using test::Sized;
using test::Values;

using Texts = std::vector<std::string>;

TEST(ExponentOfTen, IsZeroOfZeroAndOfWhatIsNotFinite)
{
    EXPECT_EQ(ExponentOfTen(0.0), 0);
    EXPECT_EQ(ExponentOfTen(-0.0), 0);
    EXPECT_EQ(ExponentOfTen(std::numeric_limits<double>::infinity()), 0);
    EXPECT_EQ(ExponentOfTen(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(ExponentOfTen, StepsExactlyAtEveryPowerOfTen)
{
    for (int e = -307; e <= 308; ++e) {
        const double power = std::strtod(("1e" + std::to_string(e)).c_str(), nullptr);
        EXPECT_EQ(ExponentOfTen(power), e);
        EXPECT_EQ(ExponentOfTen(-power), e);
        EXPECT_EQ(ExponentOfTen(std::nextafter(power, 0.0)), e - 1);
        EXPECT_EQ(ExponentOfTen(std::nextafter(power, HUGE_VAL)), e);
    }
    EXPECT_EQ(ExponentOfTen(std::numeric_limits<double>::denorm_min()), -324);
    EXPECT_EQ(ExponentOfTen(0.5), -1);
    EXPECT_EQ(ExponentOfTen(9.99), 0);
    EXPECT_EQ(ExponentOfTen(999.0), 2);
}

TEST(FormatRealCell, PadsToTheDigitsOfTheMatrix)
{
    EXPECT_EQ(FormatRealCell(7, {1, 1}), " 7.0");
    EXPECT_EQ(FormatRealCell(-7, {3, 1}), "  -7.0");
    EXPECT_EQ(FormatRealCell(2.5, {3, 2}), "   2.50");
    EXPECT_EQ(FormatRealCell(-0.125, {1, 3}), "-0.125");
    EXPECT_EQ(FormatRealCell(-0.0, {1, 1}), " 0.0");
    EXPECT_EQ(FormatRealCell("12.5", {2, 1}), " 12.5");
    EXPECT_EQ(FormatRealCell(1e20, {21, 1}), " 100000000000000000000.0");
}

TEST(FormatRealCell, WritesZeroForWhatIsNotNumeric)
{
    EXPECT_EQ(FormatRealCell("abc", {1, 1}), "0");
    EXPECT_EQ(FormatRealCell({}, {2, 2}), "0");
}

TEST(FormatComplexCell, JoinsThePartsByTheSignOfTheImaginaryOne)
{
    EXPECT_EQ(FormatComplexCell(1, 2, {1, 1}), " 1.0 + 2.0i");
    EXPECT_EQ(FormatComplexCell(-1, -2, {1, 1}), "-1.0 - 2.0i");
    EXPECT_EQ(FormatComplexCell(0, -0.0, {1, 1}), " 0.0 + 0.0i");
    EXPECT_EQ(FormatComplexCell(10.5, -2, {2, 1}), " 10.5 -  2.0i");
}

TEST(MatrixToString, OfZerosIsABlankAndAZero)
{
    EXPECT_EQ(Values(*RealMatrix({{0, -0.0}, {0, 0}})->MatrixToString()),
              (Texts{" 0", " 0", " 0", " 0"}));
    EXPECT_EQ(Values(*LongMatrix({{0, 0}})->MatrixToString()), (Texts{" 0", " 0"}));
    EXPECT_EQ(Values(*ComplexMatrix({{0}})->MatrixToString()), (Texts{" 0"}));
    EXPECT_EQ(Values(*clsComplex().MatrixToString()), (Texts{" 0"}));
}

TEST(MatrixToString, OfWholeNumbersHasAPointAndOneDigitBehindIt)
{
    EXPECT_EQ(Values(*RealMatrix({{1, -20}, {300, 0}})->MatrixToString()),
              (Texts{"   1.0", " 300.0", " -20.0", "   0.0"}));
    EXPECT_EQ(Values(*LongMatrix({{-2147483647 - 1, 5}})->MatrixToString()),
              (Texts{"-2147483648.0", "          5.0"}));
    EXPECT_EQ(Values(*RealMatrix({{1e20}})->MatrixToString()), (Texts{" 100000000000000000000.0"}));
}

TEST(MatrixToString, KeepsTheShape)
{
    const auto shape = [](const auto& m) { return ShapeOf(*m->MatrixToString()); };
    EXPECT_EQ(shape(RealMatrix({{1, 2, 3}})), Sized(1, 3));
    EXPECT_EQ(shape(LongMatrix({{1}, {2}})), Sized(2, 1));
    EXPECT_EQ(shape(ComplexMatrix({{1, 2}, {3, 4}})), Sized(2, 2));
    EXPECT_EQ(ShapeOf(*clsComplex(1, 2).MatrixToString()), Sized(1, 1));
}

TEST(MatrixToString, ShowsFiveDigitsOfTheSmallest)
{
    EXPECT_EQ(Values(*RealMatrix({{12.5, 3.25}})->MatrixToString()),
              (Texts{" 12.5000", "  3.2500"}));
    EXPECT_EQ(Values(*RealMatrix({{0.5, -0.25}})->MatrixToString()),
              (Texts{" 0.50000", "-0.25000"}));
    EXPECT_EQ(Values(*RealMatrix({{1.0 / 3e5}})->MatrixToString()), (Texts{" 0.0000033333"}));
    EXPECT_EQ(Values(*RealMatrix({{1234567.5, 2000000}})->MatrixToString()),
              (Texts{" 1234567.5", " 2000000.0"}));
}

TEST(MatrixToString, LetsNoTinyElementWidenTheOthers)
{
    // A thousandth of the largest still chooses the digits, what is smaller does not.
    EXPECT_EQ(Values(*RealMatrix({{1.5, 1e-16}})->MatrixToString()),
              (Texts{" 1.5000000", " 0.0000000"}));
}

TEST(MatrixToString, HasRoomForADigitThatRoundingBrings)
{
    EXPECT_EQ(Values(*RealMatrix({{9.999999, 1.5}})->MatrixToString()),
              (Texts{" 10.0000", "  1.5000"}));
}

TEST(MatrixToString, NamesWhatIsNotFinite)
{
    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(Values(*RealMatrix({{1, -infinity, nan}})->MatrixToString()),
              (Texts{"   1.0", "  -Inf", "   NaN"}));
}

TEST(MatrixToString, OfComplexNumbersUsesOneFormatForBothParts)
{
    EXPECT_EQ(Values(*ComplexMatrix({{{1, 2}, {-10, -3}}})->MatrixToString()),
              (Texts{"  1.0 +  2.0i", "-10.0 -  3.0i"}));
    EXPECT_EQ(Values(*ComplexMatrix({{{0, 0.5}, {1, 0}}})->MatrixToString()),
              (Texts{" 0.00000 + 0.50000i", " 1.00000 + 0.00000i"}));
    EXPECT_EQ(Values(*clsComplex(-1, -2).MatrixToString(true)), (Texts{"-1.0 - 2.0i"}));
}

TEST(MatrixToString, NeedsElements)
{
    EXPECT_EQ(Raised([] { clsMatrix().MatrixToString(); }), 9);
    EXPECT_EQ(Raised([] { clsLong().MatrixToString(); }), 9);
    EXPECT_EQ(Raised([] { clsComplexMatrix().MatrixToString(); }), 9);
}

TEST(MatrixToString, AlignsAllCellsAndSpellsEveryElement)
{
    std::mt19937 random(7);
    for (int round = 0; round < 200; ++round) {
        const double scale = std::pow(10.0, static_cast<int>(random() % 24) - 12);
        std::uniform_real_distribution<double> values(-scale, scale);
        Array<double> array(3, 4);
        for (double& x : array.Span())
            x = values(random);
        clsMatrix m;
        m.SetRealAll(array);
        const Texts texts = Values(*m.MatrixToString());
        for (std::size_t k = 0; k < texts.size(); ++k) {
            EXPECT_EQ(texts[k].size(), texts[0].size()) << "round " << round;
            EXPECT_NEAR(std::strtod(texts[k].c_str(), nullptr), array.Span()[k], 0.06 * scale)
                << "round " << round;
        }
    }
}

TEST(MatrixToString, OfTheExtremesIsLongButWhole)
{
    const Texts texts = Values(*RealMatrix({{1.5, 1e308, 5e-324}})->MatrixToString());
    EXPECT_EQ(texts[1].size(), 312U); // sign, 309 digits, point and one digit
    EXPECT_EQ(std::strtod(texts[1].c_str(), nullptr), 1e308);
    const Texts tiny = Values(*RealMatrix({{5e-324}})->MatrixToString());
    EXPECT_EQ(std::strtod(tiny[0].c_str(), nullptr), 5e-324);
}

} // namespace
} // namespace lumora
