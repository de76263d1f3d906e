#include "numeric/linear/RootSearch.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

namespace lumora {

namespace {

constexpr double kTolerance = 1e-14;
constexpr double kLongestStep = 1e5;
constexpr double kLargestValue = 1e130; // its square is still a number
constexpr int kFirstRounds = 1000;
constexpr int kCircleRounds = 150;
constexpr int kCircleStarts = 360; // one turn; further starts would repeat it
constexpr int kPolishRounds = 100;

bool Below(ComplexValue z, double limit)
{
    return std::abs(z.re) < limit && std::abs(z.im) < limit;
}

/// Laguerre's step from the values at a place; infinite or NaN where the method has no direction.
ComplexValue LaguerreStep(double degree, const PolynomialValue& at)
{
    const ComplexValue square = (degree - 1.0) * (at.slope * at.slope);
    const ComplexValue product = 2.0 * degree * (at.value * at.bend);
    const ComplexValue root = SquareRoot((degree - 1.0) * (square - product));
    const ComplexValue plus = at.slope + root;
    const ComplexValue minus = at.slope - root;
    return degree * at.value / (Modulus(plus) > Modulus(minus) ? plus : minus);
}

std::optional<ComplexValue> RootFrom(const Polynomial& p, ComplexValue start, int rounds)
{
    const auto degree = static_cast<double>(p.size() - 1);
    ComplexValue z = start;
    for (int round = 0; round < rounds; ++round) {
        const PolynomialValue at = ValueAt(p, z);
        if (!Below(at.value, kLargestValue) || !Below(at.slope, kLargestValue) ||
            !Below(at.bend, kLargestValue))
            return std::nullopt;
        if (Modulus(at.value) <= at.noise) return z;
        const ComplexValue step = LaguerreStep(degree, at);
        if (!Below(step, kLongestStep)) return std::nullopt;
        z = z - step;
        if (Modulus(step) <= kTolerance * Modulus(z)) return z;
    }
    return std::nullopt;
}

std::optional<ComplexValue> RootFromAnyStart(const Polynomial& p)
{
    if (const auto root = RootFrom(p, {0.1, 0.1}, kFirstRounds)) return root;
    const double eighth = std::atan(1.0);
    for (int k = 0; k < kCircleStarts; ++k) {
        const double theta = eighth + k * (8.0 * eighth / kCircleStarts);
        if (const auto root = RootFrom(p, {std::cos(theta), std::sin(theta)}, kCircleRounds))
            return root;
    }
    return std::nullopt;
}

ComplexValue TimesPowerOfTwo(ComplexValue z, int power)
{
    return {std::ldexp(z.re, power), std::ldexp(z.im, power)};
}

int Exponent(ComplexValue z)
{
    return std::ilogb(std::max(std::abs(z.re), std::abs(z.im)));
}

/// p in the unit of length 2^unit, its largest coefficient about 1. Nothing is rounded on the way.
Polynomial InUnit(const Polynomial& p, int unit)
{
    const auto power = [&](std::size_t k) { return unit * static_cast<int>(p.size() - 1 - k); };
    int largest = std::numeric_limits<int>::min();
    for (std::size_t k = 0; k < p.size(); ++k)
        if (p[k] != ComplexValue{}) largest = std::max(largest, Exponent(p[k]) + power(k));
    Polynomial scaled(p.size());
    for (std::size_t k = 0; k < p.size(); ++k)
        scaled[k] = TimesPowerOfTwo(p[k], power(k) - largest);
    return scaled;
}

/// What Newton's method says at z, and whether rounding has the last word there.
struct Correction {
    ComplexValue newton; ///< p / p'
    bool lost;
};

/// Beyond the unit circle from the polynomial of the inverse roots, whose powers stay small.
Correction CorrectionAt(const Polynomial& p, const Polynomial& inverse, ComplexValue z)
{
    if (Modulus(z) <= 1.0) {
        const PolynomialValue at = ValueAt(p, z);
        return {at.value / at.slope, Modulus(at.value) <= at.noise};
    }
    const auto degree = static_cast<double>(p.size() - 1);
    const ComplexValue w = ComplexValue{1.0, 0.0} / z;
    const PolynomialValue at = ValueAt(inverse, w);
    return {at.value / (w * (degree * at.value - w * at.slope)), Modulus(at.value) <= at.noise};
}

/// The pull of all other roots.
ComplexValue HoldingOff(const std::vector<ComplexValue>& roots, std::size_t k)
{
    ComplexValue sum;
    for (const ComplexValue& other : roots)
        if (other != roots[k]) sum = sum + ComplexValue{1.0, 0.0} / (roots[k] - other);
    return sum;
}

/// One step of one root; false when it is the last.
bool Improve(const Polynomial& p, const Polynomial& inverse, std::vector<ComplexValue>& roots,
             std::size_t k)
{
    const Correction at = CorrectionAt(p, inverse, roots[k]);
    const ComplexValue held = ComplexValue{1.0, 0.0} - at.newton * HoldingOff(roots, k);
    const ComplexValue step = at.newton / held;
    // Where rounding rules, only a simple root has steps below half of the digits: the last one
    // still sets its smaller part right.
    const double half_digits = std::sqrt(std::numeric_limits<double>::epsilon());
    const double longest =
        at.lost ? half_digits * Modulus(roots[k]) : kLongestStep * Modulus(roots[k]);
    if (!Below(step, longest)) return false;
    roots[k] = roots[k] - step;
    return !at.lost && Modulus(step) > std::numeric_limits<double>::epsilon() * Modulus(roots[k]);
}

} // namespace

std::optional<ComplexValue> FindRoot(const Polynomial& p)
{
    if (p.back() == ComplexValue{}) return ComplexValue{};
    if (const auto root = RootFromAnyStart(InUnit(p, 0))) return root;
    const int unit = (Exponent(p.back()) - Exponent(p.front())) / static_cast<int>(p.size() - 1);
    const auto root = RootFromAnyStart(InUnit(p, unit));
    if (!root) return std::nullopt;
    return TimesPowerOfTwo(*root, unit);
}

void Polish(const Polynomial& p, std::vector<ComplexValue>& roots)
{
    const Polynomial inverse(p.rbegin(), p.rend());
    std::vector<bool> settled(roots.size());
    for (int round = 0; round < kPolishRounds; ++round)
        for (std::size_t k = 0; k < roots.size(); ++k)
            if (!settled[k]) settled[k] = !Improve(p, inverse, roots, k);
}

} // namespace lumora
