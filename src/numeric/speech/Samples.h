#pragma once

#include "base/Variant.h"
#include "numeric/clsMatrix.h"

#include <cstdint>
#include <span>

namespace lumora {

/// The elements of a row or a column. Error 9 for any other matrix.
std::span<const double> SamplesOf(const clsMatrix& vector);

/// ScallProd.
double DotProduct(const clsMatrix& row, std::int32_t first, std::int32_t second,
                  const Variant& length);

/// SoundMinusAverage1.
Ref<clsMatrix> MinusAverage(const clsMatrix& vector, const Variant& count);

} // namespace lumora
