#pragma once

#include "numeric/Sheets.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

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

/// No infinity and no NaN among `count` values.
bool AllFinite(const double* x, std::size_t count);

} // namespace lumora
