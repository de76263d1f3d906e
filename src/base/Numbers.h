#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <string_view>

namespace lumora {

/// To the nearest whole number, half to even; no range limit.
double Round(double value);

/// The floor: the greatest whole number not above `value`.
double Int(double value);

/// To 16 signed bits, nearest, half to even. Error 6 out of range or for a NaN.
std::int16_t CInt(double value);
/// To 32 signed bits, nearest, half to even. Error 6 out of range or for a NaN.
std::int32_t CLng(double value);
/// To 8 unsigned bits, nearest, half to even. Error 6 out of range or for a NaN.
std::uint8_t CByte(double value);

/// Whole numbers narrow exactly or raise error 6; they never pass through a float.
std::int16_t CInt(std::int64_t value);
std::int32_t CLng(std::int64_t value);
template <std::integral T> std::int16_t CInt(T value)
{
    return CInt(static_cast<std::int64_t>(value));
}
template <std::integral T> std::int32_t CLng(T value)
{
    return CLng(static_cast<std::int64_t>(value));
}

/// The number that a text spells, blanks around it allowed; nothing if it spells none.
std::optional<double> SpelledNumber(std::string_view text);
/// The same; error 13 if the text spells none.
double CDbl(std::string_view text);

/// Quotient of floats. Error 11 when `divisor` is zero.
double Divide(double dividend, double divisor);
/// Quotient of whole numbers, truncated towards zero. Error 11 when `divisor` is zero.
std::int64_t DivideWhole(std::int64_t dividend, std::int64_t divisor);

} // namespace lumora
