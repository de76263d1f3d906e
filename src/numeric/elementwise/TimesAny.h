#pragma once

#include "base/Variant.h"

namespace lumora {

/// The element-wise product of two values of any kind; the left one decides:
/// - a matrix or clsComplex: its Times with b; another object shows "Incorrect Type of object.";
/// - an array: Times of the clsLong, clsMatrix or clsComplexMatrix that its elements make; empty
///   without a message for other elements;
/// - a number: with a number their product, with an object or array b the Times of b with a, and
///   with anything else "Incorrect type.";
/// - anything else: empty without a message.
/// Empty after a message. Errors as Times; 6 for a product of two numbers that overflows.
Variant TimesAny(const Variant& a, const Variant& b);

} // namespace lumora
