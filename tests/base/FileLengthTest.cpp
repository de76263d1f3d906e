#include "base/ByteStream.h"

#include "support/TempFolder.h"

#include <array>
#include <filesystem>
#include <gtest/gtest.h>

namespace lumora {
namespace {

using test::TempFolder;

TEST(FileLength, IsThatOfTheOpeningAndFileLengthNowThatOfTheMoment)
{
    const TempFolder folder;
    const std::string name = folder.Write("f", "0123456789");
    const OpenFile file(OpenForReading(name));
    EXPECT_EQ(FileLengthNow(file.Number()), 10);
    for (const int length : {4, 25, 0}) {
        std::filesystem::resize_file(name, static_cast<std::uintmax_t>(length));
        EXPECT_EQ(FileLengthNow(file.Number()), length);
        EXPECT_EQ(FileLength(file.Number()), 10);
    }
}

TEST(FileLength, IsThatOfTheOpenFileWhateverHasItsName)
{
    const TempFolder folder;
    const std::string name = folder.Write("f", "0123456789");
    const OpenFile file(OpenForReading(name));
    std::filesystem::remove(name);
    EXPECT_EQ(FileLengthNow(file.Number()), 10);
    folder.Write("f", "another");
    EXPECT_EQ(FileLengthNow(file.Number()), 10);
}

TEST(FileLength, IsAskedWithoutLosingThePlace)
{
    const TempFolder folder;
    const OpenFile file(OpenForReading(folder.Write("f", "0123456789")));
    std::array<char, 3> read{};
    for (const char* expected : {"012", "345", "678"}) {
        EXPECT_EQ(ReadValues(file.Number(), std::span<char>(read)), 3U);
        EXPECT_EQ(std::string(read.begin(), read.end()), expected);
        EXPECT_EQ(FileLengthNow(file.Number()), 10);
    }
    EXPECT_EQ(FilePosition(file.Number()), 10);
}

TEST(FileLength, OfADeviceIsZero)
{
    const OpenFile file(OpenForReading("/dev/null"));
    EXPECT_EQ(FileLength(file.Number()), 0);
    EXPECT_EQ(FileLengthNow(file.Number()), 0);
}

} // namespace
} // namespace lumora
