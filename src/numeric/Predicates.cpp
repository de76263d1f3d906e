#include "numeric/Predicates.h"

#include "base/Numbers.h"
#include "numeric/ComplexText.h"
#include "numeric/Operands.h"
#include "numeric/clsComplex.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"

#include <algorithm>
#include <cmath>
#include <concepts>
#include <optional>
#include <string>

namespace lumora {

namespace {

template <class T>
concept PlainArray = requires(const T& held)
{
    held.Dimensions();
};

/// The number that a value is or spells. Array and object are neither.
template <class T> std::optional<double> AnyNumber(const T& value)
{
    if constexpr (std::same_as<T, Variant>)
        return value.Visit([](const auto& held) { return AnyNumber(held); });
    else if constexpr (std::same_as<T, std::string>)
        return SpelledNumber(value);
    else if constexpr (requires { NumberOf(value); })
        return NumberOf(value);
    else
        return std::nullopt;
}

/// From 2^52 on every finite double is whole; below, the way through an integer is exact.
bool HasNoFraction(double x)
{
    constexpr double kNoFractions = 4503599627370496.0;
    if (!(std::abs(x) < kNoFractions)) return !std::isnan(x);
    return static_cast<double>(static_cast<std::int64_t>(x)) == x;
}

template <class T> bool IsWhole(const T& value)
{
    const std::optional<double> number = AnyNumber(value);
    return number && HasNoFraction(*number);
}

template <class T> bool IsComplex(const T& value)
{
    if constexpr (std::same_as<T, Variant>)
        return value.Visit([](const auto& held) { return IsComplex(held); });
    else if constexpr (std::same_as<T, Ref<clsComplex>>)
        return value && value->TypeOfMatrix.empty();
    else if constexpr (std::same_as<T, std::string>)
        return SpelledComplex(value).has_value();
    else
        return AnyNumber(value).has_value();
}

/// Only an object and a text make an element complex: a number beside them is of another kind.
template <class T> bool IsComplexElement(const T& element)
{
    if constexpr (std::same_as<T, Variant>)
        return element.Visit([](const auto& held) { return IsComplexElement(held); });
    else if constexpr (std::same_as<T, Ref<clsComplex>> || std::same_as<T, std::string>)
        return IsComplex(element);
    else
        return false;
}

template <class T> bool IsZero(const T& element)
{
    if constexpr (std::same_as<T, Variant>)
        return element.Visit([](const auto& held) { return IsZero(held); });
    else if constexpr (std::same_as<T, Ref<clsComplex>>)
        return element && element->Real == 0.0 && element->Image == 0.0;
    else
        return AnyNumber(element) == 0.0;
}

/// Asks every element in place. A value that is no array is asked itself if `Alone` says so.
enum class Alone { No, Yes };
template <class Question> bool Every(const Variant& value, Question question, Alone alone)
{
    return value.Visit([&]<class T>(const T& held) {
        if constexpr (PlainArray<T>) {
            const auto elements = held.Span();
            return std::all_of(elements.begin(), elements.end(), question);
        } else {
            return alone == Alone::Yes && question(held);
        }
    });
}

} // namespace

bool IsNumeric(const Variant& value)
{
    return AnyNumber(value).has_value();
}

bool IsWholeNumber(const Variant& value)
{
    return IsWhole(value);
}

bool IsComplexNumber(const Variant& value)
{
    return IsComplex(value);
}

bool IsTwoDimensional(const Variant& array)
{
    return array.Visit([]<class T>(const T& held) {
        if constexpr (PlainArray<T>)
            return held.Dimensions() == 2;
        else
            return false;
    });
}

bool IsNumericArray(const Variant& value)
{
    return Every(
        value, [](const auto& x) { return AnyNumber(x).has_value(); }, Alone::No);
}

bool IsIntegerArray(const Variant& value)
{
    return Every(
        value, [](const auto& x) { return IsWhole(x); }, Alone::No);
}

bool IsComplexArray(const Variant& value)
{
    return Every(
        value, [](const auto& x) { return IsComplexElement(x); }, Alone::No);
}

bool IsComplexText(const Variant& value)
{
    const std::string* tag = TagOf(value);
    if (!tag) return IsComplex(value);
    if (!tag->empty()) ShowPlainMessage(kIncorrectObjectStop);
    return tag->empty();
}

bool IsAllZero(const Variant& value)
{
    return Every(
        value, [](const auto& x) { return IsZero(x); }, Alone::Yes);
}

std::int32_t LengthOf(const clsMatrix& m)
{
    return std::max(m.size1, m.size2);
}

Ref<clsLong> GetSizeOfArray(const Variant& array)
{
    return array.Visit([]<class T>(const T& held) {
        if constexpr (PlainArray<T>) {
            const Sizes sizes = SizesOf(held);
            Array<std::int32_t> pair(2);
            pair(1) = sizes.rows;
            pair(2) = sizes.columns;
            return NewMatrix<clsLong>(std::move(pair));
        } else {
            ShowPlainMessage(kMustBeArray);
            return Ref<clsLong>();
        }
    });
}

} // namespace lumora
