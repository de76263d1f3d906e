#include "numeric/linear/PolynomialRoots.h"
#include "numeric/Matrices.h"
#include "support/EdgeNumbers.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

namespace lumora {
namespace {

using namespace test;

using Many = std::vector<Complex>;
using Wide = std::complex<long double>;

/// The coefficients of the polynomial with these roots, multiplied out with digits to spare.
Many Product(const Many& roots)
{
    std::vector<Wide> p{1.0L};
    for (const Complex& root : roots) {
        p.push_back(0.0L);
        for (std::size_t k = p.size() - 1; k > 0; --k)
            p[k] -= p[k - 1] * Wide(root);
    }
    return {p.begin(), p.end()};
}

Variant AsRow(const Many& coefficients)
{
    const Ref<clsComplexMatrix> m = MakeRef<clsComplexMatrix>();
    m->Initial_matrix(1, static_cast<std::int32_t>(coefficients.size()));
    std::int32_t k = 0;
    for (const Complex& z : coefficients)
        m->SetComplex(1, ++k, z.real(), z.imag());
    return m;
}

/// How far the roots are off the expected ones, each beside its magnitude.
double Error(Many expected, const Many& roots)
{
    EXPECT_EQ(roots.size(), expected.size());
    double error = 0.0;
    for (const Complex& z : roots) {
        const auto nearest =
            std::min_element(expected.begin(), expected.end(), [z](Complex a, Complex b) {
                return std::abs(a - z) < std::abs(b - z);
            });
        error = std::max(error, std::abs(*nearest - z) / std::abs(*nearest));
        expected.erase(nearest);
    }
    return error;
}

double ErrorOn(const Many& roots)
{
    return Error(roots, Values(*PolynomialRoots(AsRow(Product(roots)))));
}

/// The polynomial at z beside the sum of its terms' magnitudes, in roundings.
double Residual(const Many& coefficients, Complex z)
{
    Wide value = 0.0L;
    long double size = 0.0L;
    for (const Complex& c : coefficients) {
        value = value * Wide(z) + Wide(c);
        size = size * std::abs(Wide(z)) + std::abs(Wide(c));
    }
    return static_cast<double>(std::abs(value) / size) / kEpsilon;
}

Many NoisyCoefficients(std::size_t degree, bool real, std::mt19937& generator)
{
    std::normal_distribution<double> value;
    Many coefficients(degree + 1);
    for (Complex& c : coefficients)
        c = {value(generator), real ? 0.0 : value(generator)};
    return coefficients;
}

TEST(PolynomialRoots, AreARowAsLongAsTheDegree)
{
    const Ref<clsComplexMatrix> roots = PolynomialRoots(RealMatrix({{1, -6, 11, -6}}));
    EXPECT_EQ(ShapeOf(*roots), Sized(1, 3));
    EXPECT_LE(Error({1, 2, 3}, Values(*roots)), 8 * kEpsilon);
    for (const Complex& z : Values(*roots))
        EXPECT_EQ(z.imag(), 0.0);
}

TEST(PolynomialRoots, TakeAColumnToo)
{
    EXPECT_LE(Error({-2, 5}, Values(*PolynomialRoots(RealMatrix({{2}, {-6}, {-20}})))),
              4 * kEpsilon);
    EXPECT_EQ(Values(*PolynomialRoots(ComplexMatrix({{{0, 1}}, {{2, 0}}}))), (Many{{0, 2}}));
}

TEST(PolynomialRoots, OfDegreeOneAreAQuotient)
{
    EXPECT_EQ(Values(*PolynomialRoots(RealMatrix({{4, -10}}))), Many{2.5});
    EXPECT_LE(Error({{1.0, -1.0}}, Values(*PolynomialRoots(ComplexMatrix({{{1, 1}, -2}})))),
              kEpsilon);
}

TEST(PolynomialRoots, OfARealPolynomialComeInConjugatePairs)
{
    EXPECT_LE(Error({{0, 1}, {0, -1}}, Values(*PolynomialRoots(RealMatrix({{1, 0, 1}})))),
              kEpsilon);
    EXPECT_LE(ErrorOn({{1, 2}, {1, -2}, {-0.5, 0.1}, {-0.5, -0.1}, 7}), 16 * kEpsilon);
}

TEST(PolynomialRoots, ComeInTheOrderInWhichTheyAreFound)
{
    // Of a quadratic the search ends at the root nearest to its start, which is 0.1 + 0.1i.
    const Many roots = Values(*PolynomialRoots(AsRow(Product({{1, 1}, 0.2}))));
    ASSERT_EQ(roots.size(), 2U);
    EXPECT_LE(std::abs(roots[0] - Complex(0.2, 0.0)), 4 * kEpsilon);
    EXPECT_LE(std::abs(roots[1] - Complex(1.0, 1.0)), 4 * kEpsilon);
}

TEST(PolynomialRoots, AreFoundFromTheCircleWhereTheFirstStartFails)
{
    // All derivatives but the last vanish at 0.1 + 0.1i, or nearly: the first step leads nowhere.
    const Complex start(0.1, 0.1);
    Many roots;
    for (int k = 0; k < 5; ++k)
        roots.push_back(start + 2.0 * std::polar(1.0, 0.3 + 2.0 * std::numbers::pi * k / 5));
    EXPECT_LE(ErrorOn(roots), 16 * kEpsilon);
}

TEST(PolynomialRoots, OfComplexCoefficients)
{
    EXPECT_LE(ErrorOn({{1, 1}, {-2, 0.5}, {0, -3}, {4, 4}}), 16 * kEpsilon);
    // z^2 = 2i
    EXPECT_LE(Error({{1, 1}, {-1, -1}}, Values(*PolynomialRoots(ComplexMatrix({{1, 0, {0, -2}}})))),
              2 * kEpsilon);
}

TEST(PolynomialRoots, OfUnityLieOnTheCircle)
{
    for (const int degree : {2, 3, 4, 7, 12, 20}) {
        Many expected;
        for (int k = 0; k < degree; ++k)
            expected.push_back(std::polar(1.0, 2.0 * std::numbers::pi * k / degree));
        Many coefficients(static_cast<std::size_t>(degree) + 1);
        coefficients.front() = 1.0;
        coefficients.back() = -1.0;
        EXPECT_LE(Error(expected, Values(*PolynomialRoots(AsRow(coefficients)))), 16 * kEpsilon)
            << degree;
    }
}

TEST(PolynomialRoots, ThatOccurSeveralTimesAreAsCloseAsDoublesTell)
{
    for (int m = 1; m <= 4; ++m) {
        const Many alone(static_cast<std::size_t>(m), Complex(1.0));
        EXPECT_LE(ErrorOn(alone), 2 * std::pow(kEpsilon, 1.0 / m)) << m;
        Many beside = alone;
        beside.insert(beside.end(), {{-2, 1}, {-2, -1}, 4});
        EXPECT_LE(ErrorOn(beside), 8 * std::pow(kEpsilon, 1.0 / m)) << m;
        Many complex(static_cast<std::size_t>(m), Complex(-1.0, 2.0));
        complex.insert(complex.end(), {{3, 1}, -0.5});
        EXPECT_LE(ErrorOn(complex), 8 * std::pow(kEpsilon, 1.0 / m)) << m;
    }
}

TEST(PolynomialRoots, OfTwoMultipleRootsStayApart)
{
    EXPECT_LE(ErrorOn({1, 1, 1, -2, -2, -2}), 8 * std::cbrt(kEpsilon));
    EXPECT_LE(ErrorOn({{0, 1}, {0, 1}, {0, -1}, {0, -1}}), 8 * std::sqrt(kEpsilon));
}

TEST(PolynomialRoots, UpToDegreeTwentyAreZerosToRounding)
{
    std::mt19937 generator(51);
    for (std::size_t degree = 1; degree <= 20; ++degree)
        for (int time = 0; time < 10; ++time) {
            const Many coefficients = NoisyCoefficients(degree, time % 2 == 0, generator);
            const Many roots = Values(*PolynomialRoots(AsRow(coefficients)));
            EXPECT_EQ(roots.size(), degree);
            for (const Complex& z : roots)
                EXPECT_LE(Residual(coefficients, z), 4.0)
                    << "degree " << degree << ", time " << time;
        }
}

TEST(PolynomialRoots, MultiplyOutToThePolynomial)
{
    // Each root for itself could be one and the same.
    std::mt19937 generator(52);
    for (std::size_t degree = 1; degree <= 20; ++degree) {
        const Many coefficients = NoisyCoefficients(degree, false, generator);
        const Many product = Product(Values(*PolynomialRoots(AsRow(coefficients))));
        double largest = 0.0;
        for (const Complex& c : coefficients)
            largest = std::max(largest, std::abs(c));
        for (std::size_t k = 0; k <= degree; ++k)
            EXPECT_LE(std::abs(product[k] * coefficients[0] - coefficients[k]), 1e-11 * largest);
    }
}

TEST(PolynomialRoots, OfWilkinsonsPolynomialAreZerosToRounding)
{
    Many whole;
    for (int k = 1; k <= 20; ++k)
        whole.emplace_back(k);
    const Many coefficients = Product(whole);
    for (const Complex& z : Values(*PolynomialRoots(AsRow(coefficients))))
        EXPECT_LE(Residual(coefficients, z), 4.0);
    whole.resize(10);
    EXPECT_LE(ErrorOn(whole), 1e-9);
}

TEST(PolynomialRoots, FarFromOneAreFoundInAnotherUnit)
{
    for (const double unit : {1e-9, 1e6, 1e30})
        EXPECT_LE(ErrorOn({1 * unit, -2 * unit, {3 * unit, unit}}), 16 * kEpsilon) << unit;
    EXPECT_LE(Error({1, 1e12}, Values(*PolynomialRoots(RealMatrix({{1, -1e12 - 1, 1e12}})))),
              4 * kEpsilon);
    // z^2 + 1e300 z + 1e600, whose roots are 1e300 times those of z^2 + z + 1.
    const Complex third = std::polar(1e300, 2.0 * std::numbers::pi / 3.0);
    EXPECT_LE(Error({third, std::conj(third)},
                    Values(*PolynomialRoots(RealMatrix({{1e-300, 1, 1e300}})))),
              8 * kEpsilon);
}

TEST(PolynomialRoots, DoNotChangeWithAFactor)
{
    for (const double factor : {1e-200, -3.0, 1e200})
        EXPECT_LE(Error({1, 2, -4}, Values(*PolynomialRoots(
                                        RealMatrix({{factor, factor, -10 * factor, 8 * factor}})))),
                  16 * kEpsilon);
}

TEST(PolynomialRoots, OfZeroStandFirst)
{
    const Many roots = Values(*PolynomialRoots(RealMatrix({{1, -3, 2, 0, 0}})));
    ASSERT_EQ(roots.size(), 4U);
    EXPECT_EQ(roots[0], Complex());
    EXPECT_EQ(roots[1], Complex());
    EXPECT_LE(Error({1, 2}, {roots[2], roots[3]}), 4 * kEpsilon);
    EXPECT_EQ(Values(*PolynomialRoots(RealMatrix({{5, 0, 0, 0}}))), (Many{0, 0, 0}));
    EXPECT_EQ(Values(*PolynomialRoots(ComplexMatrix({{{0, 2}, 0}}))), Many{0});
}

TEST(PolynomialRoots, DropZerosInFront)
{
    EXPECT_LE(Error({1, 2}, Values(*PolynomialRoots(RealMatrix({{0, 0, -0.0, 1, -3, 2}})))),
              4 * kEpsilon);
}

TEST(PolynomialRoots, HaveNoTracesOfRounding)
{
    // A part below 1e-14 is 0, whatever it comes from.
    EXPECT_EQ(Values(*PolynomialRoots(RealMatrix({{1, -1e-15}}))), Many{0});
    EXPECT_EQ(Values(*PolynomialRoots(RealMatrix({{1, -1e-13}}))), Many{1e-13});
    EXPECT_EQ(Values(*PolynomialRoots(ComplexMatrix({{1, {-2, 1e-15}}}))), Many{2});
    for (const Complex& z : Values(*PolynomialRoots(RealMatrix({{1, -3000, 2e6}}))))
        EXPECT_EQ(z.imag(), 0.0);
}

TEST(PolynomialRoots, OfNoPowerShowItAndAreEmpty)
{
    const ShownMessage no_power = Plain("The  Power of Polynom equal Zero");
    MessageRecorder recorder;
    for (const Variant& p :
         {Variant(RealMatrix({{5}})), Variant(RealMatrix({{0, 0, 5}})),
          Variant(RealMatrix({{0}, {0}})), Variant(ComplexMatrix({{0, {0, 2}}}))}) {
        EXPECT_FALSE(PolynomialRoots(p));
        EXPECT_EQ(recorder.Take(), Shown{no_power});
    }
}

TEST(PolynomialRoots, OfWhatIsNoVectorShowItAndAreEmpty)
{
    const ShownMessage no_vector = Plain("The  parameter must be Vector or Complex Vector");
    MessageRecorder recorder;
    for (const Variant& p :
         {Variant(RealMatrix({{1, 2}, {3, 4}})), Variant(ComplexMatrix({{1, 2}, {3, 4}})),
          Variant(LongMatrix({{1, 2}})), Variant(ObjectMatrix({{1, 2}})), Variant(Scalar(1, 2)),
          Variant(TextMatrix({{"1", "2"}})), Variant(Row<double>({1, 2})), Variant(3.0),
          Variant("1"), Variant(), Variant(MakeRef<clsMatrix>())}) {
        EXPECT_FALSE(PolynomialRoots(p));
        EXPECT_EQ(recorder.Take(), Shown{no_vector});
    }
}

TEST(PolynomialRoots, StopAtWhatHasNoRoots)
{
    EXPECT_EQ(Raised([] { PolynomialRoots(RealMatrix({{1, kInfinity, 2}})); }), 5);
    EXPECT_EQ(Raised([] { PolynomialRoots(RealMatrix({{NAN, 1}})); }), 5);
    EXPECT_EQ(Raised([] { PolynomialRoots(ComplexMatrix({{1, {0, -kInfinity}}})); }), 5);
    EXPECT_EQ(Raised([] { PolynomialRoots(RealMatrix({{1e-300, 1e300}})); }), 6);
    EXPECT_EQ(Raised([] { PolynomialRoots(Ref<clsMatrix>()); }), 91);
    const Ref<clsMatrix> belied = RealMatrix({{1, 2}});
    belied->TypeOfMatrix = "c";
    EXPECT_EQ(Raised([&] { PolynomialRoots(belied); }), 13);
}

} // namespace
} // namespace lumora
