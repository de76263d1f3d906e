#pragma once

#include "numeric/Sheets.h"
#include "numeric/elementwise/OneTelling.h"

namespace lumora {

/// The angle of (x, y), in (-pi, pi]. Deliberate: pi is a literal of fifteen digits, and a zero of
/// either sign is the same zero, so the lower side of the negative axis has the angle of the upper.
double Atan2(double y, double x);

/// The complex functions, on a plain pair. A guard shows its message through `tell` and gives the
/// value that stands in for the result. Overflow in between is error 6; what overflows at the end
/// is returned as it is, for the caller who knows whether z was finite.
namespace formulas {

/// sqrt(a^2 + b^2), without scaling: it overflows above 10^154.
double Magnitude(ComplexValue z);
double Angle(ComplexValue z);
/// A zero divisor, by the sum of its squares, shows `text` and gives 10^306.
ComplexValue Quotient(ComplexValue z, ComplexValue w, const char* text, OneTelling& tell);

/// By half the angle.
ComplexValue Sqrt(ComplexValue z);
/// From the half sum of magnitude and real part, without an angle.
ComplexValue SqrtByParts(ComplexValue z);

ComplexValue Exp(ComplexValue z, OneTelling& tell);
ComplexValue Log(ComplexValue z, OneTelling& tell);
/// To the base whose logarithm is told; for z = 0 what Log gives, whatever the base.
ComplexValue LogTo(double log_base, ComplexValue z, OneTelling& tell);
ComplexValue LogTo(ComplexValue log_base, ComplexValue z, OneTelling& tell);
ComplexValue Log2(ComplexValue z, OneTelling& tell);
ComplexValue Log10(ComplexValue z, OneTelling& tell);

ComplexValue Sin(ComplexValue z, OneTelling& tell);
ComplexValue Cos(ComplexValue z, OneTelling& tell);
ComplexValue Tan(ComplexValue z, OneTelling& tell);
ComplexValue Cot(ComplexValue z, OneTelling& tell);
ComplexValue Sec(ComplexValue z, OneTelling& tell);
ComplexValue Csc(ComplexValue z, OneTelling& tell);
ComplexValue Sinh(ComplexValue z, OneTelling& tell);
ComplexValue Cosh(ComplexValue z, OneTelling& tell);
ComplexValue Tanh(ComplexValue z, OneTelling& tell);
ComplexValue Coth(ComplexValue z, OneTelling& tell);
ComplexValue Sech(ComplexValue z, OneTelling& tell);
ComplexValue Csch(ComplexValue z, OneTelling& tell);

/// Principal values; on a cut the side follows from Atan2, and Asin and Asinh stay odd.
ComplexValue Asin(ComplexValue z, OneTelling& tell);
ComplexValue Acos(ComplexValue z, OneTelling& tell);
ComplexValue Atan(ComplexValue z, OneTelling& tell);
ComplexValue Acot(ComplexValue z, OneTelling& tell);
ComplexValue Asec(ComplexValue z, OneTelling& tell);
ComplexValue Acsc(ComplexValue z, OneTelling& tell);
ComplexValue Asinh(ComplexValue z, OneTelling& tell);
ComplexValue Acosh(ComplexValue z, OneTelling& tell);
ComplexValue Atanh(ComplexValue z, OneTelling& tell);
ComplexValue Acoth(ComplexValue z, OneTelling& tell);
ComplexValue Asech(ComplexValue z, OneTelling& tell);
ComplexValue Acsch(ComplexValue z, OneTelling& tell);

} // namespace formulas

/// An argument of TanM and its kin whose magnitude is over `limit`, divided by 10 until it is not:
/// their exponentials stay finite, and an infinity becomes the limit.
double Reduced(double x, double limit);

} // namespace lumora
