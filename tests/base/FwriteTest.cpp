#include "base/ByteStream.h"

#include "support/Arrays.h"
#include "support/EdgeNumbers.h"
#include "support/LittleEndian.h"
#include "support/MessageRecorder.h"
#include "support/Raised.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using namespace test;

/// Writes into one new file; what has been written is asked for bit by bit.
class Fwrite : public testing::Test {
protected:
    template <class Value> std::int32_t Write(const Value& value, std::string_view type)
    {
        return fwrite(file.Number(), value, type);
    }

    /// What has come into the file since the last call.
    std::string Written()
    {
        SeekTo(file.Number(), read_up_to);
        std::string bytes(static_cast<std::size_t>(FileLength(file.Number()) + 1 - read_up_to), 0);
        ReadValues(file.Number(), std::span(bytes));
        read_up_to = FilePosition(file.Number());
        return bytes;
    }

    TempFolder folder;
    MessageRecorder messages;
    OpenFile file{fopen(folder / "f", "wr")};
    std::int64_t read_up_to = 1;
};

TEST_F(Fwrite, WritesATextAsItsBytesAndNothingMore)
{
    EXPECT_EQ(Write("RIFF", "_string"), 4);
    EXPECT_EQ(Written(), "RIFF");
    EXPECT_EQ(Write(std::string("a\0\xE9 ", 4), "_STRING"), 4);
    EXPECT_EQ(Written(), std::string("a\0\xE9 ", 4));
    EXPECT_EQ(Write("", "_string"), 0);
    EXPECT_EQ(Written(), "");
}

TEST_F(Fwrite, WritesANumberInEachType)
{
    const struct {
        Variant value;
        const char* type;
        std::string bytes;
    } table[] = {
        {std::int16_t{65}, "uchar", Raw({65})},
        {255.0, "uchar", Raw({255})},
        {std::int16_t{-2}, "short", Raw({0xFE, 0xFF})},
        {std::int32_t{0x1234}, "Short", Raw({0x34, 0x12})},
        {std::int32_t{0x12345678}, "long", Raw({0x78, 0x56, 0x34, 0x12})},
        {-1.0F, "LONG", Raw({0xFF, 0xFF, 0xFF, 0xFF})},
        {0.1, "double", LeDouble(0.1)},
        {std::uint8_t{3}, "double", LeDouble(3)},
        {Currency{15000}, "double", LeDouble(1.5)},
    };
    for (const auto& row : table) {
        EXPECT_EQ(Write(row.value, row.type), 1) << row.type;
        EXPECT_EQ(Written(), row.bytes) << row.type;
    }
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Fwrite, RoundsHalfToEven)
{
    const struct {
        double value;
        int whole;
    } table[] = {{0.5, 0}, {1.5, 2}, {2.5, 2}, {3.5, 4}, {2.4, 2}, {2.6, 3}, {-0.5, 0}};
    for (const auto& row : table) {
        EXPECT_EQ(Write(row.value, "uchar"), 1);
        EXPECT_EQ(Written(), Raw({row.whole})) << row.value;
        EXPECT_EQ(Write(-row.value, "short"), 1);
        EXPECT_EQ(Written(), Le16(-row.whole)) << row.value;
        EXPECT_EQ(Write(-row.value, "long"), 1);
        EXPECT_EQ(Written(), Le32(-row.whole)) << row.value;
    }
    EXPECT_EQ(Write(Row<double>({0.5, 1.5, -2.5}), "short"), 3);
    EXPECT_EQ(Written(), Shorts({0, 2, -2}));
}

TEST_F(Fwrite, ReachesTheEdgesOfEachType)
{
    EXPECT_EQ(Write(Row<double>({0, -0.5, 255, 255.4}), "uchar"), 4);
    EXPECT_EQ(Written(), Raw({0, 0, 255, 255}));
    EXPECT_EQ(Write(Row<double>({32767.4, -32768.5}), "short"), 2);
    EXPECT_EQ(Written(), Shorts({32767, -32768}));
    EXPECT_EQ(Write(Row<double>({2147483647.4, -2147483648.5}), "long"), 2);
    EXPECT_EQ(Written(), Le32(2147483647) + Le32(-2147483648));
}

TEST_F(Fwrite, OverflowsBeyondTheTypeAndWritesNothing)
{
    const struct {
        const char* type;
        std::vector<double> values;
    } table[] = {{"uchar", {-1, -0.51, 255.5, 256, kNan, kInfinity}},
                 {"short", {32767.5, -32769, 1e9, kNan, -kInfinity}},
                 {"long", {2147483647.5, -2147483649.0, 1e300, kNan, kInfinity}}};
    for (const auto& row : table)
        for (double value : row.values) {
            EXPECT_EQ(Raised([&] { Write(value, row.type); }), 6) << row.type << value;
            EXPECT_EQ(Raised([&] {
                          Write(Row<double>({1, 2, value}), row.type);
                      }),
                      6)
                << row.type << value;
        }
    EXPECT_EQ(Raised([&] { Write(Row<double>({1, 1e39}), "single"); }), 6);
    EXPECT_EQ(FileLength(file.Number()), 0);
    EXPECT_EQ(FilePosition(file.Number()), 1);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Fwrite, WritesAnArrayInEachType)
{
    const auto values = Row<double>({1, 2.5, 200});
    const struct {
        const char* type;
        std::string bytes;
    } table[] = {{"uchar", Raw({1, 2, 200})},
                 {"short", Shorts({1, 2, 200})},
                 {"long", Le32(1) + Le32(2) + Le32(200)},
                 {"single", LeSingle(1) + LeSingle(2.5F) + LeSingle(200)},
                 {"double", LeDouble(1) + LeDouble(2.5) + LeDouble(200)}};
    for (const auto& row : table) {
        EXPECT_EQ(Write(values, row.type), 3) << row.type;
        EXPECT_EQ(Written(), row.bytes) << row.type;
    }
}

