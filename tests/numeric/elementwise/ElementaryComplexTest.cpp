#include "numeric/Matrices.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <limits>
#include <string>

namespace lumora::test {
namespace {

constexpr double kHuge = 1e306;
constexpr Complex kI(0, 1);
const double kHalfPi = std::acos(0.0);
/// The angle of the lower half plane is a literal of fifteen digits: 3.3e-15 from pi.
constexpr double kAngle = 4e-15;

using Member = Ref<clsComplex> (clsComplex::*)() const;

Complex Value(const clsComplex& z)
{
    return {z.Real, z.Image};
}
Complex Of(Member member, Complex z)
{
    return Value(*((*Scalar(z.real(), z.imag())).*member)());
}

/// Points of all four quadrants, on neither axis.
std::vector<Complex> Quadrants()
{
    std::vector<Complex> points;
    for (const double size : {0.03, 0.4, 0.97, 1.03, 2.5, 30.0})
        for (int step = 0; step < 16; ++step)
            points.push_back(std::polar(size, 0.1 + step * 6.283185307179586 / 16));
    return points;
}

struct Compared {
    const char* name;
    Member member;
    Complex (*expected)(Complex);
};

// clang-format off
const Compared kForward[] = {
    {"SinM",  &clsComplex::SinM,  [](Complex z) { return std::sin(z); }},
    {"CosM",  &clsComplex::CosM,  [](Complex z) { return std::cos(z); }},
    {"TanM",  &clsComplex::TanM,  [](Complex z) { return std::tan(z); }},
    {"CotM",  &clsComplex::CotM,  [](Complex z) { return 1.0 / std::tan(z); }},
    {"SecM",  &clsComplex::SecM,  [](Complex z) { return 1.0 / std::cos(z); }},
    {"CscM",  &clsComplex::CscM,  [](Complex z) { return 1.0 / std::sin(z); }},
    {"SinhM", &clsComplex::SinhM, [](Complex z) { return std::sinh(z); }},
    {"CoshM", &clsComplex::CoshM, [](Complex z) { return std::cosh(z); }},
    {"TanhM", &clsComplex::TanhM, [](Complex z) { return std::tanh(z); }},
    {"CothM", &clsComplex::CothM, [](Complex z) { return 1.0 / std::tanh(z); }},
    {"SechM", &clsComplex::SechM, [](Complex z) { return 1.0 / std::cosh(z); }},
    {"CschM", &clsComplex::CschM, [](Complex z) { return 1.0 / std::sinh(z); }},
    {"ExpM",  &clsComplex::ExpM,  [](Complex z) { return std::exp(z); }},
    {"LogM",  &clsComplex::LogM,  [](Complex z) { return std::log(z); }},
    {"Log2M", &clsComplex::Log2M, [](Complex z) { return std::log(z) / std::log(2.0); }},
    {"Log10M", &clsComplex::Log10M, [](Complex z) { return std::log10(z); }},
    {"SqrM",  &clsComplex::SqrM,  [](Complex z) { return std::sqrt(z); }},
};
const Compared kInverse[] = {
    {"AsinM",  &clsComplex::AsinM,  [](Complex z) { return std::asin(z); }},
    {"AcosM",  &clsComplex::AcosM,  [](Complex z) { return std::acos(z); }},
    {"AtanM",  &clsComplex::AtanM,  [](Complex z) { return std::atan(z); }},
    {"AcotM",  &clsComplex::AcotM,  [](Complex z) { return std::atan(1.0 / z); }},
    {"AsecM",  &clsComplex::AsecM,  [](Complex z) { return std::acos(1.0 / z); }},
    {"AcscM",  &clsComplex::AcscM,  [](Complex z) { return std::asin(1.0 / z); }},
    {"AsinhM", &clsComplex::AsinhM, [](Complex z) { return std::asinh(z); }},
    {"AcoshM", &clsComplex::AcoshM, [](Complex z) { return std::acosh(z); }},
    {"AtanhM", &clsComplex::AtanhM, [](Complex z) { return std::atanh(z); }},
    {"AcothM", &clsComplex::AcothM, [](Complex z) { return std::atanh(1.0 / z); }},
    {"AsechM", &clsComplex::AsechM, [](Complex z) { return std::acosh(1.0 / z); }},
    {"AcschM", &clsComplex::AcschM, [](Complex z) { return std::asinh(1.0 / z); }},
};
// clang-format on

TEST(ElementaryComplex, AgreesWithTheStandardLibrary)
{
    for (const auto& [name, member, expected] : kForward) {
        for (const Complex z : Quadrants()) {
            const Complex value = expected(z);
            // Near a zero the exponentials of the formulas cancel, relative to 1 at most.
            EXPECT_LT(std::abs(Of(member, z) - value), 2e-14 * (std::abs(value) + 1e-1))
                << name << z;
        }
    }
}

TEST(ElementaryComplex, HasPrincipalInverses)
{
    for (const auto& [name, member, expected] : kInverse)
        for (const Complex z : Quadrants())
            EXPECT_LT(std::abs(Of(member, z) - expected(z)), 2e-14) << name << z;
}

struct Pair {
    const char* name;
    Member inverse;
    Member function;
};

// clang-format off
const Pair kPairs[] = {
    {"AsinM",  &clsComplex::AsinM,  &clsComplex::SinM},  {"AcosM",  &clsComplex::AcosM,  &clsComplex::CosM},
    {"AtanM",  &clsComplex::AtanM,  &clsComplex::TanM},  {"AcotM",  &clsComplex::AcotM,  &clsComplex::CotM},
    {"AsecM",  &clsComplex::AsecM,  &clsComplex::SecM},  {"AcscM",  &clsComplex::AcscM,  &clsComplex::CscM},
    {"AsinhM", &clsComplex::AsinhM, &clsComplex::SinhM}, {"AcoshM", &clsComplex::AcoshM, &clsComplex::CoshM},
    {"AtanhM", &clsComplex::AtanhM, &clsComplex::TanhM}, {"AcothM", &clsComplex::AcothM, &clsComplex::CothM},
    {"AsechM", &clsComplex::AsechM, &clsComplex::SechM}, {"AcschM", &clsComplex::AcschM, &clsComplex::CschM},
    {"LogM",   &clsComplex::LogM,   &clsComplex::ExpM},
};
// clang-format on

TEST(ElementaryComplex, IsUndoneByItsInverseOnTheAxesAndCutsToo)
{
    MessageRecorder messages;
    std::vector<Complex> points = Quadrants();
    for (const double x : {0.01, 0.5, 0.999, 1.001, 2.0, 50.0})
        for (const Complex direction :
             {Complex(1, 0), Complex(-1, 0), Complex(0, 1), Complex(0, -1)})
            points.push_back(x * direction);
    for (const auto& [name, inverse, function] : kPairs)
        for (const Complex z : points)
            EXPECT_LT(std::abs(Of(function, Of(inverse, z)) - z), 1e-11 * (1.0 + std::abs(z)))
                << name << z;
    EXPECT_EQ(messages.shown, Shown());
}

TEST(ElementaryComplex, ChoosesTheUpperSideOfTheCuts)
{
    const double size = std::log(2 + std::sqrt(3.0)); // acosh 2
    // clang-format off
    const struct { const char* name; Member member; Complex z, value; } kCuts[] = {
        {"AsinM",  &clsComplex::AsinM,  2.0,       {kHalfPi, -size}},
        {"AsinM",  &clsComplex::AsinM,  -2.0,      {-kHalfPi, size}},
        {"AcosM",  &clsComplex::AcosM,  2.0,       {0, size}},
        {"AcosM",  &clsComplex::AcosM,  -2.0,      {2 * kHalfPi, -size}},
        {"AcoshM", &clsComplex::AcoshM, -2.0,      {size, 2 * kHalfPi}},
        {"AcoshM", &clsComplex::AcoshM, 0.5,       {0, 2 * kHalfPi / 3}},
        {"AsinhM", &clsComplex::AsinhM, 2.0 * kI,  {size, kHalfPi}},
        {"AsinhM", &clsComplex::AsinhM, -2.0 * kI, {-size, -kHalfPi}},
        {"AtanM",  &clsComplex::AtanM,  2.0 * kI,  {-kHalfPi, std::log(3.0) / 2}},
        {"AtanM",  &clsComplex::AtanM,  -2.0 * kI, {-kHalfPi, -std::log(3.0) / 2}},
        {"AtanhM", &clsComplex::AtanhM, 2.0,       {std::log(3.0) / 2, kHalfPi}},
        {"AtanhM", &clsComplex::AtanhM, -2.0,      {-std::log(3.0) / 2, kHalfPi}},
        {"AcothM", &clsComplex::AcothM, 0.5,       {std::log(3.0) / 2, kHalfPi}},
        {"LogM",   &clsComplex::LogM,   {-1, 0.0}, {0, 2 * kHalfPi}},
        {"LogM",   &clsComplex::LogM,   {-1, -0.0}, {0, 2 * kHalfPi}},
    };
    // clang-format on
    for (const auto& [name, member, z, value] : kCuts)
        EXPECT_LT(std::abs(Of(member, z) - value), kAngle) << name << z;
}

TEST(AsinM, KeepsItsDigitsWhereTheSumInItsLogarithmCancels)
{
    for (const double x : {1e3, 1e8, 1e100, 1e150}) {
        EXPECT_NEAR(Of(&clsComplex::AsinM, -x).imag(), std::acosh(x), 1e-13);
        const Complex far(-x, 1);
        EXPECT_NEAR(Of(&clsComplex::AsinhM, far).real(), std::asinh(far).real(), 1e-13);
        EXPECT_NEAR(Of(&clsComplex::AcosM, x).imag(), std::acosh(x), 1e-13);
    }
}

struct Guard {
    Member member;
    Complex z;
    const char* message;
    Complex value;
};

// clang-format off
const Guard kGuards[] = {
    {&clsComplex::LogM,   0,          "Log of zero.",         -kHuge},
    {&clsComplex::Log2M,  0,          "Log of zero.",         -kHuge / std::log(2.0)},
    {&clsComplex::Log10M, 0,          "Log of zero.",         -kHuge / std::log(10.0)},
    {&clsComplex::LogM,   {0, 1e200}, "Overflow.",            {0, 3.14159265358979 / 2}},
    {&clsComplex::ExpM,   {710, 1},   "Overflow.",            0},
    {&clsComplex::SinM,   {1, 710},   "Overflow",             0},
    {&clsComplex::SinM,   {1, -710},  "Overflow",             0},
    {&clsComplex::CosM,   {1, 710},   "Overflow",             0},
    {&clsComplex::SinhM,  {710, 1},   "Overflow",             0},
    {&clsComplex::CoshM,  {-710, 1},  "Overflow",             0},
    {&clsComplex::CotM,   0,          "Divide by zero.",      kHuge},
    {&clsComplex::CscM,   0,          "Divide by Zero.",      kHuge},
    {&clsComplex::CothM,  0,          "Divide by zero.",      kHuge},
    {&clsComplex::CschM,  0,          "Divide by zero.",      kHuge},
    {&clsComplex::AsecM,  0,          "Divide by zero.",      kHuge},
    {&clsComplex::AsechM, 0,          "Divide by zero.",      kHuge},
    {&clsComplex::AcscM,  0,          "Divide by zero..",     kHuge},
    {&clsComplex::AcschM, 0,          "Divide by zero.",      kHuge},
    {&clsComplex::AtanM,  kI,         "Singularity in Atan",  kHuge},
    {&clsComplex::AtanM,  -kI,        "Singularity in Atan",  kHuge},
    {&clsComplex::AtanhM, 1,          "Singularity in Atanh", kHuge},
    {&clsComplex::AtanhM, -1,         "Singularity in Atanh", kHuge},
    {&clsComplex::AcotM,  0,          "Singularity in Acot.", kHuge},
    {&clsComplex::AcotM,  kI,         "Singularity in Acot.", kHuge},
    {&clsComplex::AcothM, 1,          "Divide by zero.",      kHuge},
    {&clsComplex::AcothM, -1,         "Log of zero.",         -kHuge / 2.0},
};
// clang-format on

TEST(ElementaryComplex, TellsOfEachGuardOnce)
{
    MessageRecorder messages;
    for (const auto& [member, z, message, value] : kGuards) {
        SCOPED_TRACE(&member - &kGuards[0].member);
        EXPECT_EQ(Of(member, z), value);
        EXPECT_EQ(messages.Take(), Shown{Plain(message)});
    }
}

TEST(ElementaryComplex, ReachesToItsGuards)
{
    MessageRecorder messages;
    EXPECT_GT(std::abs(Of(&clsComplex::SinM, {1, 709})), 4e307);
    EXPECT_GT(std::abs(Of(&clsComplex::ExpM, {709, 1})), 8e307);
    EXPECT_EQ(Of(&clsComplex::ExpM, {-800, 1}), Complex(0, 0));
    EXPECT_EQ(messages.shown, Shown());
}

TEST(ElementaryComplex, DividesAnExponentOverAHundredByTen)
{
    // clang-format off
    const Member kAcross[] = {&clsComplex::TanM, &clsComplex::CotM, &clsComplex::SecM, &clsComplex::CscM};
    const Member kAlong[] = {&clsComplex::TanhM, &clsComplex::CothM, &clsComplex::SechM, &clsComplex::CschM};
    // clang-format on
    for (const Member member : kAcross) {
        EXPECT_EQ(Of(member, {0.5, 7000}), Of(member, {0.5, 70}));
        EXPECT_EQ(Of(member, {0.5, -101}), Of(member, {0.5, -101.0 / 10}));
        EXPECT_NE(Of(member, {0.5, 2}), Of(member, {0.5, 20}));
    }
    for (const Member member : kAlong) {
        EXPECT_EQ(Of(member, {7000, 0.5}), Of(member, {70, 0.5}));
        EXPECT_NE(Of(member, {2, 0.5}), Of(member, {20, 0.5}));
    }
}

TEST(ElementaryComplex, RaisesAnOverflowThatHasNoGuard)
{
    MessageRecorder messages;
    EXPECT_EQ(Raised([] { Scalar(1e155, 1)->AbsM(); }), 6);
    EXPECT_EQ(Raised([] { Scalar(1e155, 1)->AsinM(); }), 6);
    EXPECT_EQ(Raised([] { Scalar(1e155, 1)->AtanM(); }), 6);
    EXPECT_EQ(Raised([] { Scalar(1e155, 1)->AsecM(); }), 6);
    EXPECT_EQ(Raised([] { Scalar(1e155, 1)->SqrM(); }), 6);
    EXPECT_EQ(Raised([] { ComplexMatrix({{1, {1e155, 1}}})->AsinhM(); }), 6);
    EXPECT_EQ(Raised([] { ObjectMatrix({{1, {1e155, 1}}})->AcosM(); }), 6);
    EXPECT_EQ(messages.shown, Shown());
}

TEST(ElementaryComplex, PassesNaNs)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const auto& [name, member, expected] : kForward)
        EXPECT_TRUE(std::isnan(Of(member, {nan, nan}).real())) << name;
    for (const auto& [name, member, expected] : kInverse)
        EXPECT_TRUE(std::isnan(Of(member, {nan, nan}).real())) << name;
}

