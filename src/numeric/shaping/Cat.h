#pragma once

#include "base/Variant.h"

#include <cstdint>

namespace lumora {

/// Joins two things to one new matrix: B below A (dimention 1, equal columns) or to the right of it
/// (2, equal rows). A number, text or clsComplex is 1 by 1, an array one of the classes below by
/// its elements. Two real operands give a clsMatrix, a complex and another number a
/// clsComplexMatrix (clsMatrixComplex if one is of that class), two clsString a clsString, and any
/// other pair with a clsString or clsVariant a clsVariant. Where an object has no elements the
/// result is a copy of the other operand.
/// Titled messages: "Error using Cat." for sizes that do not fit; "Error using Cat" for another
/// dimention and, with another text, for what is nothing to join. Then a 1 by 1 matrix of -1 on OK,
/// empty on Cancel.
Variant Cat(std::int16_t dimention, const Variant& A, const Variant& B);

} // namespace lumora
