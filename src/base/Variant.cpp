#include "base/Variant.h"

#include "base/Numbers.h"

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
