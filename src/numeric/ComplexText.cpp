#include "numeric/ComplexText.h"

#include "base/Text.h"

namespace lumora {

namespace {

/// Where the imaginary part begins: the last sign that does not belong to an exponent.
std::size_t ImaginarySign(std::string_view text)
{
    const auto belongs = [&](std::size_t k) {
        return k > 0 && (text[k - 1] == 'e' || text[k - 1] == 'E');
    };
    std::size_t sign = text.find_last_of("+-");
    while (sign != std::string_view::npos && belongs(sign))
        sign = text.find_last_of("+-", sign - 1);
    return sign;
}

std::optional<double> SpelledOr(double if_blank, std::string_view text, SpelledNumberRule spelled)
{
    return TrimBlanks(text).empty() ? if_blank : spelled(text);
}

} // namespace

std::optional<ComplexValue> SpelledComplex(std::string_view text, SpelledNumberRule spelled)
{
    const std::string_view trimmed = TrimBlanks(text);
    if (!trimmed.ends_with('i')) {
        const std::optional<double> re = spelled(trimmed);
        return re ? std::optional(ComplexValue{*re, 0.0}) : std::nullopt;
    }
    const std::string_view number = trimmed.substr(0, trimmed.size() - 1);
    if (const std::optional<double> im = SpelledOr(1.0, number, spelled))
        return ComplexValue{0.0, *im};
    const std::size_t sign = ImaginarySign(number);
    if (sign == std::string_view::npos) return std::nullopt;
    const std::optional<double> re = SpelledOr(0.0, number.substr(0, sign), spelled);
    const std::optional<double> im = SpelledOr(1.0, number.substr(sign + 1), spelled);
    if (!re || !im) return std::nullopt;
    return ComplexValue{*re, number[sign] == '-' ? -*im : *im};
}

} // namespace lumora
