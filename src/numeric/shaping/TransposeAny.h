#pragma once

#include "base/Variant.h"

namespace lumora {

/// The transpose of anything: an object's own Transpose; a text as a clsString column with one
/// character (of its UTF-8) a row; an array of numbers as an array of the same element type, one
/// dimension being one row; an array of complex elements as a clsMatrixComplex. A number is its own
/// transpose, and an empty Variant stays empty. Another array shows "Incorrect type of Array.", an
/// object with a tag of no class "Incorrect Type of object."; then empty. Error 9 for what has no
/// elements.
Variant TransposeAny(const Variant& x);

} // namespace lumora
