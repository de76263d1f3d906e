#pragma once

#include "base/Variant.h"

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>

namespace lumora {

/// The largest e with 10^e not above the magnitude of a number; 0 for zero and for what is not
/// finite.
std::int32_t ExponentOfTen(double number);

/// How many digits every cell of a matrix has before (as room) and behind the point; at least one
/// of each.
struct CellDigits {
    std::int32_t whole = 1;
    std::int32_t fraction = 1;
};

/// Digits for all cells of a matrix whose elements are the numbers of all `parts`. Whole numbers
/// have one fraction digit. Others have so many that the smallest shows five significant digits,
/// where a number below a thousandth of the largest does not count as the smallest.
CellDigits DigitsFor(std::initializer_list<std::span<const double>> parts);

/// One number: a sign or blank, at least one whole digit, a point and the fraction digits, with
/// blanks on the left up to the width that `digits` gives. Just "0" for what is not numeric.
std::string FormatRealCell(const Variant& value, CellDigits digits);

/// Real part, " + " or " - ", magnitude of the imaginary part, "i"; the parts as in FormatRealCell.
std::string FormatComplexCell(double re, double im, CellDigits digits);

} // namespace lumora
