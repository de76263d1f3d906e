#pragma once

#include "numeric/clsMatrix.h"

#include <span>

namespace lumora {

/// The elements of a row or a column. Error 9 for any other matrix.
std::span<const double> SamplesOf(const clsMatrix& vector);

} // namespace lumora