TEST(SqrM, OfANegativeNumberHasARealPartOfExactlyZero)
{
    EXPECT_EQ(Of(&clsComplex::SqrM, -4), Complex(0, 2));
    EXPECT_EQ(Of(&clsComplex::Sqrt_z, -4), Complex(0, 2));
    EXPECT_EQ(Of(&clsComplex::SqrM, 0), Complex(0, 0));
    EXPECT_LT(std::abs(Of(&clsComplex::Sqrt_z, {-3, -4}) - Complex(1, -2)), 2 * kAngle);
}

TEST(ComplexMatrices, TakeTheFormulasElementByElement)
{
    const Rows<Complex> rows = {{{1, 2}, {-3, 0.5}}, {{0, -1}, {2, 0}}, {{0.1, 0}, {-1, -1}}};
    const Ref<clsComplexMatrix> m = ComplexMatrix(rows);
    const Ref<clsMatrixComplex> objects = ObjectMatrix(rows);
    EXPECT_EQ(ShapeOf(*m->SinM()), Sized(3, 2));
    EXPECT_EQ(ShapeOf(*objects->SinM()), Sized(3, 2));
    EXPECT_EQ(ShapeOf(*ComplexMatrix({{1, 2}})->SinM()), Sized(1, 2));
    std::vector<Complex> sines, logs, roots;
    for (const Complex z : Values(*m)) {
        sines.push_back(Of(&clsComplex::SinM, z));
        logs.push_back(Of(&clsComplex::LogM, z));
        roots.push_back(Of(&clsComplex::SqrM, z));
    }
    EXPECT_EQ(Values(*m->SinM()), sines);
    EXPECT_EQ(Values(*objects->SinM()), sines);
    EXPECT_EQ(Values(*m->LogM()), logs);
    EXPECT_EQ(Values(*objects->LogM()), logs);
    EXPECT_EQ(Values(*m->SqrM()), roots);
    EXPECT_EQ(Values(*objects->SqrM()), roots);
}

