#include "numeric/linear/Polynomial.h"

#include <cmath>
#include <limits>

namespace lumora {

ComplexValue operator/(ComplexValue a, ComplexValue b)
{
    if (std::abs(b.re) >= std::abs(b.im)) {
        const double ratio = b.im / b.re;
        const double divisor = b.re + b.im * ratio;
        return {(a.re + a.im * ratio) / divisor, (a.im - a.re * ratio) / divisor};
    }
    const double ratio = b.re / b.im;
    const double divisor = b.re * ratio + b.im;
    return {(a.re * ratio + a.im) / divisor, (a.im * ratio - a.re) / divisor};
}

double Modulus(ComplexValue z)
{
    return std::hypot(z.re, z.im);
}

ComplexValue SquareRoot(ComplexValue z)
{
    if (z == ComplexValue{}) return {};
    const double larger = std::sqrt(0.5 * Modulus(z) + 0.5 * std::abs(z.re));
    const double smaller = 0.5 * std::abs(z.im) / larger;
    const double re = z.re >= 0.0 ? larger : smaller;
    const double im = z.re >= 0.0 ? smaller : larger;
    return {re, std::copysign(im, z.im)};
}

PolynomialValue ValueAt(const Polynomial& p, ComplexValue z)
{
    // A complex product errs by sqrt(5) roundings and a sum by one; a rounding is half an epsilon.
    constexpr double kStepError = 2.0 * std::numeric_limits<double>::epsilon();
    const double distance = Modulus(z);
    PolynomialValue at;
    for (const ComplexValue& coefficient : p) {
        at.bend = at.bend * z + at.slope;
        at.slope = at.slope * z + at.value;
        at.value = at.value * z + coefficient;
        at.noise = at.noise * distance + Modulus(at.value);
    }
    at.noise *= kStepError;
    return at;
}

Polynomial DividedBy(const Polynomial& p, ComplexValue root)
{
    const std::size_t degree = p.size() - 1;
    const double all = std::log(Modulus(p.back())) - std::log(Modulus(p.front()));
    const bool is_large = static_cast<double>(degree) * std::log(Modulus(root)) > all;
    if (is_large) {
        Polynomial quotient(p.begin() + 1, p.end());
        quotient.back() = ComplexValue{} - quotient.back() / root;
        for (std::size_t k = degree - 1; k-- > 0;)
            quotient[k] = (quotient[k + 1] - quotient[k]) / root;
        return quotient;
    }
    Polynomial quotient(p.begin(), p.end() - 1);
    for (std::size_t k = 1; k < degree; ++k)
        quotient[k] = quotient[k] + root * quotient[k - 1];
    return quotient;
}

} // namespace lumora
