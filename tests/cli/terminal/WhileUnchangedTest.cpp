#include "cli/terminal/WhileUnchanged.h"
#include "base/RunTimeError.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace lumora::test {
namespace {

class Unchanged : public testing::Test {
protected:
    void CutShort() const { std::filesystem::resize_file(path_, 3); }
    template <class Action> std::string FailureOf(Action action) const
    {
        try {
            WhileUnchanged(WatchedFile(path_), action);
        } catch (const JobFailure& failure) {
            return failure.what();
        }
        return {};
    }

    TempFolder folder_;
    std::string path_ = folder_.Write("in.csv", "1,2,3\n");
};

TEST_F(Unchanged, AFileGivesWhatIsMadeOfIt)
{
    EXPECT_EQ(WhileUnchanged(WatchedFile(path_), [] { return 7; }), 7);
}

TEST_F(Unchanged, WhatIsMadeOfAFileThatChangesIsAFailure)
{
    const std::string why = FailureOf([&] {
        CutShort();
        return 7;
    });
    EXPECT_EQ(why.rfind("it became shorter while it was read (from 6 to 3 bytes)", 0), 0U) << why;
}

TEST_F(Unchanged, AFailureOfAFileThatChangesIsTheChange)
{
    const std::string why = FailureOf([&]() -> int {
        CutShort();
        Raise(ErrorNumber::Subscript);
    });
    EXPECT_EQ(why.rfind("it became shorter while it was read", 0), 0U) << why;
}

TEST_F(Unchanged, AnyOtherFailureStaysWhatItIs)
{
    EXPECT_EQ(FailureOf([]() -> int { throw JobFailure("is no table"); }), "is no table");
    EXPECT_THROW(FailureOf([]() -> int { Raise(ErrorNumber::Subscript); }), RunTimeError);
}

} // namespace
} // namespace lumora::test
