#pragma once

#include "base/Ref.h"
#include "base/Variant.h"

namespace lumora {

/// The roots of a polynomial as one row. `coefficients` is a clsMatrix or clsComplexMatrix of one
/// row or column, the highest power first; zeros in front are dropped, and zeros at the end are
/// roots of zero, which stand first. Then the roots come in the order in which they are found,
/// usually by rising magnitude, as often as they are roots. A real or imaginary part below 1e-14
/// in magnitude is 0.
///
/// Accuracy is what the coefficients' double precision leaves: about eps^(1/m) of the magnitude for
/// a root that occurs m times.
///
/// "The  parameter must be Vector or Complex Vector" for anything else, "The  Power of Polynom
/// equal Zero" where all coefficients but the last are zero; empty after both. Errors: 5 for a
/// coefficient that is not finite, 6 for a root beyond the floats, 91 for an empty Ref.
Ref<clsComplexMatrix> PolynomialRoots(const Variant& coefficients);

} // namespace lumora
