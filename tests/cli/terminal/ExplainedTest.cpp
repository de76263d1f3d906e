#include "cli/terminal/Explained.h"

#include <gtest/gtest.h>

namespace lumora::test {
namespace {

TEST(Explained, TooManyFilesComeWithAdviceAndAreNotToBeReported)
{
    const std::string text = Explained(RunTimeError(ErrorNumber::TooManyFiles, "in.wav"));
    EXPECT_EQ(text.rfind("too many files are open; ", 0), 0U) << text;
    EXPECT_NE(text.find("ulimit -n"), std::string::npos) << text;
    EXPECT_EQ(text.find("report"), std::string::npos) << text;
}

} // namespace
} // namespace lumora::test
