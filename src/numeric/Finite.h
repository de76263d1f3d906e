#pragma once

#include "numeric/Sheets.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>

namespace lumora {

inline bool Finite(double x)
{
    return std::isfinite(x);
}
inline bool Finite(std::int32_t)
{
    return true;
}
inline bool Finite(ComplexValue z)
{
    return std::isfinite(z.re) && std::isfinite(z.im);
}

/// No infinity and no NaN among the values.
bool AllFinite(std::span<const double> x);
inline bool AllFinite(std::span<const std::int32_t>)
{
    return true;
}

} // namespace lumora
