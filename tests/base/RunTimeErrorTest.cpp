#include "base/RunTimeError.h"

#include "base/Text.h"
#include "support/Raised.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <set>

namespace lumora {
namespace {

using test::Raised;

// What each number stands for, in the words its text must have.
const struct {
    ErrorNumber number;
    int classic;
    const char* words;
} kErrors[] = {
    {ErrorNumber::InvalidCall, 5, "invalid"},
    {ErrorNumber::Overflow, 6, "overflow"},
    {ErrorNumber::OutOfMemory, 7, "out of memory"},
    {ErrorNumber::Subscript, 9, "subscript out of range"},
    {ErrorNumber::DivisionByZero, 11, "division by zero"},
    {ErrorNumber::TypeMismatch, 13, "type mismatch"},
    {ErrorNumber::BadFileNumber, 52, "bad file"},
    {ErrorNumber::FileNotFound, 53, "file not found"},
    {ErrorNumber::DeviceError, 57, "device"},
    {ErrorNumber::DiskFull, 61, "disk full"},
    {ErrorNumber::PastEndOfFile, 62, "past end of file"},
    {ErrorNumber::BadRecordNumber, 63, "bad record number"},
    {ErrorNumber::TooManyFiles, 67, "too many files"},
    {ErrorNumber::PermissionDenied, 70, "permission denied"},
    {ErrorNumber::PathFileAccess, 75, "access"},
    {ErrorNumber::PathNotFound, 76, "path not found"},
    {ErrorNumber::ObjectNotSet, 91, "object"},
};

TEST(RunTimeError, HasTheClassicNumbersEachWithATextOfItsOwn)
{
    std::set<std::string> texts;
    for (const auto& row : kErrors) {
        EXPECT_EQ(static_cast<int>(row.number), row.classic);
        const std::string text = ErrorText(row.number);
        EXPECT_NE(Lower(text).find(row.words), std::string::npos) << text;
        EXPECT_TRUE(texts.insert(text).second) << text;
    }
}

TEST(RunTimeError, SaysItsNumberAndText)
{
    EXPECT_STREQ(RunTimeError(ErrorNumber::Overflow).what(), "Run-time error '6': Overflow");
    for (const auto& row : kErrors)
        EXPECT_EQ(RunTimeError(row.number).what(),
                  "Run-time error '" + std::to_string(row.classic) + "': " + ErrorText(row.number));
}

TEST(RunTimeError, NamesTheFileInHand)
{
    const RunTimeError error(ErrorNumber::DiskFull, "/music/out.wav");
    EXPECT_EQ(error.Number(), ErrorNumber::DiskFull);
    EXPECT_STREQ(error.what(), "Run-time error '61': Disk full (/music/out.wav)");
}

TEST(Raise, ThrowsTheOneExceptionType)
{
    try {
        Raise(ErrorNumber::Subscript, "x.wav");
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "Run-time error '9': Subscript out of range (x.wav)");
    }
    EXPECT_EQ(Raised([] { Raise(ErrorNumber::ObjectNotSet); }), 91);
}

TEST(RaiseFileError, FindsTheNumberOfAFailedSystemCall)
{
    const int table[][2] = {{ENOENT, 53}, {EIO, 57},    {ENOSPC, 61}, {EFBIG, 61},  {EDQUOT, 61},
                            {EMFILE, 67}, {ENFILE, 67}, {EACCES, 70}, {EPERM, 70},  {EROFS, 70},
                            {EISDIR, 75}, {ELOOP, 75},  {ENXIO, 75},  {ENOTDIR, 76}};
    for (const auto& row : table)
        EXPECT_EQ(Raised([&] { RaiseFileError(row[0], "f"); }), row[1]) << row[0];
}

} // namespace
} // namespace lumora
