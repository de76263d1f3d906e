#include "base/Text.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

TEST(LetterCase, IsThatOfAsciiLettersAlone)
{
    EXPECT_EQ(Lower("AZaz09@[`{ Song.WAV"), "azaz09@[`{ song.wav");
    EXPECT_EQ(Lower("\xC3\x89T\xC3\x89"), "\xC3\x89t\xC3\x89");
    EXPECT_TRUE(EqualIgnoringCase("Song.WAV", "sONG.wav"));
    EXPECT_TRUE(EqualIgnoringCase("", ""));
    EXPECT_FALSE(EqualIgnoringCase("song", "song.wav"));
    EXPECT_FALSE(EqualIgnoringCase("song.wav", "song"));
    EXPECT_FALSE(EqualIgnoringCase("@[", "`{"));
    EXPECT_FALSE(EqualIgnoringCase("\xC3\x89", "\xC3\xA9"));
}

TEST(TrimBlanks, TakesBlanksOffTheEndsOnly)
{
    EXPECT_EQ(TrimBlanks("  fmt "), "fmt");
    EXPECT_EQ(TrimBlanks("a b"), "a b");
    EXPECT_EQ(TrimBlanks("    "), "");
    EXPECT_EQ(TrimBlanks(""), "");
    EXPECT_EQ(TrimBlanks("\t x\n"), "\t x\n");
}

} // namespace
} // namespace lumora