TEST(ComplexMatrices, TellOnceAnOperation)
{
    MessageRecorder messages;
    EXPECT_EQ(Values(*ComplexMatrix({{0, 1, 0}})->LogM()),
              (std::vector<Complex>{-kHuge, 0, -kHuge}));
    EXPECT_EQ(messages.Take(), Shown{Plain("Log of zero.")});
    EXPECT_EQ(Values(*ObjectMatrix({{0, 0}})->CscM()), (std::vector<Complex>{kHuge, kHuge}));
    EXPECT_EQ(messages.Take(), Shown{Plain("Divide by Zero.")});
    ComplexMatrix({{{0, 1e200}, 0, {0, 1e200}, 0}})->LogM();
    EXPECT_EQ(messages.Take(), (Shown{Plain("Overflow."), Plain("Log of zero.")}));
}

TEST(ComplexMatrices, NeedTheirElements)
{
    const Ref<clsMatrixComplex> m = MakeRef<clsMatrixComplex>();
    EXPECT_EQ(Raised([&] { m->SinM(); }), 9);
    m->Initial_matrix(1, 2);
    EXPECT_EQ(Raised([&] { m->SinM(); }), 91);
    EXPECT_EQ(Raised([&] { m->AbsM(); }), 91);
    EXPECT_EQ(Raised([] { MakeRef<clsComplexMatrix>()->SinM(); }), 9);
}

