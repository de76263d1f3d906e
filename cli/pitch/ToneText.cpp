#include "cli/pitch/ToneText.h"

#include "cli/terminal/UsageError.h"
#include "engine/Tones.h"

#include <charconv>
#include <cstdlib>
#include <numeric>
#include <optional>

namespace lumora {

namespace {

constexpr char kGrammar[] = "write whole tones, a fraction with the denominator 2, 4, 8, 16, 32 or "
                            "64, or both: +1, 1/64, -2-3/8";

[[noreturn]] void Refuse(std::string_view text, const std::string& why)
{
    throw UsageError("--tones " + std::string(text) + ": " + why);
}

/// Takes a sign off the front of `rest`: 1 or -1, or 0 where there is none.
int TakeSign(std::string_view& rest)
{
    if (rest.empty() || (rest.front() != '+' && rest.front() != '-')) return 0;
    const int sign = rest.front() == '-' ? -1 : 1;
    rest.remove_prefix(1);
    return sign;
}

/// Takes digits off the front of `rest`; six are more than any setting needs.
std::optional<int> TakeDigits(std::string_view& rest)
{
    int number = 0;
    const auto [end, failure] = std::from_chars(rest.data(), rest.data() + rest.size(), number);
    const auto digits = static_cast<std::size_t>(end - rest.data());
    if (failure != std::errc{} || rest.front() == '-' || digits > 6) return {};
    rest.remove_prefix(digits);
    return number;
}

/// 64ths in number / denominator, where the denominator is one of the pads'.
std::optional<int> Fraction(int number, std::string_view denominator)
{
    for (const int each : {2, 4, 8, 16, 32, 64})
        if (denominator == std::to_string(each)) return number * (kSixtyFourthsPerTone / each);
    return {};
}

/// 64ths in the decimal places behind the point, if they are a whole number of them.
std::optional<int> DecimalPlaces(std::string_view places)
{
    while (!places.empty() && places.back() == '0')
        places.remove_suffix(1);
    if (places.empty()) return 0;
    int scale = 1; // a 64th has six places
    for (std::size_t k = 0; k < places.size() && k < 6; ++k)
        scale *= 10;
    const std::optional<int> number = TakeDigits(places);
    if (!number || !places.empty() || *number * kSixtyFourthsPerTone % scale != 0) return {};
    return *number * kSixtyFourthsPerTone / scale;
}

std::optional<int> Decimal(std::string_view rest)
{
    const std::size_t point = rest.find('.');
    std::string_view whole = rest.substr(0, point);
    const std::string_view places = rest.substr(point + 1);
    if (whole.empty() && places.empty()) return {};
    const std::optional<int> tones = whole.empty() ? 0 : TakeDigits(whole);
    const std::optional<int> part = DecimalPlaces(places);
    if (!tones || !whole.empty() || !part) return {};
    return *tones * kSixtyFourthsPerTone + *part;
}

/// "3", "3/8" or "2-3/8" behind the leading sign.
std::optional<int> WholeAndFraction(std::string_view text, std::string_view rest, int sign)
{
    std::optional<int> number = TakeDigits(rest);
    if (!number) return {};
    int whole = 0;
    if (rest.empty()) return *number * kSixtyFourthsPerTone;
    if (const int second = TakeSign(rest)) {
        if (second != sign)
            Refuse(text, "the whole tones and the fraction point in opposite ways; give both the "
                         "same sign");
        whole = *number;
        number = TakeDigits(rest);
    }
    if (!number || rest.empty() || rest.front() != '/') return {};
    const std::optional<int> part = Fraction(*number, rest.substr(1));
    if (!part) return {};
    return whole * kSixtyFourthsPerTone + *part;
}

} // namespace

int ReadTones(std::string_view text)
{
    std::string_view rest = text;
    const int sign = TakeSign(rest) < 0 ? -1 : 1;
    const bool decimal = rest.find('.') != std::string_view::npos;
    const std::optional<int> size = decimal ? Decimal(rest) : WholeAndFraction(text, rest, sign);
    if (!size && decimal)
        Refuse(text, "not exactly a whole number of 64ths of a tone; " + std::string(kGrammar) +
                         ", or use --cents");
    if (!size) Refuse(text, kGrammar);
    if (*size > kTonesPerOctave * kSixtyFourthsPerTone)
        Refuse(text, "beyond an octave; the range is -6 to 6 tones");
    return sign * *size;
}

std::string TonesText(int sixty_fourths)
{
    const std::string sign = sixty_fourths < 0 ? "-" : "+";
    const int size = std::abs(sixty_fourths);
    const int whole = size / kSixtyFourthsPerTone;
    const int part = size % kSixtyFourthsPerTone;
    std::string text;
    if (whole != 0 || part == 0) text = (size == 0 ? "" : sign) + std::to_string(whole);
    if (part != 0) {
        const int common = std::gcd(part, kSixtyFourthsPerTone);
        text += sign + std::to_string(part / common) + "/" +
                std::to_string(kSixtyFourthsPerTone / common);
    }
    return text + (size != 0 && size <= kSixtyFourthsPerTone ? " tone" : " tones");
}

} // namespace lumora
