#pragma once

#include <algorithm>
#include <span>

namespace lumora {

/// Zero of either sign all over; nothing at all counts as that too.
inline bool AllZero(std::span<const double> values)
{
    return std::all_of(values.begin(), values.end(), [](double x) { return x == 0.0; });
}

} // namespace lumora