TEST(ComplexMatrices, KeepTheirOwnObjects)
{
    const Ref<clsMatrixComplex> m = ObjectMatrix({{1, 2}});
    const Ref<clsMatrixComplex> roots = m->SqrM();
    roots->Real(1, 1)->SetReal(7);
    EXPECT_EQ(Values(*m), (std::vector<Complex>{1, 2}));
}

TEST(LogBaseM, OfComplexNumbersTakesBothKindsOfBase)
{
    EXPECT_LT(std::abs(Value(*Scalar(0, 4)->LogBaseM(2)) - Complex(2, kHalfPi / std::log(2.0))),
              kAngle);
    EXPECT_LT(std::abs(Value(*Scalar(-1, 0)->LogBaseM(Scalar(0, 1))) - 2.0), kAngle);
    EXPECT_LT(std::abs(Values(*ComplexMatrix({{8}})->LogBaseM(2)).at(0) - 3.0), kAngle);
    EXPECT_LT(std::abs(Values(*ObjectMatrix({{8}})->LogBaseM(Scalar(2, 0))).at(0) - 3.0), kAngle);
}

TEST(LogBaseM, OfComplexNumbersRefusesOtherBases)
{
    MessageRecorder messages;
    EXPECT_FALSE(Scalar(1, 1)->LogBaseM(RealMatrix({{2}})));
    EXPECT_FALSE(ComplexMatrix({{1}})->LogBaseM(Variant()));
    EXPECT_FALSE(ObjectMatrix({{1}})->LogBaseM(std::string("two")));
    EXPECT_EQ(messages.Take(), Shown(3, Plain(" Incorrect type of object.")));
    EXPECT_EQ(Raised([] { Scalar(2, 1)->LogBaseM(-2.0); }), 5);
    EXPECT_EQ(Raised([] { ComplexMatrix({{2}})->LogBaseM(1.0); }), 11);
    EXPECT_EQ(messages.Take(), Shown());
}

