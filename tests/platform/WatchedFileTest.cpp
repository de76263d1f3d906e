#include "platform/WatchedFile.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace lumora::test {
namespace {

namespace fs = std::filesystem;

class Watched : public testing::Test {
protected:
    void ExpectTold(const std::string& why) const
    {
        EXPECT_EQ(watched_.Change().rfind(why, 0), 0U) << watched_.Change();
    }

    TempFolder folder_;
    std::string path_ = folder_.Write("in.wav", "ten bytes!");
    WatchedFile watched_{path_};
};

TEST_F(Watched, AFileThatStaysAsItIsHasNotChanged)
{
    EXPECT_EQ(watched_.Change(), "");
    fs::last_write_time(path_, fs::file_time_type::clock::now());
    fs::permissions(path_, fs::perms::owner_read);
    EXPECT_EQ(watched_.Change(), "");
}

TEST_F(Watched, OneByteLessOrMoreIsTold)
{
    fs::resize_file(path_, 9);
    ExpectTold("it became shorter while it was read (from 10 to 9 bytes); ");
    fs::resize_file(path_, 11);
    ExpectTold("it became longer while it was read (from 10 to 11 bytes); ");
    fs::resize_file(path_, 10);
    EXPECT_EQ(watched_.Change(), "");
}

TEST_F(Watched, AnotherFileInItsPlaceIsTold)
{
    folder_.Write("other.wav", "ten others");
    fs::rename(folder_ / "other.wav", path_);
    ExpectTold("another file took its place while it was read; ");
}

TEST_F(Watched, AFileMadeAnewIsAnotherOneThoughTheDiskHadItsNumberFree)
{
    for (int k = 0; k < 20; ++k) {
        fs::remove(path_);
        ExpectTold("it was removed or renamed while it was read; ");
        folder_.Write("in.wav", "ten bytes!");
        ExpectTold("another file took its place while it was read; ");
    }
}

TEST_F(Watched, AFileThatCanNoLongerBeReachedIsTold)
{
    const std::string inner = folder_.MakeFolder("inner");
    const WatchedFile watched(folder_.Write("inner/in.wav", "x"));
    fs::remove_all(inner);
    folder_.Write("inner", "no folder");
    EXPECT_EQ(watched.Change().rfind("it can no longer be reached (not a directory)", 0), 0U)
        << watched.Change();
}

TEST_F(Watched, WhatIsNoFileNeverCountsAsChanged)
{
    const WatchedFile missing(folder_ / "missing.wav");
    const WatchedFile folder(folder_.Path().string());
    mkfifo((folder_ / "pipe").c_str(), 0600);
    const WatchedFile pipe(folder_ / "pipe");
    folder_.Write("missing.wav", "now");
    EXPECT_EQ(missing.Change() + folder.Change() + pipe.Change(), "");
}

} // namespace
} // namespace lumora::test
