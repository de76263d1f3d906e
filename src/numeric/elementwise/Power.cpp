#include "base/Messages.h"
#include "base/Numbers.h"
#include "numeric/NumericMessages.h"
#include "numeric/Operands.h"
#include "numeric/Predicates.h"
#include "numeric/elementwise/ComplexFormulas.h"
#include "numeric/elementwise/Mapping.h"

#include <cmath>
#include <string>
#include <type_traits>
#include <utility>

namespace lumora {

namespace {

/// Calls `use` with what a kernel sees of the exponent: a sheet, or a single value.
template <class Use> Variant WithExponent(const Variant& exponent, const char* complaint, Use use)
{
    if (const std::string* tag = TagOf(exponent)) {
        if (tag->empty()) return use(SheetOf(ObjectOf<clsComplex>(exponent)));
        if (*tag == "c") return use(SheetOf(ObjectOf<clsComplexMatrix>(exponent)));
        if (*tag == "mc") return use(SheetOf(ObjectOf<clsMatrixComplex>(exponent)));
        if (*tag == "r") return use(SheetOf(ObjectOf<clsMatrix>(exponent)));
        if (*tag == "L") return use(SheetOf(ObjectOf<clsLong>(exponent)));
    } else if (IsIntegerArray(exponent)) {
        return use(SheetOf(*Wrapped(LongArray(exponent))));
    } else if (IsNumericArray(exponent)) {
        return use(SheetOf(*Wrapped(DoubleArray(exponent))));
    } else if (IsComplexArray(exponent)) {
        return use(SheetOf(*Wrapped(ComplexArray(exponent))));
    } else if (IsNumeric(exponent)) {
        return use(Single{exponent.Number()});
    }
    ShowPlainMessage(complaint);
    return {};
}

bool IsRealPower(double base, double exponent)
{
    return !(base < 0.0) || exponent == Int(exponent);
}

double RealPower(double base, double exponent, OneTelling& tell)
{
    if (base == 0.0 && exponent < 0.0) return tell.Instead(kDivideByZero, kHuge);
    return std::pow(base, exponent);
}

/// r^y at the angle y t of base r at t; for y = c + di, exp(c log r - d t) at d log r + c t.
ComplexValue PolarPower(ComplexValue base, ComplexValue exponent, OneTelling& tell)
{
    const double r = base.im == 0.0 ? std::abs(base.re) : formulas::Magnitude(base);
    const double t = formulas::Angle(base);
    if (r == 0.0) {
        if (exponent.re == 0.0 && exponent.im == 0.0) return {1.0, 0.0};
        return {exponent.re > 0.0 ? 0.0 : tell.Instead(kDivideByZero, kHuge), 0.0};
    }
    const double log_r = std::log(r);
    const double size = exponent.im == 0.0 ? std::pow(r, exponent.re)
                                           : std::exp(exponent.re * log_r - exponent.im * t);
    const double angle = exponent.im * log_r + exponent.re * t;
    return {size * std::cos(angle), size * std::sin(angle)};
}

ComplexValue ComplexPower(ComplexValue base, ComplexValue exponent, OneTelling& tell)
{
    if (base.im == 0.0 && exponent.im == 0.0 && IsRealPower(base.re, exponent.re))
        return {RealPower(base.re, exponent.re, tell), 0.0};
    return PolarPower(base, exponent, tell);
}

/// Element k to the power of element k, or of the only one.
template <class A, class B> struct Powers {
    A base;
    B exponent;
    OneTelling tell = {};

    decltype(auto) ExponentOf(std::size_t k) const { return exponent[exponent.IsScalar() ? 0 : k]; }
    bool InDomain(std::size_t k) const { return IsRealPower(base[k], ExponentOf(k)); }
    double Real(std::size_t k) { return RealPower(base[k], ExponentOf(k), tell); }
    ComplexValue Complex(std::size_t k)
    {
        return ComplexPower(AsComplex(base[k]), AsComplex(ExponentOf(k)), tell);
    }
    bool FromFinite(std::size_t k) const
    {
        return Finite(AsComplex(base[k])) && Finite(AsComplex(ExponentOf(k)));
    }
};

template <class S> using ElementOf = std::remove_cvref_t<decltype(std::declval<S>()[0])>;
template <class S> constexpr bool kIsReal = std::is_arithmetic_v<ElementOf<S>>;
template <class S> constexpr bool kIsObjects = std::is_same_v<ElementOf<S>, Ref<clsComplex>>;
template <class S> constexpr bool kIsSingle = false;
template <class T> constexpr bool kIsSingle<Single<T>> = true;

template <class Base> Variant PowerOfMatrix(const Base& matrix, const Variant& exponent)
{
    const auto base = SheetOf(matrix);
    using A = std::remove_const_t<decltype(base)>;
    return WithExponent(exponent, kIncorrectObjectStop, [&]<class B>(const B& y) -> Variant {
        if (!y.IsScalar() && (y.rows != base.rows || y.columns != base.columns)) {
            ShowPlainMessage(kDimensionsMustAgree);
            return {};
        }
        Powers<A, B> powers{base, y};
        if constexpr (kIsReal<A> && kIsReal<B>)
            return RealOrComplex(SizesOf(matrix), base.Size(), powers);
        else if constexpr (kIsObjects<A> && kIsObjects<B>)
            return ComplexElements<clsMatrixComplex>(SizesOf(matrix), powers);
        else
            return ComplexElements(SizesOf(matrix), powers);
    });
}

} // namespace

// clang-format off
Variant clsMatrix::Power       (const Variant& Obj) const { return PowerOfMatrix(*this, Obj); }
Variant clsLong::Power         (const Variant& Obj) const { return PowerOfMatrix(*this, Obj); }
Variant clsComplexMatrix::Power(const Variant& Obj) const { return PowerOfMatrix(*this, Obj); }
Variant clsMatrixComplex::Power(const Variant& Obj) const { return PowerOfMatrix(*this, Obj); }
// clang-format on

Variant clsComplex::Power(const Variant& Obj) const
{
    return WithExponent(Obj, kNumberOrCls, [&]<class S>(const S& y) -> Variant {
        Powers<Single<ComplexValue>, S> powers{SheetOf(*this), y};
        if constexpr (kIsSingle<S>)
            return ComplexObject(powers);
        else
            return ComplexElements({y.rows, y.columns}, powers);
    });
}

} // namespace lumora
