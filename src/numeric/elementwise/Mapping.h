#pragma once

#include "base/Variant.h"
#include "numeric/ComputeEach.h"
#include "numeric/Draft.h"
#include "numeric/ElementValues.h"
#include "numeric/Finite.h"
#include "numeric/Sheets.h"
#include "numeric/Stores.h"
#include "numeric/clsComplex.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsMatrixComplex.h"
#include "numeric/elementwise/ComplexFormulas.h"
#include "numeric/elementwise/OneTelling.h"

#include <concepts>
#include <cstddef>
#include <utility>

namespace lumora {

// New matrices in one pass. A rule tells element k as Real(k) or Complex(k), and FromFinite(k)
// tells whether it came from finite numbers: error 6 if it is not finite itself then. Error 9 for
// an empty shape.

template <class Rule> Ref<clsMatrix> RealElements(Sizes sizes, Rule rule)
{
    Draft<clsMatrix> result(sizes);
    ComputeEach(
        result, [&](std::size_t k) { return rule.Real(k); },
        [&](std::size_t k) { return rule.FromFinite(k); });
    return result.Take();
}

template <ComplexClass M = clsComplexMatrix, class Rule>
Ref<M> ComplexElements(Sizes sizes, Rule rule)
{
    Draft<M> result(sizes);
    ComputeEach(
        result, [&](std::size_t k) { return rule.Complex(k); },
        [&](std::size_t k) { return rule.FromFinite(k); });
    return result.Take();
}

/// Element 0 alone.
template <class Rule> Ref<clsComplex> ComplexObject(Rule rule)
{
    const ComplexValue z = rule.Complex(0);
    if (!Finite(z) && rule.FromFinite(0)) Raise(ErrorNumber::Overflow);
    return AsObject(z);
}

/// A rule for real elements among complex ones: those inside the domain keep their real value and
/// have an imaginary part of zero, unless they are the complex function's too.
template <class Rule> struct Promoted {
    Rule rule;

    ComplexValue Complex(std::size_t k)
    {
        return KeepsReal(k) ? AsComplex(rule.Real(k)) : rule.Complex(k);
    }
    bool KeepsReal(std::size_t k) const
    {
        if constexpr (requires { rule.AsksComplex(k); })
            return rule.InDomain(k) && !rule.AsksComplex(k);
        else
            return rule.InDomain(k);
    }
    bool FromFinite(std::size_t k) const { return rule.FromFinite(k); }
};

/// A clsMatrix if all elements lie inside the domain of the rule, otherwise a clsComplexMatrix.
template <class Rule> Variant RealOrComplex(Sizes sizes, std::size_t count, Rule rule)
{
    bool outside = false;
    for (std::size_t k = 0; k < count; ++k)
        outside |= !rule.InDomain(k);
    if (outside) return ComplexElements(sizes, Promoted<Rule>{std::move(rule)});
    return RealElements(sizes, std::move(rule));
}

/// A function of one number over the elements of a real matrix.
template <class F, class S> struct RealRule {
    F f;
    S in;
    OneTelling tell = {};

    bool InDomain(std::size_t k) const { return f.InDomain(in[k]); }
    bool AsksComplex(std::size_t k) const requires requires { F::AsksComplex(0.0); }
    {
        return F::AsksComplex(in[k]);
    }
    double Real(std::size_t k) { return f.Real(in[k], tell); }
    ComplexValue Complex(std::size_t k) { return f.Complex(AsComplex(in[k]), tell); }
    bool FromFinite(std::size_t k) const { return Finite(in[k]); }
};

template <class F, class M> Ref<clsMatrix> MapReal(const M& m)
{
    const auto in = SheetOf(m);
    return RealElements(SizesOf(m), RealRule<F, decltype(in)>{{}, in});
}

template <class F, class M> Variant MapOrPromote(const M& m, F f = {})
{
    const auto in = SheetOf(m);
    return RealOrComplex(SizesOf(m), in.Size(), RealRule<F, decltype(in)>{f, in});
}

/// A complex formula over elements of any kind. It takes the number and, if it has a guard, the
/// teller.
template <class Formula, class S> struct ComplexRule {
    Formula formula;
    S in;
    OneTelling tell = {};

    ComplexValue Complex(std::size_t k)
    {
        if constexpr (std::invocable<Formula, ComplexValue>)
            return formula(AsComplex(in[k]));
        else
            return formula(AsComplex(in[k]), tell);
    }
    bool FromFinite(std::size_t k) const { return Finite(AsComplex(in[k])); }
};
template <class Formula, class S> ComplexRule(Formula, S) -> ComplexRule<Formula, S>;
template <class Formula, class S> ComplexRule(Formula, S, OneTelling) -> ComplexRule<Formula, S>;

template <class Formula>
Ref<clsComplex> MapComplex(const clsComplex& z, Formula formula, OneTelling told = {})
{
    return ComplexObject(ComplexRule{formula, SheetOf(z), std::move(told)});
}

template <ComplexClass M, class Formula>
Ref<M> MapComplex(const M& m, Formula formula, OneTelling told = {})
{
    return ComplexElements<M>(SizesOf(m), ComplexRule{formula, SheetOf(m), std::move(told)});
}

template <class S> struct MagnitudeRule {
    S in;

    double Real(std::size_t k) const { return formulas::Magnitude(AsComplex(in[k])); }
    bool FromFinite(std::size_t k) const { return Finite(AsComplex(in[k])); }
};

template <class M> Ref<clsMatrix> Magnitudes(const M& m)
{
    const auto in = SheetOf(m);
    return RealElements(SizesOf(m), MagnitudeRule<decltype(in)>{in});
}

} // namespace lumora
