#include "numeric/Operands.h"

#include "base/Numbers.h"
#include "base/Text.h"
#include "numeric/clsComplex.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsMatrixComplex.h"
#include "numeric/clsString.h"
#include "numeric/clsVariant.h"

#include <string_view>

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

double ImaginaryFactor(std::string_view text)
{
    if (text.empty() || text == "+") return 1.0;
    return text == "-" ? -1.0 : CDbl(text);
}

/// Where the sign of the imaginary part stands: the last sign that is not an exponent's. 0 if there
/// is no real part.
std::size_t ImaginarySign(std::string_view text)
{
    for (std::size_t k = text.size(); k-- > 1;)
        if ((text[k] == '+' || text[k] == '-') && text[k - 1] != 'e' && text[k - 1] != 'E')
            return k;
    return 0;
}

std::string WithoutBlanks(std::string_view text)
{
    std::string kept;
    for (const char c : text)
        if (c != ' ') kept += c;
    return kept;
}

Ref<clsComplex> ComplexOfText(const std::string& written)
{
    const std::string text = WithoutBlanks(written);
    if (text.empty() || text.back() != 'i') return MakeRef<clsComplex>(CDbl(text), 0.0);
    const std::string_view number = std::string_view(text).substr(0, text.size() - 1);
    const std::size_t sign = ImaginarySign(number);
    const double re = sign == 0 ? 0.0 : CDbl(number.substr(0, sign));
    return MakeRef<clsComplex>(re, ImaginaryFactor(number.substr(sign)));
}

Ref<clsComplex> ComplexOf(const std::string& text)
{
    return ComplexOfText(text);
}
template <std::same_as<Variant> T> Ref<clsComplex> ComplexOf(const T& value)
{
    return value.IsText() ? ComplexOfText(value.template As<std::string>())
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
