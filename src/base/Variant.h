#pragma once

#include "base/Array.h"
#include "base/Ref.h"
#include "base/RunTimeError.h"

#include <concepts>
#include <cstdint>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>

namespace lumora {

class clsMatrix;
class clsLong;
class clsComplexMatrix;
class clsMatrixComplex;
class clsComplex;
class clsString;
class clsVariant;

/// Fixed-point amount in ten-thousandths.
struct Currency {
    std::int64_t ten_thousandths = 0;
    bool operator==(const Currency&) const = default;
};

/// A moment as days, the fraction being the time of day.
struct Date {
    double days = 0.0;
    bool operator==(const Date&) const = default;
};

/// One element as a double: any number, or a text that spells one. Error 13 for another text.
template <class T>
requires std::is_arithmetic_v<T>
double NumberOf(T value)
{
    return static_cast<double>(value);
}
double NumberOf(Currency value);
double NumberOf(Date value);
double NumberOf(const std::string& text);

/// The other way: a number as one element of a kind. Whole kinds and Currency take the nearest,
/// half to even. Error 6 if it does not fit; a float takes infinities.
template <class T> T FromNumber(double number);
template <> std::uint8_t FromNumber(double number);
template <> std::int16_t FromNumber(double number);
template <> std::int32_t FromNumber(double number);
template <> float FromNumber(double number);
template <> double FromNumber(double number);
template <> Currency FromNumber(double number);
template <> Date FromNumber(double number);

/// The tagged value: empty, a number, a text, an array, or a Ref to one of the seven matrix
/// classes. A fresh one is empty.
class Variant {
public:
    Variant() = default;
    // Out of line: to copy or destroy a value of any of these kinds is much code, which every file
    // would otherwise compile anew.
    Variant(const Variant&);
    Variant(Variant&&) noexcept;
    Variant& operator=(const Variant&);
    Variant& operator=(Variant&&) noexcept;
    ~Variant();
    /// A value of any kind listed below is a Variant without further ado.
    template <class T>
    // NOLINTNEXTLINE(google-explicit-constructor)
    requires(!std::same_as<T, Variant>) Variant(T value) : held_(std::move(value)) {}

    bool IsEmpty() const { return Is<std::monostate>(); }
    bool IsNumber() const;
    bool IsText() const { return Is<std::string>(); }
    bool IsArray() const;

    template <class T> bool Is() const { return std::holds_alternative<T>(held_); }
    /// The value as exactly the type T. Error 13 if it holds another.
    template <class T> const T& As() const
    {
        if (!Is<T>()) Raise(ErrorNumber::TypeMismatch);
        return std::get<T>(held_);
    }
    /// Any number, or a text that spells one, as a double. Error 13 for anything else.
    double Number() const;

    /// Calls `visitor` with the value in its own type; std::monostate stands for empty.
    template <class Visitor> decltype(auto) Visit(Visitor&& visitor) const
    {
        return std::visit(std::forward<Visitor>(visitor), held_);
    }

    bool operator==(const Variant&) const = default;

private:
    std::variant<std::monostate, std::uint8_t, std::int16_t, std::int32_t, float, double, Currency,
                 Date, std::string, Array<std::uint8_t>, Array<std::int16_t>, Array<std::int32_t>,
                 Array<float>, Array<double>, Array<Currency>, Array<Date>, Array<std::string>,
                 Array<Ref<clsComplex>>, Array<Variant>, Ref<clsMatrix>, Ref<clsLong>,
                 Ref<clsComplexMatrix>, Ref<clsMatrixComplex>, Ref<clsComplex>, Ref<clsString>,
                 Ref<clsVariant>>
        held_;
};

/// As Variant::Number; a template, so that nothing else becomes a Variant on the way here.
template <std::same_as<Variant> T> double NumberOf(const T& value)
{
    return value.Number();
}

} // namespace lumora
