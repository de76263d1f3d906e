#pragma once

#include "base/Variant.h"
#include "numeric/ComplexFormulas.h"
#include "numeric/Computed.h"
#include "numeric/OneTelling.h"
#include "numeric/Results.h"
#include "numeric/Sheets.h"
#include "numeric/Stores.h"
#include "numeric/clsComplex.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsMatrixComplex.h"

#include <concepts>
#include <cstddef>
#include <utility>

namespace lumora {

/// Any element as a complex number. Error 91 for an element without object.
inline ComplexValue ComplexOf(double x)
{
    return {x, 0.0};
}
inline ComplexValue ComplexOf(ComplexValue z)
{
    return z;
}
inline ComplexValue ComplexOf(const Ref<clsComplex>& z)
{
    return {z->Real, z->Image};
}

// A new matrix whose k-th element is `element(k)`, in one pass. Error 9 for an empty shape.

template <class Element> Ref<clsMatrix> RealElements(Sizes sizes, Element element)
{
    Result<clsMatrix> result(sizes);
    double* const out = result.Data();
    for (std::size_t k = 0; k < result.Size(); ++k)
        out[k] = element(k);
    return std::move(result).Object();
}

template <class Element> Ref<clsComplexMatrix> ComplexElements(Sizes sizes, Element element)
{
    Result<clsComplexMatrix> result(sizes);
    double* const re = result.RealData();
    double* const im = result.ImageData();
    for (std::size_t k = 0; k < result.Size(); ++k) {
        const ComplexValue z = element(k);
        re[k] = z.re;
        im[k] = z.im;
    }
    return std::move(result).Object();
}

template <class Element> Ref<clsMatrixComplex> ObjectElements(Sizes sizes, Element element)
{
    Array<Ref<clsComplex>> store = UnwrittenStore<Ref<clsComplex>>(sizes);
    std::size_t k = 0;
    for (Ref<clsComplex>& object : store.Span()) {
        const ComplexValue z = element(k++);
        object = MakeRef<clsComplex>(z.re, z.im);
    }
    return NewMatrix<clsMatrixComplex>(std::move(store));
}

/// A real function that has complex values outside its domain: a clsMatrix if all elements lie
/// inside it. Otherwise a clsComplexMatrix, in which those inside keep their real value and have an
/// imaginary part of zero.
template <class Rule> Variant RealOrComplex(Sizes sizes, std::size_t count, Rule rule)
{
    std::size_t inside = 0;
    while (inside < count && rule.InDomain(inside))
        ++inside;
    if (inside == count) return RealElements(sizes, [&](std::size_t k) { return rule.Real(k); });
    return ComplexElements(sizes, [&](std::size_t k) {
        return rule.InDomain(k) ? ComplexOf(rule.Real(k)) : rule.Complex(k);
    });
}

/// A function of one value over the elements of a real matrix.
template <class F, class S> struct Applied {
    F f;
    S in;
    OneTelling tell = {};

    bool InDomain(std::size_t k) const { return f.InDomain(in[k]); }
    double Real(std::size_t k)
    {
        const double x = in[k];
        return Computed(f.Real(x, tell), x);
    }
    ComplexValue Complex(std::size_t k)
    {
        const ComplexValue z = ComplexOf(in[k]);
        return Computed(f.Complex(z, tell), z);
    }
};

template <class F, class M> Ref<clsMatrix> MapReal(const M& m)
{
    Applied<F, decltype(SheetOf(m))> applied{{}, SheetOf(m)};
    return RealElements(SizesOf(m), [&](std::size_t k) { return applied.Real(k); });
}

template <class F, class M> Variant MapOrPromote(const M& m, F f = {})
{
    const auto in = SheetOf(m);
    return RealOrComplex(SizesOf(m), in.Size(), Applied<F, decltype(in)>{f, in});
}

// A complex formula over the elements of a matrix or on one number. It takes the number and, if it
// has a guard, the teller.

template <class S, class Formula>
auto ComplexElement(const S& in, Formula formula, OneTelling told = {})
{
    return [in, formula, tell = std::move(told)](std::size_t k) mutable {
        const ComplexValue z = ComplexOf(in[k]);
        if constexpr (std::invocable<Formula, ComplexValue>)
            return Computed(formula(z), z);
        else
            return Computed(formula(z, tell), z);
    };
}

template <class Formula>
Ref<clsComplex> MapComplex(const clsComplex& z, Formula formula, OneTelling told = {})
{
    const ComplexValue w = ComplexElement(SheetOf(z), formula, std::move(told))(0);
    return MakeRef<clsComplex>(w.re, w.im);
}

template <class Formula>
Ref<clsComplexMatrix> MapComplex(const clsComplexMatrix& m, Formula formula, OneTelling told = {})
{
    return ComplexElements(SizesOf(m), ComplexElement(SheetOf(m), formula, std::move(told)));
}

template <class Formula>
Ref<clsMatrixComplex> MapComplex(const clsMatrixComplex& m, Formula formula, OneTelling told = {})
{
    return ObjectElements(SizesOf(m), ComplexElement(SheetOf(m), formula, std::move(told)));
}

inline double CheckedMagnitude(ComplexValue z)
{
    return Computed(formulas::Magnitude(z), z.re, z.im);
}

template <class M> Ref<clsMatrix> Magnitudes(const M& m)
{
    return RealElements(SizesOf(m), [in = SheetOf(m)](std::size_t k) {
        return CheckedMagnitude(ComplexOf(in[k]));
    });
}

} // namespace lumora
