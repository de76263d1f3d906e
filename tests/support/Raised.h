#pragma once

#include "base/RunTimeError.h"

namespace lumora::test {

inline constexpr int kOverflow = static_cast<int>(ErrorNumber::Overflow);
inline constexpr int kSubscript = static_cast<int>(ErrorNumber::Subscript);
inline constexpr int kDivision = static_cast<int>(ErrorNumber::DivisionByZero);

/// The number of the run-time error that `action` raises, or 0 if it comes back.
template <class Action> int Raised(Action&& action)
{
    try {
        action();
    } catch (const RunTimeError& error) {
        return static_cast<int>(error.Number());
    }
    return 0;
}

} // namespace lumora::test
