#pragma once

#include "base/Variant.h"

namespace lumora {

/// The magnitude of anything: of a matrix or a clsComplex by its AbsM, of a numeric or complex
/// array an array of doubles with the same bounds, of a number a double. Another object shows
/// "Incorrect Type of object.", another array "Incorrect type of Array.", anything else "Incorrect
/// type."; then empty.
Variant AbsAny(const Variant& x);

} // namespace lumora
