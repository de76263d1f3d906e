#include "cli/terminal/Wording.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

TEST(Listed, PutsCommasBetweenWordsAndAWordAheadOfTheLast)
{
    EXPECT_EQ(Listed({"pitch", "declip", "info"}, "and"), "pitch, declip and info");
    EXPECT_EQ(Listed({"show", "to-csv"}, "or"), "show or to-csv");
    EXPECT_EQ(Listed({"one"}, "or"), "one");
    EXPECT_EQ(Listed({}, "or"), "");
}

} // namespace
} // namespace lumora
