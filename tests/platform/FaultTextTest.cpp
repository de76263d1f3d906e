#include "platform/FaultText.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace lumora::test {
namespace {

TEST(FaultText, EveryShortageComesWithAdvice)
{
    for (const int code : {EMFILE, ENFILE, EAGAIN, ENOMEM}) {
        EXPECT_TRUE(IsShortage(code)) << code;
        EXPECT_EQ(Advice(code).rfind("; ", 0), 0U) << code;
    }
}

TEST(FaultText, AFullOrFaultyDiskIsNoShortageButComesWithAdvice)
{
    for (const int code : {ENOSPC, EDQUOT, EIO}) {
        EXPECT_FALSE(IsShortage(code)) << code;
        EXPECT_EQ(Advice(code).rfind("; ", 0), 0U) << code;
    }
}

TEST(FaultText, WhereTheErrorDoesNotTellWhatToDoThereIsNoAdvice)
{
    for (const int code : {0, EACCES, ENOENT, EISDIR})
        EXPECT_EQ(Advice(code), "") << code;
}

} // namespace
} // namespace lumora::test
