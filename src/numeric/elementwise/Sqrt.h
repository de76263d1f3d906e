#pragma once

#include "base/Variant.h"

namespace lumora {

/// The square root of anything: of a number a number, of a negative one a clsComplex; of a
/// clsMatrix a clsMatrix, or a clsComplexMatrix if an element is negative; of a clsComplex,
/// clsComplexMatrix or clsMatrixComplex an object of the same class. Unlike SqrM, no angle is
/// involved. Anything else, a clsLong too, shows the titled message "Error using Sqrt"; then a 1 by
/// 1 matrix of -1 on OK, empty on Cancel.
Variant Sqrt(const Variant& x);

} // namespace lumora
