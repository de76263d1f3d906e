#pragma once

#include "base/Numbers.h"
#include "numeric/clsLong.h"
#include "numeric/order/LineFold.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace lumora {

inline bool CountsAsZero(double x)
{
    return x == 0.0;
}
inline bool CountsAsZero(std::int32_t x)
{
    return x == 0;
}
inline bool CountsAsZero(ComplexValue z)
{
    return z.re == 0.0 && z.im == 0.0;
}
inline bool CountsAsZero(const std::string& text)
{
    return text.empty() || SpelledNumber(text) == 0.0;
}

/// Are all elements, or is any, other than zero? The number is the answer where there is none.
enum class Quantifier : std::int32_t { Any = 0, All = 1 };

/// A zero turns the answer of All, and anything else that of Any.
template <class T> bool Turns(Quantifier quantifier, const T& x)
{
    return CountsAsZero(x) == (quantifier == Quantifier::All);
}

/// All and AnyObj: 1 or 0 for each line. Empty for another dimention.
template <class M>
Ref<clsLong> AskedAlong(const M& m, const Variant& dimention, Quantifier quantifier)
{
    const auto sheet = SheetOf(m);
    const std::optional<Lines> lines = LinesAlong(dimention, sheet.rows);
    if (!lines) return {};
    const auto answer = static_cast<std::int32_t>(quantifier);
    const auto answers = FoldLines<std::int32_t>(
        *lines, sheet, [answer](std::size_t) { return answer; },
        [quantifier, answer](std::int32_t& state, const auto& x, std::size_t) {
            state = Turns(quantifier, x) ? 1 - answer : state;
        });
    return OneOfEachLine<clsLong>(*lines, answers, std::identity());
}

/// AllAll and AnyAny.
template <class M> bool Asked(const M& m, Quantifier quantifier)
{
    const auto sheet = SheetOf(m);
    const bool answer = quantifier == Quantifier::All;
    for (std::size_t k = 0; k < sheet.Size(); ++k)
        if (Turns(quantifier, ValueOf(sheet[k]))) return !answer;
    return answer;
}

} // namespace lumora
