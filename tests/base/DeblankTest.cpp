#include "base/ByteStream.h"

#include "support/Arrays.h"
#include "support/LittleEndian.h"
#include "support/MessageRecorder.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using namespace test;

/// The two copies of the routine, which differ in their titles alone.
struct Copy {
    std::string (*deblank)(const Variant&, std::string_view);
    std::string title;
};
void PrintTo(const Copy& copy, std::ostream* out)
{
    *out << copy.title;
}

class Deblank : public testing::TestWithParam<Copy> {
protected:
    std::string Text(const Variant& value, std::string_view code)
    {
        return GetParam().deblank(value, code);
    }

    MessageRecorder messages;
};
INSTANTIATE_TEST_SUITE_P(, Deblank,
                         testing::Values(Copy{deblank, "Error using deblank"},
                                         Copy{deblank1, "Error using deblank1"}),
                         [](const auto& one) { return one.index == 0 ? "First" : "Second"; });

TEST_P(Deblank, TakesANumberAsOneCharacterCode)
{
    EXPECT_EQ(Text(std::uint8_t{65}, "b"), "A");
    EXPECT_EQ(Text(std::int16_t{66}, "i"), "B");
    EXPECT_EQ(Text(std::int32_t{67}, "L"), "C");
    EXPECT_EQ(Text(68.9, "r"), "D"); // floored
    EXPECT_TRUE(messages.shown.empty());
}

TEST_P(Deblank, TakesAnArrayAsOneCodeForEachElement)
{
    EXPECT_EQ(Text(Row<std::uint8_t>({'R', 'I', 'F', 'F'}), "b"), "RIFF");
    EXPECT_EQ(Text(Row<std::int16_t>({'a', 'b'}), "i"), "ab");
    EXPECT_EQ(Text(Row<std::int32_t>({'a', 'b', 'c'}), "L"), "abc");
    EXPECT_EQ(Text(Row<double>({97.0, 97.999, 255.5}), "r"), "aa\xFF");
}

TEST_P(Deblank, TrimsTheBlanksAtBothEnds)
{
    EXPECT_EQ(Text(Row<std::uint8_t>({'f', 'm', 't', ' '}), "b"), "fmt");
    EXPECT_EQ(Text(Row<std::uint8_t>({' ', ' ', 'a', ' ', 'b', ' '}), "b"), "a b");
    EXPECT_EQ(Text(Row<std::uint8_t>({' ', ' '}), "b"), "");
    EXPECT_EQ(Text(std::uint8_t{' '}, "b"), "");
    EXPECT_TRUE(messages.shown.empty());
}

TEST_P(Deblank, KnowsTheCodesFrom0To255)
{
    EXPECT_EQ(Text(std::uint8_t{0}, "b"), std::string(1, '\0'));
    EXPECT_EQ(Text(std::uint8_t{255}, "b"), "\xFF");
    EXPECT_EQ(Text(Row<std::int32_t>({255, 0}), "L"), std::string("\xFF\0", 2));
    EXPECT_TRUE(messages.shown.empty());
}

TEST_P(Deblank, ShowsAMessageForACodeOutsideThem)
{
    const struct {
        Variant value;
        const char* code;
    } table[] = {{std::int32_t{256}, "L"},
                 {std::int32_t{-1}, "L"},
                 {std::int16_t{-999}, "b"}, // what a read at the end of a file gives
                 {256.0, "r"},
                 {-0.1, "r"},
                 {1e300, "r"},
                 {Row<std::int32_t>({65, 256, -1}), "L"},
                 {Row<std::int16_t>({-128, 65}), "i"}};
    for (const auto& row : table) {
        EXPECT_EQ(Text(row.value, row.code), "");
        EXPECT_EQ(messages.Take(), (Shown{FileError(GetParam().title, "Out of range")}));
    }
}

TEST_P(Deblank, ReadsWhatFreadGives)
{
    const TempFolder folder;
    const OpenFile file(fopen(folder.Write("f", " ab "), "rb"));
    const FreadResult id = fread(file.Number(), 4, "uchar");
    EXPECT_EQ(Text(id.Value, id.TypeCode), "ab");
    const FreadResult end = fread(file.Number(), 4, "uchar");
    EXPECT_EQ(Text(end.Value, end.TypeCode), "");
    EXPECT_EQ(messages.Take(), (Shown{FileError(GetParam().title, "Out of range")}));
}

} // namespace
} // namespace lumora
