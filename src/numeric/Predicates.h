#pragma once

#include "base/Ref.h"
#include "base/Variant.h"

#include <cstdint>

namespace lumora {

// The questions that dispatchers ask. None of them changes or copies what it is asked about, and
// only IsComplexText and GetSizeOfArray ever show a message.

/// A number, or a text that spells one. An empty Variant is not numeric.
bool IsNumeric(const Variant& value);
/// Is it numeric and whole? Has it a place among complex numbers: numeric, a text that
/// IsComplexText accepts, or a clsComplex?
bool IsWholeNumber(const Variant& value);
bool IsComplexNumber(const Variant& value);

/// Is it an array with a second dimension?
bool IsTwoDimensional(const Variant& array);

/// Is it an array of which every element is numeric; IsWholeNumber; a clsComplex or a text that
/// IsComplexText accepts, but no plain number? True of an array without elements.
bool IsNumericArray(const Variant& value);
bool IsIntegerArray(const Variant& value);
bool IsComplexArray(const Variant& value);

/// A number, or a complex one as text: "i", "-i", "2.5 i", "1-3e-2i". Also a clsComplex; another
/// object shows "Incorrect type of object." and gives false.
bool IsComplexText(const Variant& value);

/// Is the number, or every element of the array, zero? A clsComplex is zero in both parts.
bool IsAllZero(const Variant& value);

/// The longer side of a matrix.
std::int32_t LengthOf(const clsMatrix& m);

/// 1 by 2: rows and columns, (1, length) for one dimension. What is no array shows that its type
/// must be array and gives empty; error 9 for an array without dimension.
Ref<clsLong> GetSizeOfArray(const Variant& array);

} // namespace lumora
