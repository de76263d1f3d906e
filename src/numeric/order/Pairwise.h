#pragma once

#include "base/Messages.h"
#include "numeric/Draft.h"
#include "numeric/NumericMessages.h"
#include "numeric/Sheets.h"
#include "numeric/order/Comparers.h"

#include <cstddef>

namespace lumora {

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

// The smaller or the larger of each pair of elements, as class M. A tolerance asks for the complex
// rule.
template <class M, class A, class B, class... Tolerance>
Ref<M> SmallerOf(const A& a, const B& b, Tolerance... tolerance)
{
    return Pairwise<M>(SheetOf(a), SheetOf(b), SmallerBy(tolerance...));
}
template <class M, class A, class B, class... Tolerance>
Ref<M> LargerOf(const A& a, const B& b, Tolerance... tolerance)
{
    return Pairwise<M>(SheetOf(a), SheetOf(b), LargerBy(tolerance...));
}

} // namespace lumora
