#include "base/Variant.h"

#include "base/Numbers.h"

#include <cmath>
#include <type_traits>

namespace lumora {

namespace {

template <class T> struct IsArrayType : std::false_type {
};
template <class T> struct IsArrayType<Array<T>> : std::true_type {
};

} // namespace

double NumberOf(Currency value)
{
    return static_cast<double>(value.ten_thousandths) / 10000.0;
}

double NumberOf(Date value)
{
    return value.days;
}

double NumberOf(const std::string& text)
{
    return CDbl(text);
}

template <> std::uint8_t FromNumber(double number)
{
    return CByte(number);
}

template <> std::int16_t FromNumber(double number)
{
    return CInt(number);
}

template <> std::int32_t FromNumber(double number)
{
    return CLng(number);
}

template <> float FromNumber(double number)
{
    const auto narrow = static_cast<float>(number);
    if (std::isinf(narrow) && !std::isinf(number)) Raise(ErrorNumber::Overflow);
    return narrow;
}

template <> double FromNumber(double number)
{
    return number;
}

template <> Currency FromNumber(double number)
{
    constexpr double kBeyond = 0x1p63;
    const double ten_thousandths = Round(number * 10000.0);
    // Written so that a NaN fails the test.
    if (!(ten_thousandths >= -kBeyond && ten_thousandths < kBeyond)) Raise(ErrorNumber::Overflow);
    return {static_cast<std::int64_t>(ten_thousandths)};
}

template <> Date FromNumber(double number)
{
    return {number};
}

Variant::Variant(const Variant&) = default;
Variant::Variant(Variant&&) noexcept = default;
Variant& Variant::operator=(const Variant&) = default;
Variant& Variant::operator=(Variant&&) noexcept = default;
Variant::~Variant() = default;

bool Variant::IsNumber() const
{
    return Visit([]<class T>(const T&) {
        return std::is_arithmetic_v<T> || std::is_same_v<T, Currency> || std::is_same_v<T, Date>;
    });
}

bool Variant::IsArray() const
{
    return Visit([]<class T>(const T&) { return IsArrayType<T>::value; });
}

double Variant::Number() const
{
    return Visit([]<class T>(const T& value) -> double {
        if constexpr (requires { NumberOf(value); })
            return NumberOf(value);
        else
            Raise(ErrorNumber::TypeMismatch);
    });
}

} // namespace lumora