TEST(LogBaseM, TellsOfAZeroBaseAndAZeroElementOnce)
{
    MessageRecorder messages;
    EXPECT_EQ(Raised([] { ComplexMatrix({{2}})->LogBaseM(Scalar(0, 0)); }), 6);
    EXPECT_EQ(messages.Take(), Shown{Plain("Log of zero.")});
    EXPECT_EQ(Values(*ComplexMatrix({{0, 0}})->LogBaseM(Scalar(0, 0))),
              (std::vector<Complex>{-kHuge, -kHuge}));
    EXPECT_EQ(messages.Take(), Shown{Plain("Log of zero.")});
}

TEST(Scalars, AreSetInPartsOrWhole)
{
    clsComplex z;
    z.SetReal(2);
    z.SetImage(3);
    EXPECT_EQ(Value(z), Complex(2, 3));
    z.SetComplex(-1, 0.5);
    EXPECT_EQ(Value(z), Complex(-1, 0.5));
}

TEST(Scalars, ConjugateAndCopy)
{
    const Ref<clsComplex> z = Scalar(1, 2);
    EXPECT_EQ(Value(*z->Conj()), Complex(1, -2));
    EXPECT_EQ(Value(*z->CTranspose()), Complex(1, -2));
    const Ref<clsComplex> copy = z->Transpose();
    copy->SetReal(9);
    EXPECT_EQ(Value(*z), Complex(1, 2));
    EXPECT_EQ(Value(*copy), Complex(9, 2));
}

