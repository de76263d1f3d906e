#include "numeric/ComplexText.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

TEST(SpelledComplex, ReadsBothParts)
{
    struct Case {
        const char* text;
        ComplexValue z;
    };
    const Case cases[] = {
        {"12", {12, 0}},         {" -1e5 ", {-1e5, 0}},
        {"i", {0, 1}},           {"-i", {0, -1}},
        {"+i", {0, 1}},          {"- i", {0, -1}},
        {"2i", {0, 2}},          {"  3 i", {0, 3}},
        {"1e-3i", {0, 1e-3}},    {"1+2i", {1, 2}},
        {"1 - 2.5i", {1, -2.5}}, {"-1+i", {-1, 1}},
        {"1-2e+5i", {1, -2e5}},  {"1e-3-2e-5i", {1e-3, -2e-5}},
        {"1-2E5i", {1, -2e5}},   {"-.5-.25 i", {-.5, -.25}},
    };
    for (const Case& c : cases) {
        const auto z = SpelledComplex(c.text);
        ASSERT_TRUE(z) << c.text;
        EXPECT_EQ(z->re, c.z.re) << c.text;
        EXPECT_EQ(z->im, c.z.im) << c.text;
    }
}

TEST(SpelledComplex, GivesNothingForAnotherText)
{
    for (const char* text : {"", " ", "abc", "1+2", "i2", "2ii", "1+2.3.4i", "++i", "1 2i"})
        EXPECT_FALSE(SpelledComplex(text)) << '"' << text << '"';
}

} // namespace
} // namespace lumora
