#pragma once

#include "base/Variant.h"

namespace lumora {

struct ComplexValue;

/// The smaller or larger of two values. Two numbers: the value itself, a where they are equal. A
/// number and an object: a clsMatrix of the object's sizes, each element against the number. Two
/// objects: a clsMatrix, element by element, a's where they are equal; other sizes show the titled
/// message "Error using Min." or "Error using Max.", then a 1 by 1 matrix of -1 on OK, empty on
/// Cancel. Error 13 for any other value, a complex one included: complex matrices compare by their
/// members.
Variant Min(const Variant& a, const Variant& b);
Variant Max(const Variant& a, const Variant& b);

/// Do the squared magnitudes m1 and m2 of two complex numbers differ: m2 + Tolerance > m1, or
/// m2 - Tolerance < m1? Error 6 where the squares of finite parts overflow.
/// Deliberate: a positive Tolerance lets even equal magnitudes differ, so that the angle is never
/// asked; a negative one makes a band of its width in which they do not, and an order by it depends
/// on which elements meet first.
bool MagnitudesDiffer(double re1, double im1, double re2, double im2, double Tolerance = 0.0);

/// The order of complex numbers: by squared magnitude where these differ, else by angle.
bool IsSmaller(ComplexValue a, ComplexValue b, double Tolerance);

} // namespace lumora