TEST_F(Fwrite, TakesAnArrayOfAnyElement)
{
    const Variant arrays[] = {Row<std::uint8_t>({1, 200}),     Row<std::int16_t>({1, 200}),
                              Row<std::int32_t>({1, 200}),     Row<float>({1, 200}),
                              Row<double>({1, 200}),           Row<Currency>({{10000}, {2000000}}),
                              Row<std::string>({"1", " 200 "})};
    for (const Variant& array : arrays) {
        EXPECT_EQ(Write(array, "short"), 2);
        EXPECT_EQ(Written(), Shorts({1, 200}));
    }
}

TEST_F(Fwrite, WritesATableColumnByColumn)
{
    EXPECT_EQ(Write(Table<std::int16_t>({{1, 2, 3}, {4, 5, 6}}), "short"), 6);
    EXPECT_EQ(Written(), Shorts({1, 4, 2, 5, 3, 6}));
}

TEST_F(Fwrite, RefusesATextThatSpellsNoNumber)
{
    EXPECT_EQ(Raised([&] { Write(Row<std::string>({"1", "x"}), "short"); }), 13);
    EXPECT_EQ(FileLength(file.Number()), 0);
}

TEST_F(Fwrite, WritesNothingOfWhatItDoesNotKnow)
{
    const struct {
        Variant value;
        const char* type;
    } table[] = {{1.0, "single"},
                 {1.0, "ushort"},
                 {1.0, "currency"},
                 {1.0, ""},
                 {1.0, "_string"},
                 {Row<double>({1, 2}), "ulong"},
                 {Row<double>({1, 2}), "_string"},
                 {"12", "short"},
                 {Variant(), "short"},
                 {Array<double>(), "short"},
                 {Ref<clsMatrix>(), "short"}};
    for (const auto& row : table)
        EXPECT_EQ(Write(row.value, row.type), 0) << row.type;
    EXPECT_EQ(FileLength(file.Number()), 0);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Fwrite, OverwritesInPlaceAndGrowsAtTheEnd)
{
    Write("abcdef", "_string");
    SeekTo(file.Number(), 5);
    EXPECT_EQ(Write("XYZ", "_string"), 3);
    EXPECT_EQ(FilePosition(file.Number()), 8);
    EXPECT_EQ(Written(), "abcdXYZ");
}

/// What the byte layer needs to see of a matrix object, and no more.
template <class T> struct LooksLikeAMatrix {
    std::string TypeOfMatrix;
    Array<T> store;
    std::int32_t size1 = store.Dimensions() == 2 ? static_cast<std::int32_t>(store.UBound(1)) : 1;
    std::int32_t size2 = static_cast<std::int32_t>(store.UBound(store.Dimensions()));

    const Array<T>& GetRealAll() const { return store; }
};

TEST_F(Fwrite, ReadsAMatrixThroughItsMembers)
{
    const LooksLikeAMatrix<double> real = {"r", Table<double>({{1, 2.5}, {-3, 4}})};
    EXPECT_EQ(Write(real, "short"), 4);
    EXPECT_EQ(Written(), Shorts({1, -3, 2, 4}));
    EXPECT_EQ(Write(real, "double"), 4);
    EXPECT_EQ(Written(), LeDouble(1) + LeDouble(-3) + LeDouble(2.5) + LeDouble(4));

    const LooksLikeAMatrix<std::int32_t> whole = {"L", Row<std::int32_t>({7, 70000})};
    EXPECT_EQ(Write(whole, "long"), 2);
    EXPECT_EQ(Written(), Le32(7) + Le32(70000));
    EXPECT_EQ(Raised([&] { Write(whole, "short"); }), 6);

    const LooksLikeAMatrix<std::string> texts = {"s", Row<std::string>({"1.5", "2.5"})};
    EXPECT_EQ(Write(texts, "single"), 2);
    EXPECT_EQ(Written(), LeSingle(1.5F) + LeSingle(2.5F));
}

TEST_F(Fwrite, WritesNothingOfAnotherKindOfMatrixOrAnEmptyOne)
{
    for (const char* kind : {"c", "mc", "v", ""})
        EXPECT_EQ(Write(LooksLikeAMatrix<double>{kind, Row<double>({1, 2})}, "short"), 0) << kind;
    EXPECT_EQ(Write(LooksLikeAMatrix<double>{"r", {}, 0, 0}, "short"), 0);
    EXPECT_EQ(FileLength(file.Number()), 0);
}

} // namespace
} // namespace lumora
