#pragma once

#include "numeric/elementwise/Arithmetic.h"
#include "numeric/linear/MatrixProduct.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace lumora {

/// The elements of a sheet of whole numbers as floats, in memory of their own.
struct WidenedSheet {
    std::vector<double> values;
    Sheet<double> sheet;

    explicit WidenedSheet(const Sheet<std::int32_t>& whole)
        : values(whole.values.begin(), whole.values.end()), sheet{whole.rows, whole.columns, values}
    {
    }
};

/// What a product into class R is computed from: floats, or a pair of them, unless R is whole.
template <class R, class S> decltype(auto) FactorOf(const S& sheet)
{
    if constexpr (std::is_same_v<S, Sheet<std::int32_t>> && !std::is_same_v<R, clsLong>)
        return WidenedSheet(sheet);
    else
        return (sheet);
}
inline const Sheet<double>& FloatsOf(const WidenedSheet& factor)
{
    return factor.sheet;
}
template <class S> const S& FloatsOf(const S& factor)
{
    return factor;
}

inline void Multiply(const Sheet<double>& a, const Sheet<double>& b, Draft<clsMatrix>& result)
{
    MatrixProduct(a, b, result.Elements().data());
}
inline void Multiply(const Sheet<std::int32_t>& a, const Sheet<std::int32_t>& b,
                     Draft<clsLong>& result)
{
    MatrixProduct(a, b, result.Elements().data());
}
inline void Multiply(const ComplexSheet& a, const ComplexSheet& b, Draft<clsComplexMatrix>& result)
{
    MatrixProduct(a, b, result.Real().data(), result.Image().data());
}
/// A real factor goes with either part for itself.
inline void Multiply(const Sheet<double>& a, const ComplexSheet& b, Draft<clsComplexMatrix>& result)
{
    MatrixProduct(a, {b.rows, b.columns, b.re}, result.Real().data());
    MatrixProduct(a, {b.rows, b.columns, b.im}, result.Image().data());
}
inline void Multiply(const ComplexSheet& a, const Sheet<double>& b, Draft<clsComplexMatrix>& result)
{
    MatrixProduct({a.rows, a.columns, a.re}, b, result.Real().data());
    MatrixProduct({a.rows, a.columns, a.im}, b, result.Image().data());
}

/// Error 6 for a sum that is not finite although its row and its column are.
template <class R, class A, class B>
void RefuseOverflow(const Draft<R>& result, const A& a, const B& b)
{
    const auto rows = static_cast<std::size_t>(a.rows);
    const auto depth = static_cast<std::size_t>(a.columns);
    for (std::size_t at = 0; at < result.Size(); ++at) {
        if (Finite(result[at])) continue;
        bool finite = true;
        for (std::size_t k = 0; k < depth; ++k)
            finite &= Finite(a[at % rows + k * rows]) && Finite(b[k + at / rows * depth]);
        if (finite) Raise(ErrorNumber::Overflow);
    }
}

/// The matrix product: a scalar scales, otherwise the inner sizes must agree. Empty after the
/// message if they do not.
template <class R, class A, class B> Ref<R> Product(const A& left, const B& right)
{
    const auto a = SheetOf(left);
    const auto b = SheetOf(right);
    if (a.IsScalar() || b.IsScalar()) return Arith<R, TimesRule>(left, right);
    if (a.columns != b.rows) {
        ShowPlainMessage(kMtimesSizes);
        return {};
    }
    Draft<R> result({a.rows, b.columns});
    const auto& factor_a = FactorOf<R>(a);
    const auto& factor_b = FactorOf<R>(b);
    Multiply(FloatsOf(factor_a), FloatsOf(factor_b), result);
    if (!result.Finite()) RefuseOverflow(result, a, b);
    return result.Take();
}

} // namespace lumora
