#include "numeric/files/Windows1252.h"

#include "support/Raised.h"

#include <gtest/gtest.h>

#include <set>

namespace lumora {
namespace {

using test::Raised;

// Byte and character, from the published code chart.
const struct {
    char byte;
    const char* text;
} kChart[] = {
    {'\x80', "€"}, {'\x82', "‚"}, {'\x83', "ƒ"}, {'\x84', "„"},      {'\x85', "…"}, {'\x86', "†"},
    {'\x87', "‡"}, {'\x88', "ˆ"}, {'\x89', "‰"}, {'\x8A', "Š"},      {'\x8B', "‹"}, {'\x8C', "Œ"},
    {'\x8E', "Ž"}, {'\x91', "‘"}, {'\x92', "’"}, {'\x93', "“"},      {'\x94', "”"}, {'\x95', "•"},
    {'\x96', "–"}, {'\x97', "—"}, {'\x98', "˜"}, {'\x99', "™"},      {'\x9A', "š"}, {'\x9B', "›"},
    {'\x9C', "œ"}, {'\x9E', "ž"}, {'\x9F', "Ÿ"}, {'\xA0', "\u00A0"}, {'\xA7', "§"}, {'\xB5', "µ"},
    {'\xC4', "Ä"}, {'\xD7', "×"}, {'\xDF', "ß"}, {'\xE9', "é"},      {'\xF7', "÷"}, {'\xFF', "ÿ"},
};

TEST(Windows1252, FollowsTheCodeChartBothWays)
{
    for (const auto& [byte, text] : kChart) {
        EXPECT_EQ(Utf8FromWindows1252({&byte, 1}), text);
        EXPECT_EQ(Windows1252FromUtf8(text), std::string(1, byte)) << text;
    }
}

TEST(Windows1252, LeavesAsciiAsItIs)
{
    std::string ascii;
    for (int code = 0; code < 128; ++code)
        ascii += static_cast<char>(code);
    EXPECT_EQ(Utf8FromWindows1252(ascii), ascii);
    EXPECT_EQ(Windows1252FromUtf8(ascii), ascii);
    EXPECT_EQ(Windows1252FromUtf8(""), "");
}

TEST(Windows1252, GivesEveryByteACharacterOfItsOwnThatComesBack)
{
    std::set<std::string> seen;
    std::string all;
    for (int code = 0; code < 256; ++code) {
        const std::string byte(1, static_cast<char>(code));
        EXPECT_TRUE(seen.insert(Utf8FromWindows1252(byte)).second) << code;
        all += byte;
    }
    EXPECT_EQ(Windows1252FromUtf8(Utf8FromWindows1252(all)), all);
}

TEST(Windows1252, GivesBytesWithoutCharacterTheControlCharacterOfTheirCode)
{
    EXPECT_EQ(Utf8FromWindows1252("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
}

TEST(Windows1252, MixesWithAsciiInOneText)
{
    EXPECT_EQ(Windows1252FromUtf8("50 € für Zoë"), "50 \x80 f\xFCr Zo\xEB");
    EXPECT_EQ(Utf8FromWindows1252("50 \x80 f\xFCr Zo\xEB"), "50 € für Zoë");
}

TEST(Windows1252, RefusesCharactersThatItDoesNotHave)
{
    for (const char* text : {"Ж", "日本", "a\u0080", "ł", "♪", "😀", "x\uFEFF", "e\u0301"})
        EXPECT_EQ(Raised([&] { Windows1252FromUtf8(text); }), 5) << text;
}

TEST(Windows1252, RefusesWhatIsNoUtf8)
{
    for (const char* text : {"\xC3", "\xC3(", "\xE9", "\x80", "\xE2\x82", "\xC1\xA1",
                             "\xE0\x83\xA9", "\xF0\x80\x83\xA9", "\xFF", "\xC3\xA9\xA9"})
        EXPECT_EQ(Raised([&] { Windows1252FromUtf8(text); }), 5) << text;
}

} // namespace
} // namespace lumora
