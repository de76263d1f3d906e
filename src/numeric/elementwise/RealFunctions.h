#pragma once

#include "base/Numbers.h"
#include "numeric/Computed.h"
#include "numeric/NumericMessages.h"
#include "numeric/Sheets.h"
#include "numeric/elementwise/ComplexFormulas.h"
#include "numeric/elementwise/OneTelling.h"

#include <cmath>

namespace lumora {

/// The elementary functions on one real number. Those with a domain have complex values outside it;
/// a NaN counts as inside. The formulas are written out, with their own errors: a hyperbolic
/// function from exponentials is what results depend on, not the platform's.
///
/// AsksComplex tells which elements inside the domain are the complex function's all the same once
/// others have made the matrix complex: those at which it has another guard. Atanh is as exact as
/// the real formula there, so it takes them all.
namespace elementary {

/// Guards of SinhM and CoshM, and of TanhM and CothM.
inline constexpr double kLargestHyperbolic = 709.0;
inline constexpr double kLargestTanh = 700.0;

inline double HalfPi()
{
    return 2.0 * std::atan(1.0);
}
inline double Inverse(double x, OneTelling& tell)
{
    return x == 0.0 ? tell.Instead(kDivideByZero, kHuge) : 1.0 / x;
}
inline double LogOver(double divisor, double x, OneTelling& tell)
{
    return x == 0.0 ? tell.Instead(kLogOfZero, -kHuge) : std::log(x) / divisor;
}
/// log((1 + x)/(1 - x))/2 and its like, whose sides vanish at the ends of the domain.
inline double HalfLog(double above, double below, OneTelling& tell)
{
    if (above == 0.0 || below == 0.0) return tell.Instead(kDivideByZero, kHuge);
    return std::log(above / below) / 2.0;
}
/// exp where a reciprocal would hide that it overflowed.
inline double CheckedExp(double x)
{
    return Computed(std::exp(x), x);
}

inline bool IsSine(double x)
{
    return !(std::abs(x) > 1.0);
}
inline bool IsSecant(double x)
{
    return !(std::abs(x) < 1.0);
}
inline bool IsNotNegative(double x)
{
    return !(x < 0.0);
}

// clang-format off

struct Abs  { static double Real(double x, OneTelling&) { return std::abs(x); } };
struct Sin  { static double Real(double x, OneTelling&) { return std::sin(x); } };
struct Cos  { static double Real(double x, OneTelling&) { return std::cos(x); } };
struct Tan  { static double Real(double x, OneTelling&) { return std::tan(x); } };
struct Atan { static double Real(double x, OneTelling&) { return std::atan(x); } };
struct Exp  { static double Real(double x, OneTelling&) { return std::exp(x); } };
struct Acot { static double Real(double x, OneTelling&) { return std::atan(Divide(1.0, x)); } };
struct Cot  { static double Real(double x, OneTelling& tell) { return Inverse(std::tan(x), tell); } };
struct Sec  { static double Real(double x, OneTelling& tell) { return Inverse(std::cos(x), tell); } };
struct Csc  { static double Real(double x, OneTelling& tell) { return Inverse(std::sin(x), tell); } };
struct Sech { static double Real(double x, OneTelling&) { return 2.0 / (CheckedExp(x) + CheckedExp(-x)); } };

// clang-format on

struct Sinh {
    static double Real(double x, OneTelling& tell)
    {
        if (std::abs(x) > kLargestHyperbolic) return tell.Instead(kOverflow, 0.0);
        return (std::exp(x) - std::exp(-x)) / 2.0;
    }
};
struct Cosh {
    static double Real(double x, OneTelling& tell)
    {
        if (std::abs(x) > kLargestHyperbolic) return tell.Instead(kOverflow, 0.0);
        return (std::exp(x) + std::exp(-x)) / 2.0;
    }
};
struct Tanh {
    static double Real(double x, OneTelling&)
    {
        const double up = std::exp(Reduced(x, kLargestTanh));
        const double down = std::exp(-Reduced(x, kLargestTanh));
        return (up - down) / (up + down);
    }
};
struct Coth {
    static double Real(double x, OneTelling& tell) { return Inverse(Tanh::Real(x, tell), tell); }
};
struct Csch {
    static double Real(double x, OneTelling& tell)
    {
        const double difference = CheckedExp(x) - CheckedExp(-x);
        return difference == 0.0 ? tell.Instead(kDivideByZero, kHuge) : 2.0 / difference;
    }
};

/// The formula holds for x above 0; far below it x + sqrt(x^2 + 1) would cancel to nothing, so the
/// function's oddness gives the rest.
struct Asinh {
    static double Real(double x, OneTelling&)
    {
        return std::copysign(std::log(std::abs(x) + std::sqrt(x * x + 1.0)), x);
    }
};
struct Acsch {
    static double Real(double x, OneTelling& tell)
    {
        if (x == 0.0) return tell.Instead(kDivideByZero, kHuge);
        return Asinh::Real(1.0 / x, tell);
    }
};

struct Asin {
    static bool InDomain(double x) { return IsSine(x); }
    static double Real(double x, OneTelling&)
    {
        if (std::abs(x) == 1.0) return std::copysign(HalfPi(), x);
        return std::atan(x / std::sqrt(1.0 - x * x));
    }
    static ComplexValue Complex(ComplexValue z, OneTelling& tell)
    {
        return formulas::Asin(z, tell);
    }
};
struct Acos {
    static bool InDomain(double x) { return IsSine(x); }
    static double Real(double x, OneTelling& tell) { return HalfPi() - Asin::Real(x, tell); }
    static ComplexValue Complex(ComplexValue z, OneTelling& tell)
    {
        return formulas::Acos(z, tell);
    }
};
struct Asec {
    static bool InDomain(double x) { return IsSecant(x); }
    static double Real(double x, OneTelling& tell) { return Acos::Real(1.0 / x, tell); }
    static ComplexValue Complex(ComplexValue z, OneTelling& tell)
    {
        return formulas::Asec(z, tell);
    }
};
struct Acsc {
    static bool InDomain(double x) { return IsSecant(x); }
    static double Real(double x, OneTelling& tell) { return Asin::Real(1.0 / x, tell); }
    static ComplexValue Complex(ComplexValue z, OneTelling& tell)
    {
        return formulas::Acsc(z, tell);
    }
};
struct Acosh {
    static bool InDomain(double x) { return !(x < 1.0); }
    static double Real(double x, OneTelling&) { return std::log(x + std::sqrt(x * x - 1.0)); }
    static ComplexValue Complex(ComplexValue z, OneTelling& tell)
    {
        return formulas::Acosh(z, tell);
    }
};
struct Atanh {
    static bool InDomain(double x) { return IsSine(x); }
    static bool AsksComplex(double) { return true; }
    static double Real(double x, OneTelling& tell) { return HalfLog(1.0 + x, 1.0 - x, tell); }
    static ComplexValue Complex(ComplexValue z, OneTelling& tell)
    {
        return formulas::Atanh(z, tell);
    }
};
struct Acoth {
    static bool InDomain(double x) { return IsSecant(x); }
    static bool AsksComplex(double x) { return std::abs(x) == 1.0; }
    static double Real(double x, OneTelling& tell) { return HalfLog(x + 1.0, x - 1.0, tell); }
    static ComplexValue Complex(ComplexValue z, OneTelling& tell)
    {
        return formulas::Acoth(z, tell);
    }
};
struct Asech {
    static bool InDomain(double x) { return !(x < 0.0 || x > 1.0); }
    static double Real(double x, OneTelling& tell)
    {
        if (x == 0.0) return tell.Instead(kDivideByZero, kHuge);
        return std::log((1.0 + std::sqrt(1.0 - x * x)) / x);
    }
    static ComplexValue Complex(ComplexValue z, OneTelling& tell)
    {
        return formulas::Asech(z, tell);
    }
};
struct Log {
    static bool InDomain(double x) { return IsNotNegative(x); }
    static double Real(double x, OneTelling& tell) { return LogOver(1.0, x, tell); }
    static ComplexValue Complex(ComplexValue z, OneTelling& tell) { return formulas::Log(z, tell); }
};
struct Log2 {
    static bool InDomain(double x) { return IsNotNegative(x); }
    static bool AsksComplex(double x) { return x == 0.0; }
    static double Real(double x, OneTelling& tell) { return LogOver(std::log(2.0), x, tell); }
    static ComplexValue Complex(ComplexValue z, OneTelling& tell)
    {
        return formulas::Log2(z, tell);
    }
};
struct Log10 {
    static bool InDomain(double x) { return IsNotNegative(x); }
    static bool AsksComplex(double x) { return x == 0.0; }
    static double Real(double x, OneTelling& tell) { return LogOver(std::log(10.0), x, tell); }
    static ComplexValue Complex(ComplexValue z, OneTelling& tell)
    {
        return formulas::Log10(z, tell);
    }
};
/// To the base whose logarithm is told.
struct LogBase {
    double log_base;

    static bool InDomain(double x) { return IsNotNegative(x); }
    double Real(double x, OneTelling& tell) const { return LogOver(log_base, x, tell); }
    ComplexValue Complex(ComplexValue z, OneTelling& tell) const
    {
        return formulas::LogTo(log_base, z, tell);
    }
};
/// The root of a negative number is exact: no angle is involved.
struct Sqr {
    static bool InDomain(double x) { return IsNotNegative(x); }
    static double Real(double x, OneTelling&) { return std::sqrt(x); }
    static ComplexValue Complex(ComplexValue z, OneTelling&) { return {0.0, std::sqrt(-z.re)}; }
};

} // namespace elementary

} // namespace lumora
