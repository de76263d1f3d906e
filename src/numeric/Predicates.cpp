#include "numeric/Predicates.h"

#include "base/Numbers.h"
#include "base/Text.h"
#include "numeric/Stores.h"
#include "numeric/clsComplex.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsMatrixComplex.h"
#include "numeric/clsString.h"
#include "numeric/clsVariant.h"

#include <algorithm>
#include <cmath>
#include <concepts>
#include <optional>
#include <string_view>

namespace lumora {

namespace {

template <class T>
concept PlainArray = requires(const T& held)
{
    held.Dimensions();
};
template <class T>
concept Object = requires(const T& held)
{
    held->TypeOfMatrix;
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

/// The part before a trailing "i": nothing, a number, a sign, or two parts that meet in a sign.
bool IsBeforeI(std::string_view text)
{
    const std::string_view rest = text.substr(0, text.find_last_not_of(' ') + 1);
    if (rest.empty() || rest == "+" || rest == "-" || SpelledNumber(rest)) return true;
    const auto sign = rest.find_last_not_of("0123456789. ");
    if (sign == std::string_view::npos || (rest[sign] != '+' && rest[sign] != '-')) return false;
    const std::string_view re = rest.substr(0, sign);
    const std::string_view im = TrimBlanks(rest.substr(sign + 1));
    const bool ends_the_real_part =
        SpelledNumber(re) || re.ends_with('e') || re.ends_with('E'); // then an exponent's sign
    return ends_the_real_part && (im.empty() || SpelledNumber(im));
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
        return SpellsComplex(value);
    else
        return AnyNumber(value).has_value();
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
        value, [](const auto& x) { return IsComplex(x); }, Alone::No);
}

bool IsComplexText(const Variant& value)
{
    return value.Visit([]<class T>(const T& held) {
        if constexpr (Object<T>) {
            if (held->TypeOfMatrix.empty()) return true;
            ShowPlainMessage(kIncorrectObjectStop);
            return false;
        } else {
            return IsComplex(held);
        }
    });
}

bool SpellsComplex(std::string_view text)
{
    const std::string_view trimmed = TrimBlanks(text);
    if (!trimmed.ends_with('i')) return SpelledNumber(trimmed).has_value();
    return IsBeforeI(trimmed.substr(0, trimmed.size() - 1));
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
