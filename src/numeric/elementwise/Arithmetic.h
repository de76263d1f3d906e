#pragma once

#include "base/Messages.h"
#include "numeric/ComputeEach.h"
#include "numeric/Draft.h"
#include "numeric/Sheets.h"
#include "numeric/clsComplex.h"
#include "numeric/elementwise/ArithmeticRules.h"

#include <cstddef>
#include <type_traits>

namespace lumora {

/// An element as the arithmetic of class R takes it: whole numbers stay whole only for a clsLong.
template <class R, class T> auto Taken(const T& element)
{
    if constexpr (std::is_same_v<T, std::int32_t> && !std::is_same_v<R, clsLong>)
        return static_cast<double>(element);
    else
        return element;
}

template <class R, class Rule, class ElementA, class ElementB>
void ComputeAll(Draft<R>& result, Rule& rule, ElementA a, ElementB b)
{
    ComputeEach(
        result, [&](std::size_t k) { return rule(a(k), b(k)); },
        [&](std::size_t k) { return Finite(a(k)) && Finite(b(k)); });
}

/// Scalar left, scalar right, same shape: once for all operators and classes. Empty after the
/// rule's message if the sizes do not fit.
template <class R, class Rule, class A, class B> Ref<R> Arith(const A& left, const B& right)
{
    const auto a = SheetOf(left);
    const auto b = SheetOf(right);
    const bool one_a = a.IsScalar();
    const bool one_b = b.IsScalar();
    if (!one_a && !one_b && (a.rows != b.rows || a.columns != b.columns)) {
        ShowPlainMessage(Rule::kSizesDisagree);
        return {};
    }
    Rule rule;
    Draft<R> result(one_a ? Sizes{b.rows, b.columns} : Sizes{a.rows, a.columns});
    const auto each_a = [a](std::size_t k) { return Taken<R>(a[k]); };
    const auto each_b = [b](std::size_t k) { return Taken<R>(b[k]); };
    if (one_a)
        ComputeAll(
            result, rule, [x = each_a(0)](std::size_t) { return x; }, each_b);
    else if (one_b)
        ComputeAll(result, rule, each_a, [x = each_b(0)](std::size_t) { return x; });
    else
        ComputeAll(result, rule, each_a, each_b);
    return result.Take();
}

/// Two complex scalars, or one and a number.
template <class Rule, class B> Ref<clsComplex> ArithScalar(const clsComplex& left, const B& right)
{
    const ComplexValue a = SheetOf(left)[0];
    const auto b = SheetOf(right)[0];
    const ComplexValue z = Rule{}(a, b);
    if (!Finite(z) && Finite(a) && Finite(b)) Raise(ErrorNumber::Overflow);
    return MakeRef<clsComplex>(z.re, z.im);
}

/// What becomes of a result that is not of the class its member declares: error 13, unless it is
/// empty. Deliberate; callers keep clear of these members.
template <class Declared, class Held> Ref<Declared> Stops(const Ref<Held>& result)
{
    if (result) Raise(ErrorNumber::TypeMismatch);
    return {};
}

} // namespace lumora
