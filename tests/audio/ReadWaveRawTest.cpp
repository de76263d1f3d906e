#include "audio/WaveStream.h"

#include "support/Arrays.h"
#include "support/MessageRecorder.h"
#include "support/TempFolder.h"
#include "support/WaveBuilder.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using namespace test;

class ReadWaveRaw : public testing::Test {
protected:
    std::string Write(const std::string& file) { return folder.Write("f.wav", file); }

    TempFolder folder;
    MessageRecorder messages;
    Array<std::uint8_t> bytes;
    Array<std::int16_t> shorts;
};

TEST_F(ReadWaveRaw, GivesTheNumbersOfTheFileUnchanged)
{
    ReadWaveBytes(Write(PlainWave({.bits = 8}, Raw({0, 127, 128, 255}))), bytes);
    EXPECT_EQ(bytes, Row<std::uint8_t>({0, 127, 128, 255}));
    ReadWaveShorts(Write(PlainWave({}, Shorts({-32768, -1, 0, 32767}))), shorts);
    EXPECT_EQ(shorts, Row<std::int16_t>({-32768, -1, 0, 32767}));
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(ReadWaveRaw, GivesAllChannels)
{
    ReadWaveBytes(Write(PlainWave({.channels = 3, .bits = 8}, Raw({1, 2, 3, 4, 5, 6}))), bytes);
    EXPECT_EQ(bytes, Table<std::uint8_t>({{1, 4}, {2, 5}, {3, 6}}));
    ReadWaveShorts(Write(PlainWave({.channels = 2}, Shorts({1, -1, 2, -2}))), shorts);
    EXPECT_EQ(shorts, Table<std::int16_t>({{1, 2}, {-1, -2}}));
    ReadWaveShorts(Write(PlainWave({.channels = 3}, Shorts({1, 2, 3, 4, 5, 6}))), shorts, 2);
    EXPECT_EQ(shorts, Table<std::int16_t>({{4}, {5}, {6}}));
}

TEST_F(ReadWaveRaw, ClampsAndExchangesTheRange)
{
    const std::string narrow = folder.Write("8.wav", PlainWave({.bits = 8}, Raw({1, 2, 3, 4, 5})));
    const std::string wide = folder.Write("16.wav", PlainWave({}, Shorts({1, 2, 3, 4, 5})));
    const struct {
        std::optional<std::int64_t> first, last;
        int from, to;
    } table[] = {{{}, {}, 1, 5}, {2, {}, 2, 5}, {{}, 3, 1, 3}, {4, 2, 2, 4},
                 {-5, 2, 1, 2},  {9, {}, 5, 5}, {3, 99, 3, 5}, {3, 0, 1, 3}};
    for (const auto& row : table) {
        ReadWaveBytes(narrow, bytes, row.first, row.last);
        ReadWaveShorts(wide, shorts, row.first, row.last);
        for (std::int64_t last : {bytes.UBound(), shorts.UBound()})
            ASSERT_EQ(last, row.to - row.from + 1) << row.from << ".." << row.to;
        for (int k = row.from; k <= row.to; ++k) {
            EXPECT_EQ(bytes(k - row.from + 1), k);
            EXPECT_EQ(shorts(k - row.from + 1), k);
        }
    }
}

TEST_F(ReadWaveRaw, LeavesTheArrayAsItWasForAnotherWidth)
{
    bytes = Row<std::uint8_t>({7});
    shorts = Row<std::int16_t>({7});
    for (int bits : {0, 4, 12, 16, 24, 32})
        ReadWaveBytes(Write(PlainWave({.bits = bits}, std::string(24, 's'))), bytes);
    for (int bits : {0, 4, 8, 12, 24, 32})
        ReadWaveShorts(Write(PlainWave({.bits = bits}, std::string(24, 's'))), shorts);
    EXPECT_EQ(bytes, Row<std::uint8_t>({7}));
    EXPECT_EQ(shorts, Row<std::int16_t>({7}));
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(ReadWaveRaw, LeavesTheArrayAsItWasForAFaultyOrEmptyFile)
{
    bytes = Row<std::uint8_t>({7});
    shorts = Row<std::int16_t>({7});
    ReadWaveBytes(Write(PlainWave({.bits = 8}, "")), bytes);
    ReadWaveShorts(Write(PlainWave({}, "")), shorts);
    EXPECT_TRUE(messages.shown.empty());
    ReadWaveBytes(folder / "missing.wav", bytes);
    ReadWaveShorts(folder / "missing.wav", shorts);
    EXPECT_EQ(messages.shown.size(), 2U);
    EXPECT_EQ(bytes, Row<std::uint8_t>({7}));
    EXPECT_EQ(shorts, Row<std::int16_t>({7}));
}

} // namespace
} // namespace lumora
