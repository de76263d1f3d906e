#pragma once

#include "numeric/Sheets.h"

#include <cstddef>
#include <vector>

namespace lumora {

/// Coefficients of a complex polynomial, the highest power first.
using Polynomial = std::vector<ComplexValue>;

inline ComplexValue operator+(ComplexValue a, ComplexValue b)
{
    return {a.re + b.re, a.im + b.im};
}
inline ComplexValue operator-(ComplexValue a, ComplexValue b)
{
    return {a.re - b.re, a.im - b.im};
}
inline ComplexValue operator*(ComplexValue a, ComplexValue b)
{
    return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}
inline ComplexValue operator*(double a, ComplexValue b)
{
    return {a * b.re, a * b.im};
}
/// By the ratio of the divisor's parts: no square overflows (R. L. Smith, CACM 5, 1962).
ComplexValue operator/(ComplexValue a, ComplexValue b);
/// Neither of these overflows unless its result does.
double Modulus(ComplexValue z);
ComplexValue SquareRoot(ComplexValue z);

/// A polynomial at one place.
struct PolynomialValue {
    ComplexValue value;
    ComplexValue slope; ///< first derivative
    ComplexValue bend;  ///< half the second derivative
    double noise = 0.0; ///< what rounding may have done to `value`, at most
};

/// Horner's scheme with a running bound of its rounding errors (D. A. Adams, CACM 10, 1967).
PolynomialValue ValueAt(const Polynomial& p, ComplexValue z);

/// p / (z - root), the remainder left out. A root of less than the mean magnitude is divided out
/// from the highest power on, another from the lowest: the other way round the errors of the
/// quotient grow with the degree (G. Peters, J. H. Wilkinson, J. Inst. Math. Appl. 8, 1971).
Polynomial DividedBy(const Polynomial& p, ComplexValue root);

} // namespace lumora
