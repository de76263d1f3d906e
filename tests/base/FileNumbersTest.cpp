#include "base/ByteStream.h"

#include "support/Limits.h"
#include "support/MessageRecorder.h"
#include "support/Raised.h"
#include "support/TempFolder.h"

#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <set>

namespace lumora {
namespace {

using namespace test;

TEST(FileNumber, ThatIsNotOpenIsError52ForEveryRoutine)
{
    const TempFolder folder;
    const FileNumber closed = fopen(folder.Write("f", "abc"), "rb");
    fclose(closed);
    const FileNumber numbers[] = {closed,
                                  kNoFile,
                                  0,
                                  512,
                                  std::numeric_limits<FileNumber>::min(),
                                  std::numeric_limits<FileNumber>::max()};
    std::byte byte{};
    const struct {
        const char* name;
        std::function<void(FileNumber)> call;
    } routines[] = {
        {"fclose", [](FileNumber n) { fclose(n); }},
        {"FileLength", [](FileNumber n) { FileLength(n); }},
        {"FileLengthNow", [](FileNumber n) { FileLengthNow(n); }},
        {"FilePosition", [](FileNumber n) { FilePosition(n); }},
        {"SeekTo", [](FileNumber n) { SeekTo(n, 1); }},
        {"fseek", [](FileNumber n) { fseek(n, 1, "seek_set"); }},
        {"fread", [](FileNumber n) { fread(n, 1, "uchar"); }},
        {"fwrite", [](FileNumber n) { fwrite(n, 1.0, "uchar"); }},
        {"ReadBytes",
         [&](FileNumber n) {
             ReadBytes(n, {&byte, 1});
         }},
        {"WriteBytes",
         [&](FileNumber n) {
             WriteBytes(n, {&byte, 1});
         }},
    };
    for (const auto& routine : routines)
        for (FileNumber number : numbers)
            EXPECT_EQ(Raised([&] { routine.call(number); }), 52) << routine.name << ' ' << number;
}

TEST(FileNumber, EndsInError67WhenAllAreTakenAndIsFreedByAClose)
{
    const TempFolder folder;
    const std::string name = folder.Write("f", "abc");
    std::set<FileNumber> open;
    const int error = Raised([&] {
        while (open.size() <= 511)
            open.insert(fopen(name, "rb"));
    });
    EXPECT_EQ(error, 67);
    ASSERT_GT(open.size(), 100U);
    EXPECT_GE(*open.begin(), 1);
    EXPECT_LE(*open.rbegin(), 511);
    EXPECT_EQ(Raised([&] { fopen(folder / "new", "wb"); }), 67);

    const FileNumber freed = *std::next(open.begin(), 50);
    fclose(freed);
    EXPECT_EQ(fopen(name, "rb"), freed);
    for (FileNumber number : open)
        fclose(number);
}

TEST(FileNumber, BelongsToItsFileAlone)
{
    const TempFolder folder;
    const OpenFile a(fopen(folder.Write("a", "aaaa"), "rb"));
    const OpenFile b(fopen(folder.Write("b", "bb"), "rb"));
    EXPECT_NE(a.Number(), b.Number());
    SeekTo(a.Number(), 3);
    EXPECT_EQ(FilePosition(b.Number()), 1);
    EXPECT_EQ(FileLength(a.Number()), 4);
    EXPECT_EQ(FileLength(b.Number()), 2);
    EXPECT_EQ(fread(b.Number(), 1, "uchar").Value, Variant(std::uint8_t{'b'}));
    EXPECT_EQ(FilePosition(a.Number()), 3);
}

TEST(OpenFile, ClosesAtTheEndOfItsScope)
{
    const TempFolder folder;
    const std::string name = folder.Write("f", "abc");
    const std::ptrdiff_t before = OpenFileCount();
    FileNumber number = kNoFile;
    {
        const OpenFile file(fopen(name, "rb"));
        number = file.Number();
        EXPECT_FALSE(file.Failed());
        EXPECT_EQ(OpenFileCount(), before + 1);
    }
    EXPECT_EQ(OpenFileCount(), before);
    EXPECT_EQ(Raised([&] { FileLength(number); }), 52);
}

TEST(OpenFile, ClosesOnceAndTellsAFailedOpen)
{
    const TempFolder folder;
    const MessageRecorder messages;
    EXPECT_TRUE(OpenFile(fopen(folder / "missing", "rb")).Failed());

    const std::string name = folder.Write("f", "abc");
    FileNumber number = kNoFile;
    {
        OpenFile first(fopen(name, "rb"));
        number = first.Number();
        first.Close();
        ASSERT_EQ(fopen(name, "rb"), number);
    } // the end of the first one's scope is no business of the second file's
    EXPECT_EQ(FileLength(number), 3);
    fclose(number);
}

} // namespace
} // namespace lumora
