#pragma once

#include "base/Messages.h"
#include "numeric/Draft.h"
#include "numeric/ElementValues.h"
#include "numeric/NumericMessages.h"
#include "numeric/order/MinMax.h"

#include <cstddef>

namespace lumora {

// Does an element win against the one that stands? Strictly: of equal ones the first stands, and a
// NaN never wins.
struct Smaller {
    template <class A, class B> bool operator()(const A& x, const B& standing) const
    {
        return x < standing;
    }
};
struct Larger {
    template <class A, class B> bool operator()(const A& x, const B& standing) const
    {
        return standing < x;
    }
};
/// The same by the complex rule.
struct SmallerComplex {
    double tolerance = 0.0;
    template <class A, class B> bool operator()(const A& x, const B& standing) const
    {
        return IsSmaller(AsComplex(x), AsComplex(standing), tolerance);
    }
};
struct LargerComplex {
    double tolerance = 0.0;
    template <class A, class B> bool operator()(const A& x, const B& standing) const
    {
        return IsSmaller(AsComplex(standing), AsComplex(x), tolerance);
    }
};

/// Each element of a against the same one of b, or against a single value; a's where they are
/// equal. Other sizes: the message, and empty.
template <class M, class A, class B, class Wins> Ref<M> Pairwise(const A& a, const B& b, Wins wins)
{
    constexpr bool kAgainstOne = requires
    {
        b.value;
    };
    if (!kAgainstOne && (a.rows != b.rows || a.columns != b.columns)) {
        ShowPlainMessage(kDimensionsMustAgree);
        return {};
    }
    Draft<M> result({a.rows, a.columns});
    for (std::size_t k = 0; k < a.Size(); ++k) {
        if (wins(b[k], a[k]))
            result.Put(k, b[k]);
        else
            result.Put(k, a[k]);
    }
    return result.Take();
}

} // namespace lumora
