#pragma once

#include "base/Ref.h"
#include "base/Variant.h"
#include "numeric/Stores.h"
#include "numeric/clsMatrix.h"

#include <optional>

namespace lumora {

// Two questions to an object of whatever class, for routines that take any. Error 91 for a missing
// object.

/// Nothing for a clsComplex and for a value that is no object.
std::optional<Sizes> SizesOfObject(const Variant& object);

/// The elements as GetArr would give them one by one, as numbers; a clsMatrix is its own. Error 13
/// for the complex classes, which have no GetArr, for a text or value that is no number, and for a
/// value that is no object.
Ref<clsMatrix> NumbersOfObject(const Variant& object);

} // namespace lumora
