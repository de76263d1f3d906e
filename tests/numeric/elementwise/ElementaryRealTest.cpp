#include "numeric/Matrices.h"
#include "numeric/elementwise/ComplexFormulas.h"
#include "support/EdgeNumbers.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace lumora::test {
namespace {

constexpr double kHuge = 1e306;

using Function = Variant (*)(const clsMatrix&);

std::vector<double> RealValues(const Variant& result)
{
    return Values(*result.As<Ref<clsMatrix>>());
}
std::vector<Complex> ComplexValues(const Variant& result)
{
    return Values(*result.As<Ref<clsComplexMatrix>>());
}

TEST(ElementaryReal, KeepsTheShapeOfItsReceiver)
{
    EXPECT_EQ(ShapeOf(*RealMatrix({{1, 2, 3}, {4, 5, 6}})->SinM()), Sized(2, 3));
    EXPECT_EQ(ShapeOf(*RealMatrix({{1, 2, 3}})->SinM()), Sized(1, 3));
    EXPECT_EQ(ShapeOf(*RealMatrix({{1}, {2}})->LogM().As<Ref<clsMatrix>>()), Sized(2, 1));
    EXPECT_EQ(ShapeOf(*RealMatrix({{1}, {-2}})->LogM().As<Ref<clsComplexMatrix>>()), Sized(2, 1));
    EXPECT_EQ(ShapeOf(*LongMatrix({{1, 2}, {3, 4}})->CosM()), Sized(2, 2));
}

TEST(ElementaryReal, TakesElementsInTheirOrder)
{
    const Ref<clsMatrix> angles = RealMatrix({{0.1, 0.2}, {0.3, 0.4}});
    EXPECT_EQ(Values(*angles->SinM()),
              (std::vector{std::sin(0.1), std::sin(0.3), std::sin(0.2), std::sin(0.4)}));
}

TEST(ElementaryReal, NeedsElementsAndAStoreOfTheirShape)
{
    const Ref<clsMatrix> empty = MakeRef<clsMatrix>();
    EXPECT_EQ(Raised([&] { empty->SinM(); }), 9);
    EXPECT_EQ(Raised([&] { empty->LogM(); }), 9);
    EXPECT_EQ(Raised([&] { empty->Power(2.0); }), 9);
    const Ref<clsMatrix> row = RealMatrix({{1, 2, 3}});
    row->size1 = 3;
    EXPECT_EQ(Raised([&] { row->SinM(); }), 9);
    EXPECT_EQ(Raised([&] { row->LogM(); }), 9);
}

struct Domain {
    const char* name;
    Function function;
    double inside;
    double outside;
};

// clang-format off
const Domain kDomains[] = {
    {"AsinM",  [](const clsMatrix& m) { return m.AsinM(); },  -1.0,  -1.001},
    {"AsinM",  [](const clsMatrix& m) { return m.AsinM(); },   0.5,   2.0},
    {"AcosM",  [](const clsMatrix& m) { return m.AcosM(); },   1.0,   1.001},
    {"AcoshM", [](const clsMatrix& m) { return m.AcoshM(); },  1.0,   0.999},
    {"AtanhM", [](const clsMatrix& m) { return m.AtanhM(); },  0.9,  -1.001},
    {"AcothM", [](const clsMatrix& m) { return m.AcothM(); }, -1.5,   0.999},
    {"AsecM",  [](const clsMatrix& m) { return m.AsecM(); },  -1.0,   0.999},
    {"AcscM",  [](const clsMatrix& m) { return m.AcscM(); },   1.0,  -0.999},
    {"AsechM", [](const clsMatrix& m) { return m.AsechM(); },  1.0,   1.001},
    {"AsechM", [](const clsMatrix& m) { return m.AsechM(); },  0.5,  -0.001},
    {"LogM",   [](const clsMatrix& m) { return m.LogM(); },    2.0,  -1e-100},
    {"Log2M",  [](const clsMatrix& m) { return m.Log2M(); },   2.0,  -1.0},
    {"Log10M", [](const clsMatrix& m) { return m.Log10M(); },  2.0,  -1.0},
    {"LogBaseM", [](const clsMatrix& m) { return m.LogBaseM(3.0); }, 2.0, -1.0},
    {"SqrM",   [](const clsMatrix& m) { return m.SqrM(); },    2.0,  -2.0},
    {"Power",  [](const clsMatrix& m) { return m.Power(0.5); }, 2.0, -2.0},
};
// clang-format on

TEST(ElementaryReal, IsComplexInAllElementsOnceOneLiesOutsideTheDomain)
{
    for (const auto& [name, function, inside, outside] : kDomains) {
        SCOPED_TRACE(name);
        const std::vector<double> alone = RealValues(function(*RealMatrix({{inside, inside}})));
        const auto mixed = ComplexValues(function(*RealMatrix({{inside, outside, inside}})));
        ASSERT_EQ(mixed.size(), 3U);
        EXPECT_EQ(mixed[0], Complex(alone[0], 0.0));
        EXPECT_NE(mixed[1].imag(), 0.0);
        EXPECT_EQ(mixed[2], Complex(alone[0], 0.0));
    }
}

struct Guard {
    Function function;
    double argument;
    double calm; ///< next to it, without a guard
    const char* message;
    double value;
};

// clang-format off
const Guard kGuards[] = {
    {[](const clsMatrix& m) -> Variant { return m.CotM(); }, 0.0,    1.5,  "Divide by zero.", kHuge},
    {[](const clsMatrix& m) -> Variant { return m.CscM(); }, -0.0,   1.5,  "Divide by zero.", kHuge},
    {[](const clsMatrix& m) -> Variant { return m.CothM(); }, 0.0,    1.5,  "Divide by zero.", kHuge},
    {[](const clsMatrix& m) -> Variant { return m.CothM(); }, 1e-300, 1.5,  "Divide by zero.", kHuge},
    {[](const clsMatrix& m) -> Variant { return m.CschM(); }, 0.0,    1.5,  "Divide by zero.", kHuge},
    {[](const clsMatrix& m) -> Variant { return m.AtanhM(); }, 1.0,    0.5,  "Divide by zero.", kHuge},
    {[](const clsMatrix& m) -> Variant { return m.AtanhM(); }, -1.0,   0.5,  "Divide by zero.", kHuge},
    {[](const clsMatrix& m) -> Variant { return m.AcothM(); }, 1.0,    1.5,  "Divide by zero.", kHuge},
    {[](const clsMatrix& m) -> Variant { return m.AcothM(); }, -1.0,   1.5,  "Divide by zero.", kHuge},
    {[](const clsMatrix& m) -> Variant { return m.AsechM(); }, 0.0,    0.5,  "Divide by zero.", kHuge},
    {[](const clsMatrix& m) -> Variant { return m.AcschM(); }, 0.0,    1.5,  "Divide by zero.", kHuge},
    {[](const clsMatrix& m) -> Variant { return m.LogM(); }, -0.0,   1.5,  "Log of zero.", -kHuge},
    {[](const clsMatrix& m) -> Variant { return m.Log2M(); }, 0.0,    1.5,  "Log of zero.", -kHuge},
    {[](const clsMatrix& m) -> Variant { return m.Log10M(); }, 0.0,    1.5,  "Log of zero.", -kHuge},
    {[](const clsMatrix& m) -> Variant { return m.LogBaseM(0.5); }, 0.0,    1.5,  "Log of zero.", -kHuge},
    {[](const clsMatrix& m) -> Variant { return m.SinhM(); }, 710,    709,  "Overflow.", 0.0},
    {[](const clsMatrix& m) -> Variant { return m.SinhM(); }, -710,   -709, "Overflow.", 0.0},
    {[](const clsMatrix& m) -> Variant { return m.CoshM(); }, -710,   -709, "Overflow.", 0.0},
    {[](const clsMatrix& m) -> Variant { return m.Power(-2.0); }, 0.0,    1.5,  "Divide by zero.", kHuge},
};
// clang-format on

TEST(ElementaryReal, TellsOfAGuardOnceAndGoesOn)
{
    MessageRecorder messages;
    for (const auto& [function, argument, calm, message, value] : kGuards) {
        SCOPED_TRACE(&function - &kGuards[0].function);
        const double beside = RealValues(function(*RealMatrix({{calm}}))).at(0);
        EXPECT_EQ(messages.Take(), Shown());
        EXPECT_NE(beside, value);
        EXPECT_EQ(RealValues(function(*RealMatrix({{argument, calm, argument}}))),
                  (std::vector{value, beside, value}));
        EXPECT_EQ(messages.Take(), Shown{Plain(message)});
    }
}

TEST(ElementaryReal, KeepsItsGuardsAmongComplexElements)
{
    MessageRecorder messages;
    EXPECT_EQ(ComplexValues(RealMatrix({{0, -1, 0}})->LogM()).at(2), Complex(-kHuge, 0));
    EXPECT_EQ(messages.Take(), Shown{Plain("Log of zero.")});
    // Zero is inside the domain of AsechM and outside that of AsecM.
    EXPECT_EQ(ComplexValues(RealMatrix({{0, 2}})->AsechM()).at(0), Complex(kHuge, 0));
    EXPECT_EQ(messages.Take(), Shown{Plain("Divide by zero.")});
    EXPECT_EQ(ComplexValues(RealMatrix({{0, 0}})->AsecM()),
              (std::vector{Complex(kHuge, 0), Complex(kHuge, 0)}));
    EXPECT_EQ(messages.Take(), Shown{Plain("Divide by zero.")});
}

TEST(ElementaryReal, AsksTheComplexFunctionWhereItsGuardIsAnother)
{
    MessageRecorder messages;
    EXPECT_EQ(RealValues(RealMatrix({{1, 0.5, -1}})->AtanhM()).at(2), kHuge);
    EXPECT_EQ(messages.Take(), Shown{Plain("Divide by zero.")});
    const std::vector<Complex> atanh = ComplexValues(RealMatrix({{1, 0.5, -1, 2}})->AtanhM());
    EXPECT_EQ(atanh.at(0), Complex(kHuge, 0));
    EXPECT_EQ(atanh.at(1), Complex(std::log(3.0) / 2, 0)); // (1 + 1/2)/(1 - 1/2) is 3
    EXPECT_EQ(atanh.at(2), Complex(kHuge, 0));
    EXPECT_EQ(messages.Take(), Shown{Plain("Singularity in Atanh")});

    EXPECT_EQ(RealValues(RealMatrix({{-1, 3, 1}})->AcothM()).at(0), kHuge);
    EXPECT_EQ(messages.Take(), Shown{Plain("Divide by zero.")});
    const std::vector<Complex> acoth = ComplexValues(RealMatrix({{-1, 3, 1, 0.5}})->AcothM());
    EXPECT_EQ(acoth.at(0), Complex(-kHuge / 2, 0));
    EXPECT_EQ(acoth.at(1), Complex(std::log(2.0) / 2, 0));
    EXPECT_EQ(acoth.at(2), Complex(kHuge, 0));
    EXPECT_EQ(messages.Take(), (Shown{Plain("Log of zero."), Plain("Divide by zero.")}));

    EXPECT_EQ(RealValues(RealMatrix({{0, 8}})->Log2M()).at(0), -kHuge);
    EXPECT_EQ(ComplexValues(RealMatrix({{0, -8}})->Log2M()).at(0),
              Complex(-kHuge / std::log(2.0), 0));
    EXPECT_EQ(ComplexValues(LongMatrix({{0, -8}})->Log10M()).at(0),
              Complex(-kHuge / std::log(10.0), 0));
    EXPECT_EQ(messages.Take(), Shown(3, Plain("Log of zero.")));
}

TEST(ElementaryReal, GuardsWholeNumbersAlike)
{
    MessageRecorder messages;
    EXPECT_EQ(Values(*LongMatrix({{0, 710}})->SinhM()), (std::vector{0.0, 0.0}));
    EXPECT_EQ(messages.Take(), Shown{Plain("Overflow.")});
    EXPECT_EQ(RealValues(LongMatrix({{0, 1}})->LogM()), (std::vector{-kHuge, 0.0}));
    EXPECT_EQ(messages.Take(), Shown{Plain("Log of zero.")});
    EXPECT_EQ(ComplexValues(LongMatrix({{1, -1}})->LogM()).at(0), Complex(0, 0));
    EXPECT_EQ(messages.Take(), Shown());
}

TEST(ElementaryReal, RaisesWhatNoGuardCatches)
{
    MessageRecorder messages;
    EXPECT_EQ(Raised([] { RealMatrix({{0.0}})->AcotM(); }), 11);
    EXPECT_EQ(Raised([] { LongMatrix({{0}})->AcotM(); }), 11);
    EXPECT_EQ(Raised([] { RealMatrix({{0.0, 710.0}})->ExpM(); }), 6);
    EXPECT_EQ(Raised([] { RealMatrix({{-710.0}})->ExpM(); }), 0);
    EXPECT_EQ(Raised([] { RealMatrix({{710.0}})->SechM(); }), 6);
    EXPECT_EQ(Raised([] { RealMatrix({{-710.0}})->CschM(); }), 6);
    EXPECT_EQ(Raised([] { RealMatrix({{1e155}})->AsinhM(); }), 6);
    EXPECT_EQ(Raised([] { RealMatrix({{1e155}})->AcoshM(); }), 6);
    EXPECT_EQ(Raised([] { RealMatrix({{1e155, -2.0}})->Power(2.5); }), 6);
    EXPECT_EQ(messages.shown, Shown());
}

TEST(ElementaryReal, FindsAnOverflowInALongMatrix)
{
    Array<double> many(5000);
    many(4321) = 710.0;
    const Ref<clsMatrix> m = MakeRef<clsMatrix>();
    m->SetRealAll(many);
    EXPECT_EQ(Raised([&] { m->ExpM(); }), 6);
    m->Real(1, 4321, kInfinity);
    EXPECT_EQ(m->ExpM()->Real(1, 4321), kInfinity);
}

TEST(ElementaryReal, PassesInfinitiesAndNaNs)
{
    MessageRecorder messages;
    EXPECT_EQ(Values(*RealMatrix({{kInfinity, -kInfinity}})->TanhM()), (std::vector{1.0, -1.0}));
    EXPECT_EQ(Values(*RealMatrix({{kInfinity, -kInfinity}})->ExpM()),
              (std::vector{kInfinity, 0.0}));
    EXPECT_TRUE(std::isnan(RealMatrix({{kInfinity}})->SinM()->Real(1, 1)));
    for (const Domain& domain : kDomains) {
        SCOPED_TRACE(domain.name);
        EXPECT_TRUE(std::isnan(RealValues(domain.function(*RealMatrix({{kNan}}))).at(0)));
    }
    EXPECT_EQ(messages.shown, Shown());
}

TEST(TanhM, SaturatesAtOneForLargeArgumentsOfEitherSign)
{
    EXPECT_EQ(Values(*RealMatrix({{701, -701, 800, -800, 1e300}})->TanhM()),
              (std::vector{1.0, -1.0, 1.0, -1.0, 1.0}));
    EXPECT_EQ(Values(*RealMatrix({{701, -1e300}})->CothM()), (std::vector{1.0, -1.0}));
}

TEST(SinhM, ReachesToItsGuard)
{
    MessageRecorder messages;
    EXPECT_GT(RealMatrix({{709}})->SinhM()->Real(1, 1), 4e307);
    EXPECT_EQ(messages.Take(), Shown());
    const double past = std::nextafter(709.0, 710.0);
    EXPECT_EQ(RealMatrix({{past}})->SinhM()->Real(1, 1), 0.0);
    EXPECT_EQ(messages.Take(), Shown{Plain("Overflow.")});
}

TEST(AsinhM, IsOddHoweverLarge)
{
    for (const double x : {1e-9, 0.5, 3.0, 1e9, 1e100}) {
        const auto values = Values(*RealMatrix({{x, -x}})->AsinhM());
        EXPECT_EQ(values[0], -values[1]);
        EXPECT_NEAR(values[0], std::asinh(x), 1e-15 * (1.0 + std::asinh(x)));
    }
}

TEST(AsinM, HasItsEndsFromTheArcTangentOfOne)
{
    EXPECT_EQ(RealValues(RealMatrix({{1, -1}})->AsinM()),
              (std::vector{2 * std::atan(1.0), -2 * std::atan(1.0)}));
    EXPECT_EQ(RealValues(RealMatrix({{1, -1}})->AcosM()), (std::vector{0.0, 4 * std::atan(1.0)}));
}

TEST(SqrM, OfNegativeElementsIsExactlyImaginary)
{
    EXPECT_EQ(ComplexValues(RealMatrix({{4, -4, -1e200}})->SqrM()),
              (std::vector{Complex(2, 0), Complex(0, 2), Complex(0, 1e100)}));
    EXPECT_EQ(RealValues(LongMatrix({{4, 9}})->SqrM()), (std::vector{2.0, 3.0}));
    EXPECT_EQ(ComplexValues(LongMatrix({{4, -9}})->SqrM()),
              (std::vector{Complex(2, 0), Complex(0, 3)}));
}

TEST(LogBaseM, TakesANumberAsBase)
{
    EXPECT_EQ(RealValues(RealMatrix({{1, 9}})->LogBaseM(3)).at(0), 0.0);
    EXPECT_DOUBLE_EQ(RealValues(RealMatrix({{1, 9}})->LogBaseM(3)).at(1), 2.0);
    EXPECT_DOUBLE_EQ(RealValues(LongMatrix({{8}})->LogBaseM(0.5)).at(0), -3.0);
    EXPECT_DOUBLE_EQ(RealValues(RealMatrix({{8}})->LogBaseM(std::string("2"))).at(0), 3.0);
}

TEST(LogBaseM, IsComplexForAComplexBase)
{
    // i^2 = -1 and i^0 = 1.
    const auto values = ComplexValues(RealMatrix({{1, 2, -1}})->LogBaseM(Scalar(0, 1)));
    EXPECT_EQ(values[0], Complex(0, 0));
    EXPECT_NEAR(std::abs(values[1] - Complex(0, -std::log(2.0) / std::acos(0.0))), 0, 1e-14);
    EXPECT_NEAR(std::abs(values[2] - Complex(2, 0)), 0, 1e-14);
    EXPECT_EQ(ComplexValues(LongMatrix({{4}})->LogBaseM(Scalar(2, 0))).at(0).imag(), 0.0);
}

TEST(LogBaseM, RefusesOtherBases)
{
    MessageRecorder messages;
    EXPECT_TRUE(RealMatrix({{1}})->LogBaseM(RealMatrix({{2}})).IsEmpty());
    EXPECT_TRUE(LongMatrix({{1}})->LogBaseM(std::string("two")).IsEmpty());
    EXPECT_TRUE(LongMatrix({{1}})->LogBaseM(Variant()).IsEmpty());
    EXPECT_EQ(messages.Take(), Shown(3, Plain("incorrect type of base")));
    EXPECT_EQ(Raised([] { RealMatrix({{2}})->LogBaseM(-2.0); }), 5);
    EXPECT_EQ(Raised([] { RealMatrix({{2}})->LogBaseM(0.0); }), 5);
    EXPECT_EQ(Raised([] { RealMatrix({{2}})->LogBaseM(1.0); }), 11);
    EXPECT_EQ(messages.Take(), Shown());
}

TEST(LogBaseM, TellsOfAZeroElementOnceForEveryKindOfBase)
{
    MessageRecorder messages;
    EXPECT_EQ(ComplexValues(RealMatrix({{0, 0}})->LogBaseM(Scalar(0, 1))),
              (std::vector{Complex(-kHuge, 0), Complex(-kHuge, 0)}));
    EXPECT_EQ(messages.Take(), Shown{Plain("Log of zero.")});
    EXPECT_EQ(ComplexValues(RealMatrix({{2, 3}})->LogBaseM(Scalar(1, 0))),
              (std::vector{Complex(kHuge, 0), Complex(kHuge, 0)}));
    EXPECT_EQ(messages.Take(), Shown{Plain("Divide by zero.")});
}

TEST(Conj, OfARealMatrixIsACopy)
{
    const Ref<clsMatrix> m = RealMatrix({{1, -2}});
    const Ref<clsMatrix> copy = m->Conj();
    copy->Real(1, 1, 7);
    EXPECT_EQ(Values(*m), (std::vector{1.0, -2.0}));
    EXPECT_EQ(Values(*copy), (std::vector{7.0, -2.0}));
    EXPECT_EQ(Values(*LongMatrix({{1, -2}})->Conj()), (std::vector{1, -2}));
}

TEST(Atan2, KnowsEveryQuadrantAndAxis)
{
    constexpr double kPi = 3.14159265358979; // the literal itself, not pi
    EXPECT_EQ(Atan2(0, 0), 0);
    EXPECT_EQ(Atan2(0, 2), 0);
    EXPECT_EQ(Atan2(2, 0), kPi / 2);
    EXPECT_EQ(Atan2(-2, 0), -kPi / 2);
    EXPECT_EQ(Atan2(2, 2), std::atan(1.0));
    EXPECT_EQ(Atan2(-2, 2), -std::atan(1.0));
    EXPECT_EQ(Atan2(2, -2), std::atan(-1.0) + kPi);
    EXPECT_EQ(Atan2(-2, -2), std::atan(1.0) - kPi);
    EXPECT_EQ(Atan2(0, -2), kPi);
    EXPECT_EQ(Atan2(-0.0, -2), kPi);
    EXPECT_EQ(Atan2(0, -0.0), 0);
    EXPECT_EQ(Atan2(1e300, 1e-300), std::atan(kInfinity));
    EXPECT_TRUE(std::isnan(Atan2(kNan, 0)));
}

} // namespace
} // namespace lumora::test
