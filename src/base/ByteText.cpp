#include "base/ByteStream.h"
#include "base/FileMessages.h"
#include "base/Messages.h"
#include "base/Numbers.h"
#include "base/Text.h"

#include <vector>

namespace lumora {

namespace {

std::vector<double> CharacterCodes(const Variant& value)
{
    return value.Visit([]<class T>(const T& held) {
        std::vector<double> codes;
        if constexpr (requires { NumberOf(held.Span()[0]); }) {
            for (const auto& element : held.Span())
                codes.push_back(NumberOf(element));
        } else if constexpr (requires { NumberOf(held); }) {
            codes.push_back(NumberOf(held));
        }
        return codes;
    });
}

std::string Deblanked(const Variant& value, std::string_view type_code, const char* title)
{
    if (value.IsText()) return std::string(TrimBlanks(value.As<std::string>()));
    std::string text;
    for (const double code : CharacterCodes(value)) {
        const double whole = type_code == "r" ? Int(code) : Round(code);
        if (!(whole >= 0.0 && whole <= 255.0)) {
            ShowFileError(title, file_messages::kOutOfRange);
            return {};
        }
        text.push_back(static_cast<char>(static_cast<unsigned char>(whole)));
    }
    return std::string(TrimBlanks(text));
}

} // namespace

std::string deblank(const Variant& Value, std::string_view TypeCode)
{
    return Deblanked(Value, TypeCode, file_messages::kDeblank);
}

std::string deblank1(const Variant& Value, std::string_view TypeCode)
{
    return Deblanked(Value, TypeCode, file_messages::kDeblank1);
}

} // namespace lumora
