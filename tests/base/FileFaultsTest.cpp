#include "base/ByteStream.h"

#include "support/Arrays.h"
#include "support/Limits.h"
#include "support/Raised.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <vector>

namespace lumora {
namespace {

using namespace test;

constexpr std::size_t kMany = 1 << 20;

/// Writes what does not fit and closes; the error may come from either.
void WriteTooMuch(FileNumber number)
{
    OpenFile file(number);
    const std::vector<std::int16_t> values(kMany, 1);
    WriteValues(file.Number(), std::span(values));
    file.Close();
}

TEST(FullDevice, IsError61AndStaysADevice)
{
    const std::ptrdiff_t before = OpenFileCount();
    for (const char* mode : {"wb", "wb+"})
        EXPECT_EQ(Raised([&] { WriteTooMuch(fopen("/dev/full", mode)); }), 61) << mode;
    EXPECT_EQ(Raised([&] { WriteTooMuch(fopen_Rudo("/dev/full", "wb")); }), 61);
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
    EXPECT_EQ(OpenFileCount(), before);
}

TEST(FullDevice, IsNoticedForASingleByteAtTheCloseAtLatest)
{
    EXPECT_EQ(Raised([] {
                  OpenFile file(fopen("/dev/full", "wb"));
                  fwrite(file.Number(), 1.0, "uchar");
                  file.Close();
              }),
              61);
    EXPECT_EQ(Raised([] {
                  const FileNumber file = fopen("/dev/full", "wb");
                  fwrite(file, "RIFF", "_string");
                  fclose(file);
              }),
              61);
}

TEST(FullDevice, FreesItsNumberWhenTheCloseFails)
{
    const TempFolder folder;
    const std::string name = folder.Write("f", "abc");
    const OpenFile lowest(fopen(name, "rb"));
    const FileNumber next = static_cast<FileNumber>(lowest.Number() + 1);
    const FileNumber full = fopen("/dev/full", "wb");
    EXPECT_EQ(full, next);
    EXPECT_EQ(Raised([&] {
                  fwrite(full, 1.0, "uchar");
                  fclose(full);
              }),
              61);
    Raised([&] { fclose(full); }); // where the write itself failed the file is still open
    EXPECT_EQ(OpenFile(fopen(name, "rb")).Number(), next);
}

TEST(FullDevice, IsSilentWhenAScopeEndsInAnotherError)
{
    EXPECT_EQ(Raised([] {
                  const OpenFile file(fopen("/dev/full", "wb"));
                  try {
                      fwrite(file.Number(), 1.0, "uchar");
                  } catch (const RunTimeError&) {
                  }
                  Raise(ErrorNumber::Subscript);
              }),
              9);
}

TEST(FileSizeLimit, IsError61AndKeepsWhatFitted)
{
    const TempFolder folder;
    const std::ptrdiff_t before = OpenFileCount();
    {
        const FileSizeLimit limit(100000);
        EXPECT_EQ(Raised([&] { WriteTooMuch(fopen(folder / "f", "wb")); }), 61);
    }
    EXPECT_LE(std::filesystem::file_size(folder / "f"), 100000U);
    EXPECT_EQ(OpenFileCount(), before);
}

TEST(FileSizeLimit, DoesNotStopAFileThatFits)
{
    const TempFolder folder;
    const FileSizeLimit limit(2 * kMany);
    EXPECT_EQ(Raised([&] { WriteTooMuch(fopen(folder / "f", "wb")); }), 0);
    EXPECT_EQ(std::filesystem::file_size(folder / "f"), 2 * kMany);
}

TEST(ReadValues, AnswersTheWholeElementsThatCame)
{
    const TempFolder folder;
    const OpenFile file(fopen(folder.Write("f", "abcde"), "rb"));
    std::int16_t values[4] = {};
    EXPECT_EQ(ReadValues(file.Number(), std::span<std::int16_t>(values)), 2U);
    EXPECT_EQ(values[0], 0x6261);
    EXPECT_EQ(values[1], 0x6463);
    EXPECT_EQ(ReadValues(file.Number(), std::span<std::int16_t>(values)), 0U);
    SeekTo(file.Number(), 100);
    EXPECT_EQ(ReadValues(file.Number(), std::span<std::int16_t>(values)), 0U);
    EXPECT_EQ(ReadValues(file.Number(), std::span<std::int16_t>()), 0U);
}

TEST(WriteValues, PutsWholeElementsWhereTheFileStands)
{
    const TempFolder folder;
    OpenFile file(fopen(folder.Write("f", "abcdef"), "wb+"));
    const std::int16_t values[] = {0x5858, 0x5959};
    SeekTo(file.Number(), 2);
    WriteValues(file.Number(), std::span<const std::int16_t>(values));
    EXPECT_EQ(FilePosition(file.Number()), 6);
    WriteValues(file.Number(), std::span<const std::int16_t>());
    file.Close();
    EXPECT_EQ(BytesOf(folder / "f"), "aXXYYf");
}

} // namespace
} // namespace lumora
