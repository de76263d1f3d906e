#pragma once

#include "base/Variant.h"

namespace lumora {

// Power of each class: `base` to the power of a number, an array or an object. A 1 by 1 exponent
// goes with every element; another must have the sizes of the base, or "Matrix dimensions must
// agree." is shown. Another kind shows "Incorrect type of object." ("Parametr must be number or
// cls" for a clsComplex). Empty after a message. Real elements give a clsMatrix unless one of them
// is complex: a negative base with an exponent that is not whole. Anything to the power 0 is 1;
// zero to a power not above 0 shows "Divide by zero." once and gives 10^306. Error 6 on overflow.
Variant PowerOf(const clsMatrix& base, const Variant& exponent);
Variant PowerOf(const clsLong& base, const Variant& exponent);
/// A clsComplexMatrix.
Variant PowerOf(const clsComplexMatrix& base, const Variant& exponent);
/// A clsMatrixComplex for an exponent of that class, else a clsComplexMatrix.
Variant PowerOf(const clsMatrixComplex& base, const Variant& exponent);
/// A clsComplex, or for arrays and matrices a clsComplexMatrix of their shape.
Variant PowerOf(const clsComplex& base, const Variant& exponent);

} // namespace lumora
