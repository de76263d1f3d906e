#pragma once

#include "numeric/clsMatrix.h"

#include <cstdint>

namespace lumora {

/// BinSearchInArray.
std::int32_t FirstNotBelow(const clsMatrix& rising, std::int32_t& Left, std::int32_t& Right,
                           double number, double tolerance);

} // namespace lumora
