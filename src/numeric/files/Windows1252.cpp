#include "numeric/files/Windows1252.h"

#include "base/RunTimeError.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>

namespace lumora {

namespace {

constexpr std::size_t kAscii = 0x80;

/// The code points of the bytes 0x80 to 0x9F; all others are their own.
constexpr std::array<char16_t, 32> kSigns = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::string Utf8(unsigned code)
{
    const auto tail = [](unsigned bits) { return static_cast<char>(0x80 | (bits & 0x3F)); };
    if (code < 0x800) return {static_cast<char>(0xC0 | code >> 6), tail(code)};
    return {static_cast<char>(0xE0 | code >> 12), tail(code >> 6), tail(code)};
}

/// The UTF-8 of each byte above ASCII.
const std::array<std::string, 128>& HighCharacters()
{
    static const auto characters = [] {
        std::array<std::string, 128> made;
        for (unsigned k = 0; k < made.size(); ++k)
            made[k] = Utf8(k < kSigns.size() ? kSigns[k] : static_cast<unsigned>(kAscii) + k);
        return made;
    }();
    return characters;
}

/// The same the other way.
const std::map<std::string_view, char>& HighBytes()
{
    static const auto bytes = [] {
        std::map<std::string_view, char> made;
        for (std::size_t k = 0; k < HighCharacters().size(); ++k)
            made[HighCharacters()[k]] = static_cast<char>(kAscii + k);
        return made;
    }();
    return bytes;
}

bool IsAscii(char c)
{
    return static_cast<unsigned char>(c) < kAscii;
}

} // namespace

std::string Utf8FromWindows1252(std::string_view bytes)
{
    if (std::all_of(bytes.begin(), bytes.end(), IsAscii)) return std::string(bytes);
    std::string text;
    for (const char c : bytes) {
        if (IsAscii(c))
            text += c;
        else
            text += HighCharacters()[static_cast<unsigned char>(c) - kAscii];
    }
    return text;
}

std::string Windows1252FromUtf8(std::string_view text)
{
    if (std::all_of(text.begin(), text.end(), IsAscii)) return std::string(text);
    std::string bytes;
    for (std::size_t k = 0; k < text.size();) {
        if (IsAscii(text[k])) {
            bytes += text[k++];
            continue;
        }
        const bool three = static_cast<unsigned char>(text[k]) >= 0xE0;
        const std::string_view character = text.substr(k, three ? 3 : 2);
        const auto found = HighBytes().find(character);
        if (found == HighBytes().end()) Raise(ErrorNumber::InvalidCall);
        bytes += found->second;
        k += character.size();
    }
    return bytes;
}

} // namespace lumora
