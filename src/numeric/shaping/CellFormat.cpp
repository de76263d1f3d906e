#include "numeric/shaping/CellFormat.h"

#include "base/Numbers.h"
#include "numeric/Predicates.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace lumora {

namespace {

constexpr std::int32_t kSignificant = 5;
constexpr std::int32_t kSpread = 3; // exponents below the largest that still choose the digits

/// Digits of a magnitude, or its name if it has none: never an exponent.
std::string Printed(double magnitude, std::int32_t fraction)
{
    if (std::isnan(magnitude)) return "NaN";
    if (std::isinf(magnitude)) return "Inf";
    std::array<char, 768> text; // 309 whole digits, a point, and 328 for the smallest number
    const auto end = std::to_chars(text.data(), text.data() + text.size(), magnitude,
                                   std::chars_format::fixed, fraction)
                         .ptr;
    return {text.data(), end};
}

std::size_t Width(CellDigits digits)
{
    return static_cast<std::size_t>(digits.whole + 1 + digits.fraction);
}

std::string PaddedLeft(std::string text, std::size_t width)
{
    if (text.size() < width) text.insert(0, width - text.size(), ' ');
    return text;
}

/// What the choice of digits depends on.
struct Extent {
    double largest = 0.0;
    double smallest = 0.0; ///< of those that are not zero
    bool whole = true;
    bool finite = true;

    void Take(double x)
    {
        const double magnitude = std::abs(x);
        if (!std::isfinite(magnitude)) {
            finite = false;
            return;
        }
        whole = whole && Int(x) == x;
        largest = std::max(largest, magnitude);
        if (magnitude > 0.0) smallest = smallest > 0.0 ? std::min(smallest, magnitude) : magnitude;
    }
};

} // namespace

std::int32_t ExponentOfTen(double number)
{
    // The shortest decimal form has the exponent without the rounding of repeated division.
    std::array<char, 32> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), std::abs(number),
                                   std::chars_format::scientific)
                         .ptr;
    const auto mark = std::find(text.data(), end, 'e');
    if (number == 0.0 || mark == end) return 0;
    std::int32_t exponent = 0;
    std::from_chars(mark + (mark[1] == '+' ? 2 : 1), end, exponent);
    return exponent;
}

CellDigits DigitsFor(std::initializer_list<std::span<const double>> parts)
{
    Extent extent;
    for (const auto& part : parts)
        for (const double x : part)
            extent.Take(x);
    CellDigits digits;
    if (!extent.whole) {
        const std::int32_t lowest =
            std::max(ExponentOfTen(extent.smallest), ExponentOfTen(extent.largest) - kSpread);
        digits.fraction = std::max(digits.fraction, kSignificant - 1 - lowest);
    }
    // Printed, because rounding to the fraction digits can bring one more digit before the point.
    const std::string widest = Printed(extent.largest, digits.fraction);
    digits.whole = static_cast<std::int32_t>(widest.find('.'));
    if (!extent.finite) digits.whole = std::max(digits.whole, 3);
    return digits;
}

std::string FormatRealCell(const Variant& value, CellDigits digits)
{
    if (!IsNumeric(value)) return "0";
    const double x = value.Number();
    return PaddedLeft((x < 0.0 ? "-" : " ") + Printed(std::abs(x), digits.fraction),
                      Width(digits) + 1);
}

std::string FormatComplexCell(double re, double im, CellDigits digits)
{
    return FormatRealCell(re, digits) + (im < 0.0 ? " - " : " + ") +
           PaddedLeft(Printed(std::abs(im), digits.fraction), Width(digits)) + "i";
}

} // namespace lumora
