#include "numeric/Operands.h"

#include "base/Numbers.h"
#include "numeric/ComplexText.h"
#include "numeric/clsComplex.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsMatrixComplex.h"
#include "numeric/clsString.h"
#include "numeric/clsVariant.h"

#include <optional>

namespace lumora {

namespace {

template <class To, class Convert> Array<To> ArrayOf(const Variant& array, Convert convert)
{
    return array.Visit([&convert]<class Held>(const Held& held) -> Array<To> {
        if constexpr (std::is_same_v<Held, Array<To>>)
            return held;
        else if constexpr (requires { Converted<To>(held, convert); })
            return Converted<To>(held, convert);
        else
            Raise(ErrorNumber::TypeMismatch);
    });
}

Ref<clsComplex> ComplexOf(const std::string& text)
{
    const std::optional<ComplexValue> z = SpelledComplex(text);
    if (!z) Raise(ErrorNumber::TypeMismatch);
    return MakeRef<clsComplex>(z->re, z->im);
}
template <std::same_as<Variant> T> Ref<clsComplex> ComplexOf(const T& value)
{
    return value.IsText() ? ComplexOf(value.template As<std::string>())
                          : value.template As<Ref<clsComplex>>();
}

} // namespace

const std::string* TagOf(const Variant& value)
{
    return value.Visit([](const auto& held) -> const std::string* {
        if constexpr (requires { held->TypeOfMatrix; })
            return &held->TypeOfMatrix;
        else
            return nullptr;
    });
}

Array<double> DoubleArray(const Variant& array)
{
    return ArrayOf<double>(
        array, [](const auto& x) requires requires { NumberOf(x); } { return NumberOf(x); });
}

Array<std::int32_t> LongArray(const Variant& array)
{
    return ArrayOf<std::int32_t>(
        array, [](const auto& x) requires requires { NumberOf(x); } { return CLng(NumberOf(x)); });
}

Array<Ref<clsComplex>> ComplexArray(const Variant& array)
{
    return ArrayOf<Ref<clsComplex>>(
        array, [](const auto& x) requires requires { ComplexOf(x); } { return ComplexOf(x); });
}

} // namespace lumora
