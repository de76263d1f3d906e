#include "base/Numbers.h"

#include "base/RunTimeError.h"
#include "base/Text.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace lumora {

namespace {

template <class T> T Narrowed(double value)
{
    const double rounded = Round(value);
    // Written so that a NaN fails the test.
    if (!(rounded >= std::numeric_limits<T>::min() && rounded <= std::numeric_limits<T>::max()))
        Raise(ErrorNumber::Overflow);
    return static_cast<T>(rounded);
}

template <class T> T Narrowed(std::int64_t value)
{
    if (value < std::numeric_limits<T>::min() || value > std::numeric_limits<T>::max())
        Raise(ErrorNumber::Overflow);
    return static_cast<T>(value);
}

} // namespace

double Round(double value)
{
    return std::nearbyint(value);
}

double Int(double value)
{
    return std::floor(value);
}

std::int16_t CInt(double value)
{
    return Narrowed<std::int16_t>(value);
}

std::int32_t CLng(double value)
{
    return Narrowed<std::int32_t>(value);
}

std::uint8_t CByte(double value)
{
    return Narrowed<std::uint8_t>(value);
}

std::int16_t CInt(std::int64_t value)
{
    return Narrowed<std::int16_t>(value);
}

std::int32_t CLng(std::int64_t value)
{
    return Narrowed<std::int32_t>(value);
}

std::optional<double> SpelledNumber(std::string_view text)
{
    std::string_view digits = TrimBlanks(text);
    if (digits.starts_with('+')) {
        digits.remove_prefix(1);
        if (digits.starts_with('-')) return std::nullopt;
    }
    double value = 0.0;
    const auto [end, failure] =
        std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (failure != std::errc{} || end != digits.data() + digits.size() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

double CDbl(std::string_view text)
{
    const std::optional<double> number = SpelledNumber(text);
    if (!number) Raise(ErrorNumber::TypeMismatch);
    return *number;
}

double Divide(double dividend, double divisor)
{
    if (divisor == 0.0) Raise(ErrorNumber::DivisionByZero);
    return dividend / divisor;
}

std::int64_t DivideWhole(std::int64_t dividend, std::int64_t divisor)
{
    if (divisor == 0) Raise(ErrorNumber::DivisionByZero);
    return dividend / divisor;
}

} // namespace lumora
