#include "cli/pitch/PitchSetting.h"

#include "cli/pitch/ToneText.h"
#include "cli/terminal/UsageError.h"
#include "engine/Tones.h"

#include <charconv>
#include <cmath>

namespace lumora {

namespace {

struct NumberRange {
    const char* option;
    double lowest;
    double highest;
    const char* range; ///< the two as a user reads them
};

double ReadNumber(const std::string& text, const NumberRange& wanted)
{
    const char* first = text.data();
    const char* end = first + text.size();
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') ++first;
    double number = 0.0;
    const auto [stop, failure] = std::from_chars(first, end, number);
    const std::string given = std::string(wanted.option) + " " + text + ": ";
    if (failure != std::errc{} || stop != end || !std::isfinite(number))
        throw UsageError(given + "not a number; write one from " + wanted.range);
    if (number < wanted.lowest || number > wanted.highest)
        throw UsageError(given + "out of range; write a number from " + wanted.range);
    return number;
}

/// The number as it was written, with a sign in front.
std::string Signed(double number, const std::string& text)
{
    const bool signed_already = text[0] == '+' || text[0] == '-';
    return number == 0.0 || signed_already ? text : "+" + text;
}

} // namespace

PitchSetting PitchSetting::FromTones(const std::string& text)
{
    const int setting = ReadTones(text);
    const int tones = setting / kSixtyFourthsPerTone;
    const int part = setting % kSixtyFourthsPerTone;
    constexpr double kCents = kCentsPerOctave / (kSixtyFourthsPerTone * kTonesPerOctave);
    return {QuotientOfTones(tones, part, kSixtyFourthsPerTone), setting * kCents,
            TonesText(setting)};
}

PitchSetting PitchSetting::FromOctaves(const std::string& text)
{
    const double octaves = ReadNumber(text, {"--octaves", -1.0, 1.0, "-1 to 1"});
    return {QuotientOfOctaves(octaves), octaves * kCentsPerOctave,
            Signed(octaves, text) + " octaves"};
}

PitchSetting PitchSetting::FromCents(const std::string& text)
{
    const double cents = ReadNumber(text, {"--cents", -1200.0, 1200.0, "-1200 to 1200"});
    return {QuotientOfOctaves(cents / kCentsPerOctave), cents, Signed(cents, text) + " cents"};
}

PitchSetting PitchSetting::FromQuotient(const std::string& text)
{
    const double quotient = ReadNumber(text, {"--q-p", 0.5, 2.0, "0.5 to 2.0"});
    return {quotient, CentsOfQuotient(quotient), "Q_P " + text};
}

} // namespace lumora
