#pragma once

#include "base/RunTimeError.h"
#include "numeric/Draft.h"
#include "numeric/Finite.h"

#include <algorithm>
#include <cstddef>

namespace lumora {

/// Element k = element(k), block by block, so that the look for overflows finds its results in the
/// nearest cache. Error 6 if one is not finite although what it came from was: from_finite(k).
template <class M, class Element, class FromFinite>
void ComputeEach(Draft<M>& draft, Element&& element, FromFinite&& from_finite)
{
    constexpr std::size_t kBlock = 1024;
    for (std::size_t from = 0; from < draft.Size(); from += kBlock) {
        const std::size_t to = std::min(from + kBlock, draft.Size());
        if (draft.Fill(from, to, element)) continue;
        for (std::size_t k = from; k < to; ++k)
            if (!Finite(draft[k]) && from_finite(k)) Raise(ErrorNumber::Overflow);
    }
}

} // namespace lumora
