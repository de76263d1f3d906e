#include "base/ByteStream.h"

#include "support/Arrays.h"
#include "support/LittleEndian.h"
#include "support/MessageRecorder.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <limits>

namespace lumora {
namespace {

using namespace test;

/// Reads from files made on the spot.
class Fread : public testing::Test {
protected:
    FreadResult Read(const std::string& bytes, std::int64_t count, std::string_view type,
                     std::int64_t position = 1)
    {
        const OpenFile file(fopen(folder.Write("f", bytes), "rb"));
        SeekTo(file.Number(), position);
        FreadResult result = fread(file.Number(), count, type);
        position_after = FilePosition(file.Number());
        return result;
    }

    TempFolder folder;
    MessageRecorder messages;
    std::int64_t position_after = 0;
};

constexpr const char* kAllTypes[] = {"uchar", "char",   "short",  "ushort",   "long",
                                     "ulong", "single", "double", "currency", "data"};

struct Case {
    const char* type;
    std::string bytes;
    std::int32_t count;
    Variant value;
    const char* code;
};

void PrintTo(const Case& c, std::ostream* out)
{
    *out << c.count << ' ' << c.type;
}

class FreadTable : public Fread, public testing::WithParamInterface<Case> {};

TEST_P(FreadTable, GivesTheValueAndTheTypeCode)
{
    const Case& c = GetParam();
    const FreadResult result = Read(c.bytes, c.count, c.type);
    EXPECT_EQ(result.Count, c.count);
    EXPECT_EQ(result.Value, c.value);
    EXPECT_EQ(result.TypeCode, c.code);
    EXPECT_EQ(position_after, static_cast<std::int64_t>(c.bytes.size()) + 1);
    EXPECT_TRUE(messages.shown.empty());
}

using U8 = std::uint8_t;
using I16 = std::int16_t;
using I32 = std::int32_t;

INSTANTIATE_TEST_SUITE_P(
    One, FreadTable,
    testing::Values(
        Case{"uchar", Raw({0xFF}), 1, U8{255}, "b"}, Case{"uchar", Raw({0x80}), 1, U8{128}, "b"},
        Case{"char", Raw({0x41}), 1, I16{65}, "b"}, Case{"char", Raw({0x7F}), 1, I16{127}, "b"},
        Case{"char", Raw({0x80}), 1, I16{-128}, "b"}, Case{"char", Raw({0xFF}), 1, I16{-1}, "b"},
        Case{"short", Raw({0xFE, 0xFF}), 1, I16{-2}, "i"},
        Case{"short", Raw({0x34, 0x12}), 1, I16{0x1234}, "i"},
        Case{"ushort", Raw({0xFF, 0x7F}), 1, I32{32767}, "L"},
        Case{"ushort", Raw({0x00, 0x00}), 1, I32{0}, "L"},
        // A single negative number is taken from 65536 instead of being added to it.
        Case{"ushort", Raw({0xFF, 0xFF}), 1, I32{65537}, "L"},
        Case{"ushort", Raw({0x00, 0x80}), 1, I32{98304}, "L"},
        Case{"long", Raw({0x78, 0x56, 0x34, 0x12}), 1, I32{0x12345678}, "L"},
        Case{"long", Raw({0xFF, 0xFF, 0xFF, 0xFF}), 1, I32{-1}, "L"},
        Case{"ulong", Raw({0xFF, 0xFF, 0xFF, 0xFF}), 1, 4294967295.0, "r"},
        Case{"ulong", Raw({0x00, 0x00, 0x00, 0x80}), 1, 2147483648.0, "r"},
        Case{"ulong", Raw({0x02, 0x00, 0x00, 0x00}), 1, 2.0, "r"},
        Case{"single", LeSingle(1.5F), 1, 1.5F, "single"},
        Case{"double", LeDouble(-0.1), 1, -0.1, "r"},
        Case{"currency", Le64(-12345), 1, Currency{-12345}, "currency"},
        Case{"data", LeDouble(38353.25), 1, Date{38353.25}, "data"}));

INSTANTIATE_TEST_SUITE_P(
    Several, FreadTable,
    testing::Values(
        Case{"uchar", Raw({0, 127, 128, 255}), 4, Row<U8>({0, 127, 128, 255}), "b"},
        Case{"char", Raw({0, 127, 128, 255}), 4, Row<I16>({0, 127, -128, -1}), "i"},
        Case{"short", Shorts({1, -2, -32768}), 3, Row<I16>({1, -2, -32768}), "i"},
        Case{"ushort", Shorts({1, -1, -32768}), 3, Row<I32>({1, 65535, 32768}), "L"},
        Case{"long", Le32(7) + Le32(-7), 2, Row<I32>({7, -7}), "L"},
        Case{"ulong", Le32(7) + Le32(-7), 2, Row<double>({7, 4294967289.0}), "r"},
        Case{"single", LeSingle(0.25F) + LeSingle(-3), 2, Row<float>({0.25F, -3}), "single"},
        Case{"double", LeDouble(0.1) + LeDouble(1e300), 2, Row<double>({0.1, 1e300}), "r"},
        Case{"currency", Le64(1) + Le64(-2), 2, Row<Currency>({{1}, {-2}}), "currency"},
        Case{"data", LeDouble(0.5) + LeDouble(2), 2, Row<Date>({{0.5}, {2}}), "data"}));

TEST_F(Fread, TakesNoMoreThanTheWholeElementsLeft)
{
    const FreadResult result = Read(Shorts({1, 2}) + "x", 3, "short");
    EXPECT_EQ(result.Count, 2);
    EXPECT_EQ(result.Value, Variant(Row<I16>({1, 2})));
    EXPECT_EQ(position_after, 5);

    const FreadResult one = Read(Shorts({7}) + "x", 3, "short");
    EXPECT_EQ(one.Count, 1);
    EXPECT_EQ(one.Value, Variant(I16{7}));
}

TEST_F(Fread, GivesTheMarkerAtTheEndOfTheFile)
{
    for (const char* type : kAllTypes) {
        const FreadResult result = Read("12345678", 1, type, 9);
        const std::string name = type;
        const bool fraction =
            name == "single" || name == "double" || name == "currency" || name == "data";
        EXPECT_EQ(result.Count, 0) << type;
        EXPECT_FLOAT_EQ(static_cast<float>(result.Value.Number()), fraction ? -999.999F : -999.0F)
            << type;
        EXPECT_EQ(position_after, 9) << type;
    }
    EXPECT_EQ(Read("", 4, "uchar").Value.Number(), -999.0);
    EXPECT_EQ(Read("", 4, "double").Value.Number(), -999.999);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Fread, GivesTheMarkerWhenNoWholeElementIsLeft)
{
    const struct {
        const char* type;
        std::size_t size;
    } table[] = {{"short", 2},  {"ushort", 2}, {"long", 4},     {"ulong", 4},
                 {"single", 4}, {"double", 8}, {"currency", 8}, {"data", 8}};
    for (const auto& row : table) {
        const FreadResult result = Read(std::string(row.size - 1, 'x'), 1, row.type);
        EXPECT_EQ(result.Count, 0) << row.type;
        EXPECT_LT(result.Value.Number(), -998.9) << row.type;
        EXPECT_EQ(position_after, 1) << row.type;
    }
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Fread, ShowsAMessageBeyondTheEnd)
{
    for (const char* type : kAllTypes) {
        EXPECT_EQ(Read("abc", 1, type, 5).Count, -1) << type;
        EXPECT_EQ(position_after, 5) << type;
        EXPECT_EQ(messages.Take(),
                  (Shown{FileError("Error using fread", "Empty matrix: out of file size")}))
            << type;
    }
}

TEST_F(Fread, GivesNothingForATypeItDoesNotKnow)
{
    for (const char* type : {"", "int", "byte", "date", "uchar "}) {
        const FreadResult result = Read("abcdefgh", 1, type);
        EXPECT_EQ(result.Count, 0) << type;
        EXPECT_TRUE(result.Value.IsEmpty()) << type;
        EXPECT_EQ(result.TypeCode, "") << type;
    }
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Fread, NeverTakesMoreMemoryThanTheFileHolds)
{
    for (std::int64_t count : {std::int64_t{1} << 40, std::numeric_limits<std::int64_t>::max()})
        for (const char* type : kAllTypes)
            EXPECT_GE(Read("12345678", count, type).Count, 1) << type;
    EXPECT_EQ(Read("12345678", std::int64_t{1} << 40, "uchar").Count, 8);
}

TEST_F(Fread, ReadsOnFromWhereItStopped)
{
    const OpenFile file(fopen(folder.Write("f", Shorts({1, 2, 3})), "rb"));
    EXPECT_EQ(fread(file.Number(), 1, "short").Value, Variant(I16{1}));
    EXPECT_EQ(fread(file.Number(), 2, "short").Value, Variant(Row<I16>({2, 3})));
    EXPECT_EQ(fread(file.Number(), 2, "short").Count, 0);
}

} // namespace
} // namespace lumora