TEST(Scalars, ComputeWithEachOther)
{
    const Ref<clsComplex> z = Scalar(1, 2);
    EXPECT_EQ(Value(*z->Mul_z(*Scalar(3, -1))), Complex(5, 5));
    EXPECT_EQ(Value(*z->Plus_z(*Scalar(3, -1))), Complex(4, 1));
    EXPECT_EQ(Value(*z->Minus_z(*Scalar(3, -1))), Complex(-2, 3));
    EXPECT_EQ(Raised([] { Scalar(1e200, 0)->Mul_z(*Scalar(1e200, 0)); }), 6);
}

TEST(Scalars, KnowTheirAngleByOneOfTwoNames)
{
    EXPECT_EQ(Scalar(-1, 0)->Atan2_z(), 3.14159265358979);
    EXPECT_EQ(Scalar(1, 1)->Atan2_z(), std::atan(1.0));
    for (const Complex z : Quadrants())
        EXPECT_EQ(Scalar(z.real(), z.imag())->Angle_z(), 0.0);
}

TEST(Scalars, HaveTheHyperbolicFunctionsOfANumber)
{
    const clsComplex z;
    EXPECT_DOUBLE_EQ(z.Hcos(2), std::cosh(2.0));
    EXPECT_DOUBLE_EQ(z.Hsin(-2), std::sinh(-2.0));
    EXPECT_EQ(z.Hsin(0), 0.0);
    EXPECT_EQ(Raised([&] { z.Hcos(710); }), 6);
    EXPECT_EQ(Raised([&] { z.Hsin(-710); }), 6);
}

} // namespace
} // namespace lumora::test
