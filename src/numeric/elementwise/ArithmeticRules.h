#pragma once

#include "base/Messages.h"
#include "base/RunTimeError.h"
#include "numeric/NumericMessages.h"
#include "numeric/Sheets.h"

#include <cmath>
#include <cstdint>
#include <utility>

namespace lumora {

// The element rules of the operators. A rule lives for one call, so it can hold the call's state.
// Whole numbers give 64 bits: the kernel looks whether they fit.

struct PlusRule {
    static constexpr const char* kSizesDisagree = kPlusSizes;

    double operator()(double a, double b) const { return a + b; }
    std::int64_t operator()(std::int32_t a, std::int32_t b) const { return std::int64_t{a} + b; }
    ComplexValue operator()(double a, ComplexValue b) const { return {a + b.re, b.im}; }
    ComplexValue operator()(ComplexValue a, double b) const { return {a.re + b, a.im}; }
    ComplexValue operator()(ComplexValue a, ComplexValue b) const
    {
        return {a.re + b.re, a.im + b.im};
    }
};

struct MinusRule {
    static constexpr const char* kSizesDisagree = kMinusSizes;

    double operator()(double a, double b) const { return a - b; }
    std::int64_t operator()(std::int32_t a, std::int32_t b) const { return std::int64_t{a} - b; }
    ComplexValue operator()(double a, ComplexValue b) const { return {a - b.re, -b.im}; }
    ComplexValue operator()(ComplexValue a, double b) const { return {a.re - b, a.im}; }
    ComplexValue operator()(ComplexValue a, ComplexValue b) const
    {
        return {a.re - b.re, a.im - b.im};
    }
};

struct TimesRule {
    static constexpr const char* kSizesDisagree = kTimesSizes;

    double operator()(double a, double b) const { return a * b; }
    std::int64_t operator()(std::int32_t a, std::int32_t b) const { return std::int64_t{a} * b; }
    ComplexValue operator()(double a, ComplexValue b) const { return {a * b.re, a * b.im}; }
    ComplexValue operator()(ComplexValue a, double b) const { return {a.re * b, a.im * b}; }
    ComplexValue operator()(ComplexValue a, ComplexValue b) const
    {
        return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
    }
};

/// A zero divisor, of either sign, is told of once a call and gives 10^306 whatever the dividend.
/// Overflow is looked for here, element by element, so that the message and the error come in the
/// order of the elements.
struct RdivideRule {
    static constexpr const char* kSizesDisagree = kRdivideSizes;

    double operator()(double a, double b) { return b == 0.0 ? ByZero() : Quotient(a, b); }
    ComplexValue operator()(ComplexValue a, double b)
    {
        if (b == 0.0) return {ByZero(), 0.0};
        return {Quotient(a.re, b), Quotient(a.im, b)};
    }
    ComplexValue operator()(double a, ComplexValue b)
    {
        const double squares = Squares(b);
        if (squares == 0.0) return {ByZero(), 0.0};
        return {Quotient(a * b.re, squares), Quotient(-a * b.im, squares)};
    }
    /// The squares are taken as they are: a small divisor whose squares vanish counts as zero.
    ComplexValue operator()(ComplexValue a, ComplexValue b)
    {
        const double squares = Squares(b);
        if (squares == 0.0) return {ByZero(), 0.0};
        return {Quotient(a.re * b.re + a.im * b.im, squares),
                Quotient(a.im * b.re - a.re * b.im, squares)};
    }

private:
    double ByZero()
    {
        if (!std::exchange(told_, true)) ShowPlainMessage(kDivideByZero);
        return kHuge;
    }
    static double Quotient(double a, double b)
    {
        const double quotient = a / b;
        if (std::isinf(quotient) && std::isfinite(a)) Raise(ErrorNumber::Overflow);
        return quotient;
    }
    static double Squares(ComplexValue b)
    {
        const double squares = b.re * b.re + b.im * b.im;
        if (std::isinf(squares) && std::isfinite(b.re) && std::isfinite(b.im))
            Raise(ErrorNumber::Overflow);
        return squares;
    }

    bool told_ = false;
};

} // namespace lumora
