#include "numeric/elementwise/ComplexFormulas.h"

#include "numeric/Computed.h"
#include "numeric/NumericMessages.h"

#include <cmath>

namespace lumora {

double Atan2(double y, double x)
{
    constexpr double kPi = 3.14159265358979; // not the nearest double: results depend on it
    if (y == 0.0 && x >= 0.0) return 0.0;
    if (x == 0.0 && y > 0.0) return kPi / 2.0;
    if (x == 0.0 && y < 0.0) return -kPi / 2.0;
    const double angle = std::atan(y / x); // a quotient that overflows has the right angle
    if (x > 0.0) return angle;
    return y < 0.0 ? angle - kPi : angle + kPi;
}

double Reduced(double x, double limit)
{
    if (std::isinf(x)) return std::copysign(limit, x);
    while (std::abs(x) > limit)
        x /= 10.0;
    return x;
}

namespace formulas {

namespace {

/// exp of anything larger overflows.
constexpr double kLargestExponent = 709.0;
/// Beyond this the tangent and its kin work on a reduced argument.
constexpr double kLargestGrowth = 100.0;

constexpr ComplexValue kOne{1.0, 0.0};
constexpr ComplexValue kI{0.0, 1.0};

ComplexValue Sum(ComplexValue z, ComplexValue w)
{
    return {z.re + w.re, z.im + w.im};
}

ComplexValue Difference(ComplexValue z, ComplexValue w)
{
    return {z.re - w.re, z.im - w.im};
}

ComplexValue Product(ComplexValue z, ComplexValue w)
{
    return {z.re * w.re - z.im * w.im, z.re * w.im + z.im * w.re};
}

ComplexValue Negative(ComplexValue z)
{
    return {-z.re, -z.im};
}

ComplexValue TimesI(ComplexValue z)
{
    return {-z.im, z.re};
}

ComplexValue OverI(ComplexValue z)
{
    return {z.im, -z.re};
}

ComplexValue Over(ComplexValue z, double divisor)
{
    return {z.re / divisor, z.im / divisor};
}

double SumOfSquares(ComplexValue z)
{
    return Computed(z.re * z.re + z.im * z.im, z);
}

bool Vanishes(ComplexValue z)
{
    return SumOfSquares(z) == 0.0;
}

ComplexValue Instead(const char* text, double value, OneTelling& tell)
{
    return {tell.Instead(text, value), 0.0};
}

/// For a divisor that does not vanish.
ComplexValue Ratio(ComplexValue z, ComplexValue w)
{
    const double squares = SumOfSquares(w);
    return {(z.re * w.re + z.im * w.im) / squares, (z.im * w.re - z.re * w.im) / squares};
}

ComplexValue SinOf(ComplexValue z)
{
    const double up = std::exp(z.im);
    const double down = std::exp(-z.im);
    return {std::sin(z.re) * ((up + down) / 2.0), std::cos(z.re) * ((up - down) / 2.0)};
}

ComplexValue CosOf(ComplexValue z)
{
    const double up = std::exp(z.im);
    const double down = std::exp(-z.im);
    return {std::cos(z.re) * ((up + down) / 2.0), -std::sin(z.re) * ((up - down) / 2.0)};
}

ComplexValue SinhOf(ComplexValue z)
{
    return OverI(SinOf(TimesI(z)));
}

ComplexValue CoshOf(ComplexValue z)
{
    return CosOf(TimesI(z));
}

ComplexValue ReducedImage(ComplexValue z)
{
    return {z.re, Reduced(z.im, kLargestGrowth)};
}

ComplexValue ReducedReal(ComplexValue z)
{
    return {Reduced(z.re, kLargestGrowth), z.im};
}

/// sqrt(p q) where it is sqrt(p) sqrt(q), as of 1 - z and 1 + z for sqrt(1 - z^2): the factors do
/// not cancel near 1, and they overflow later than the square does.
ComplexValue SqrtOfProduct(ComplexValue p, ComplexValue q)
{
    return Product(Sqrt(p), Sqrt(q));
}

/// log(p + q) where (p + q)(p - q) = 1: of the two factors the larger one has kept its digits.
ComplexValue LogOfSum(ComplexValue p, ComplexValue q, OneTelling& tell)
{
    if (p.re * q.re + p.im * q.im >= 0.0) return Log(Sum(p, q), tell);
    return Negative(Log(Difference(p, q), tell));
}

bool IsSingular(ComplexValue p, ComplexValue q)
{
    return Vanishes(Sum(p, q)) || Vanishes(Difference(p, q));
}

/// log((p + q)/(p - q))/2 where the divisor does not vanish.
ComplexValue HalfLog(ComplexValue p, ComplexValue q, OneTelling& tell)
{
    return Over(Log(Ratio(Sum(p, q), Difference(p, q)), tell), 2.0);
}

ComplexValue AtanOr(const char* text, ComplexValue z, OneTelling& tell)
{
    if (IsSingular(kI, z)) return Instead(text, kHuge, tell);
    return TimesI(HalfLog(kI, z, tell));
}

/// A function of 1/z.
ComplexValue OfInverse(ComplexValue (*f)(ComplexValue, OneTelling&), ComplexValue z,
                       const char* text, OneTelling& tell)
{
    if (Vanishes(z)) return Instead(text, kHuge, tell);
    return f(Ratio(kOne, z), tell);
}

/// To a base: what a logarithm of zero gives does not depend on it.
template <class Divide> ComplexValue DividedLog(ComplexValue z, OneTelling& tell, Divide divide)
{
    const ComplexValue log = Log(z, tell);
    return Magnitude(z) == 0.0 ? log : divide(log);
}

} // namespace

double Magnitude(ComplexValue z)
{
    return std::sqrt(z.re * z.re + z.im * z.im);
}

double Angle(ComplexValue z)
{
    return Atan2(z.im, z.re);
}

ComplexValue Quotient(ComplexValue z, ComplexValue w, const char* text, OneTelling& tell)
{
    return Vanishes(w) ? Instead(text, kHuge, tell) : Ratio(z, w);
}

ComplexValue Sqrt(ComplexValue z)
{
    const double root = std::sqrt(Magnitude(z));
    const double half = Angle(z) / 2.0;
    const bool is_imaginary = z.im == 0.0 && z.re < 0.0;
    return {is_imaginary ? 0.0 : root * std::cos(half), root * std::sin(half)};
}

ComplexValue SqrtByParts(ComplexValue z)
{
    // The larger part by its formula; the difference in the other's would cancel.
    const double larger = std::sqrt(Magnitude(z) + std::abs(z.re)) / std::sqrt(2.0);
    if (larger == 0.0) return {};
    const double smaller = std::abs(z.im) / 2.0 / larger;
    const double re = z.re < 0.0 ? smaller : larger;
    const double im = z.re < 0.0 ? larger : smaller;
    return {re, z.im < 0.0 ? -im : im};
}

ComplexValue Exp(ComplexValue z, OneTelling& tell)
{
    if (z.re > kLargestExponent) return Instead(kOverflow, 0.0, tell);
    const double r = std::exp(z.re);
    return {r * std::cos(z.im), r * std::sin(z.im)};
}

ComplexValue Log(ComplexValue z, OneTelling& tell)
{
    const double r = Magnitude(z);
    if (r == 0.0) return Instead(kLogOfZero, -kHuge, tell);
    const bool overflows = std::isinf(r) && Finite(z);
    return {overflows ? tell.Instead(kOverflow, 0.0) : std::log(r), Angle(z)};
}

ComplexValue LogTo(double log_base, ComplexValue z, OneTelling& tell)
{
    return DividedLog(z, tell, [&](ComplexValue log) { return Over(log, log_base); });
}

ComplexValue LogTo(ComplexValue log_base, ComplexValue z, OneTelling& tell)
{
    return DividedLog(
        z, tell, [&](ComplexValue log) { return Quotient(log, log_base, kDivideByZero, tell); });
}

// Quotients of whatever Log gives, what stands for a logarithm of zero included.
ComplexValue Log2(ComplexValue z, OneTelling& tell)
{
    return Over(Log(z, tell), std::log(2.0));
}

ComplexValue Log10(ComplexValue z, OneTelling& tell)
{
    return Over(Log(z, tell), std::log(10.0));
}

ComplexValue Sin(ComplexValue z, OneTelling& tell)
{
    return std::abs(z.im) > kLargestExponent ? Instead(kOverflowNoStop, 0.0, tell) : SinOf(z);
}

ComplexValue Cos(ComplexValue z, OneTelling& tell)
{
    return std::abs(z.im) > kLargestExponent ? Instead(kOverflowNoStop, 0.0, tell) : CosOf(z);
}

ComplexValue Sinh(ComplexValue z, OneTelling& tell)
{
    return OverI(Sin(TimesI(z), tell));
}

ComplexValue Cosh(ComplexValue z, OneTelling& tell)
{
    return Cos(TimesI(z), tell);
}

ComplexValue Tan(ComplexValue z, OneTelling& tell)
{
    const ComplexValue w = ReducedImage(z);
    return Quotient(SinOf(w), CosOf(w), kDivideByZero, tell);
}

ComplexValue Cot(ComplexValue z, OneTelling& tell)
{
    const ComplexValue w = ReducedImage(z);
    return Quotient(CosOf(w), SinOf(w), kDivideByZero, tell);
}

ComplexValue Sec(ComplexValue z, OneTelling& tell)
{
    return Quotient(kOne, CosOf(ReducedImage(z)), kDivideByZero, tell);
}

ComplexValue Csc(ComplexValue z, OneTelling& tell)
{
    return Quotient(kOne, SinOf(ReducedImage(z)), kDivideByZeroCapital, tell);
}

ComplexValue Tanh(ComplexValue z, OneTelling& tell)
{
    const ComplexValue w = ReducedReal(z);
    return Quotient(SinhOf(w), CoshOf(w), kDivideByZero, tell);
}

ComplexValue Coth(ComplexValue z, OneTelling& tell)
{
    const ComplexValue w = ReducedReal(z);
    return Quotient(CoshOf(w), SinhOf(w), kDivideByZero, tell);
}

ComplexValue Sech(ComplexValue z, OneTelling& tell)
{
    return Quotient(kOne, CoshOf(ReducedReal(z)), kDivideByZero, tell);
}

ComplexValue Csch(ComplexValue z, OneTelling& tell)
{
    return Quotient(kOne, SinhOf(ReducedReal(z)), kDivideByZero, tell);
}

ComplexValue Asin(ComplexValue z, OneTelling& tell)
{
    return OverI(Asinh(TimesI(z), tell));
}

ComplexValue Acos(ComplexValue z, OneTelling& tell)
{
    const ComplexValue root = SqrtOfProduct(Difference(kOne, z), Sum(kOne, z));
    return OverI(LogOfSum(z, TimesI(root), tell));
}

ComplexValue Asinh(ComplexValue z, OneTelling& tell)
{
    const ComplexValue turned = TimesI(z);
    return LogOfSum(SqrtOfProduct(Sum(kOne, turned), Difference(kOne, turned)), z, tell);
}

ComplexValue Acosh(ComplexValue z, OneTelling& tell)
{
    return LogOfSum(z, SqrtOfProduct(Difference(z, kOne), Sum(z, kOne)), tell);
}

ComplexValue Atan(ComplexValue z, OneTelling& tell)
{
    return AtanOr(kSingularityAtan, z, tell);
}

ComplexValue Atanh(ComplexValue z, OneTelling& tell)
{
    if (IsSingular(kOne, z)) return Instead(kSingularityAtanh, kHuge, tell);
    return HalfLog(kOne, z, tell);
}

ComplexValue Acoth(ComplexValue z, OneTelling& tell)
{
    // Only the divisor has a guard: at -1 the logarithm tells of its zero.
    if (Vanishes(Difference(z, kOne))) return Instead(kDivideByZero, kHuge, tell);
    return HalfLog(z, kOne, tell);
}

ComplexValue Acot(ComplexValue z, OneTelling& tell)
{
    if (Vanishes(z)) return Instead(kSingularityAcot, kHuge, tell);
    return AtanOr(kSingularityAcot, Ratio(kOne, z), tell);
}

ComplexValue Asec(ComplexValue z, OneTelling& tell)
{
    return OfInverse(Acos, z, kDivideByZero, tell);
}

ComplexValue Acsc(ComplexValue z, OneTelling& tell)
{
    return OfInverse(Asin, z, kDivideByZeroTwoStops, tell);
}

ComplexValue Asech(ComplexValue z, OneTelling& tell)
{
    return OfInverse(Acosh, z, kDivideByZero, tell);
}

ComplexValue Acsch(ComplexValue z, OneTelling& tell)
{
    return OfInverse(Asinh, z, kDivideByZero, tell);
}

} // namespace formulas

} // namespace lumora
