#include "base/ByteStream.h"

#include "support/EdgeNumbers.h"
#include "support/MessageRecorder.h"
#include "support/Raised.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using namespace test;

/// A file of ten bytes that stands at position 4.
class Fseek : public testing::Test {
protected:
    Fseek() { SeekTo(Number(), 4); }

    FileNumber Number() const { return file.Number(); }

    TempFolder folder;
    MessageRecorder messages;
    OpenFile file{fopen(folder.Write("f", "0123456789"), "rb")};
};

TEST_F(Fseek, GoesWhereItsOriginSays)
{
    const struct {
        std::int64_t offset;
        const char* origin;
        std::int64_t position;
    } table[] = {
        {1, "seek_set", 1},   {10, "seek_set", 10}, {11, "seek_set", 11}, {0, "seek_cur", 4},
        {-3, "seek_cur", 1},  {7, "seek_cur", 11},  {0, "seek_end", 11},  {-1, "seek_end", 10},
        {-10, "seek_end", 1}, {2, "SEEK_SET", 2},   {2, "Seek_Cur", 6},   {-2, "SEEK_end", 9},
    };
    for (const auto& row : table) {
        SeekTo(Number(), 4);
        const FseekResult result = fseek(Number(), row.offset, row.origin);
        EXPECT_EQ(result.Status, 0) << row.offset << row.origin;
        EXPECT_EQ(result.Position, row.position) << row.offset << row.origin;
        EXPECT_EQ(FilePosition(Number()), row.position) << row.offset << row.origin;
    }
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Fseek, AcceptsOnePastTheEndAndNoFurther)
{
    EXPECT_EQ(fseek(Number(), 11, "seek_set").Status, 0);
    EXPECT_EQ(fseek(Number(), 12, "seek_set").Status, -1);
    EXPECT_EQ(FilePosition(Number()), 11);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Fseek, StaysWhereItWasWhenItFailsAndSaysNothing)
{
    const struct {
        std::int64_t offset;
        const char* origin;
    } table[] = {
        {0, "seek_set"},        {-1, "seek_set"}, {12, "seek_set"},  {kMost64, "seek_set"},
        {kLeast64, "seek_set"}, {-4, "seek_cur"}, {8, "seek_cur"},   {kMost64, "seek_cur"},
        {kLeast64, "seek_cur"}, {1, "seek_end"},  {-11, "seek_end"}, {kMost64, "seek_end"},
        {kLeast64, "seek_end"},
    };
    for (const auto& row : table) {
        const FseekResult result = fseek(Number(), row.offset, row.origin);
        EXPECT_EQ(result.Status, -1) << row.offset << row.origin;
        EXPECT_EQ(result.Position, 4) << row.offset << row.origin;
        EXPECT_EQ(FilePosition(Number()), 4) << row.offset << row.origin;
    }
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Fseek, ShowsAMessageForAnyOtherOriginAndEndsInABadPosition)
{
    for (const char* origin : {"SET_CUR", "set_cur", "", "seek", "seek_set "}) {
        EXPECT_EQ(Raised([&] { fseek(Number(), 5, origin); }), 63) << origin;
        EXPECT_EQ(messages.Take(),
                  (Shown{FileError("Error using fseek",
                                   "The third operand must be SEEK_SET or SEEK_CUR or SEEK_END ")}))
            << origin;
    }
}

TEST_F(Fseek, FindsOnlyOnePlaceInAnEmptyFile)
{
    const OpenFile empty(fopen(folder.Write("empty", ""), "rb"));
    EXPECT_EQ(fseek(empty.Number(), 0, "seek_end").Position, 1);
    EXPECT_EQ(fseek(empty.Number(), 1, "seek_set").Status, 0);
    EXPECT_EQ(fseek(empty.Number(), 2, "seek_set").Status, -1);
}

TEST_F(Fseek, CountsWhatHasJustBeenWritten)
{
    SeekTo(Number(), 11);
    EXPECT_EQ(fwrite(Number(), "abc", "_string"), 3);
    EXPECT_EQ(FileLength(Number()), 13);
    EXPECT_EQ(fseek(Number(), 0, "seek_end").Position, 14);
}

TEST_F(Fseek, SeekToReachesBeyondTheEndButNotBelowOne)
{
    SeekTo(Number(), 1000);
    EXPECT_EQ(FilePosition(Number()), 1000);
    for (std::int64_t position : {std::int64_t{0}, std::int64_t{-1}, kLeast64})
        EXPECT_EQ(Raised([&] { SeekTo(Number(), position); }), 63) << position;
}

TEST_F(Fseek, AWriteBeyondTheEndFillsTheGapWithZeros)
{
    SeekTo(Number(), 13);
    fwrite(Number(), std::int16_t{0x41}, "uchar");
    file.Close();
    EXPECT_EQ(test::BytesOf(folder / "f"), std::string("0123456789\0\0A", 13));
}

} // namespace
} // namespace lumora
