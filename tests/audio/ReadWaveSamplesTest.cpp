#include "audio/WaveStream.h"

#include "support/Arrays.h"
#include "support/EdgeNumbers.h"
#include "support/Limits.h"
#include "support/MessageRecorder.h"
#include "support/Raised.h"
#include "support/TempFolder.h"
#include "support/WaveBuilder.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using namespace test;

using Position = std::optional<std::int64_t>;

class ReadWaveSamplesOf : public testing::Test {
protected:
    Array<double> Read(const std::string& bytes, Position first = {}, Position last = {})
    {
        Array<double> samples;
        ReadWaveSamples(folder.Write("f.wav", bytes), samples, first, last);
        return samples;
    }
    /// Reading leaves the array as it was.
    void ExpectUntouched(const std::string& name)
    {
        auto samples = Row<double>({7, 8, 9});
        ReadWaveSamples(name, samples);
        EXPECT_EQ(samples, Row<double>({7, 8, 9}));
    }

    TempFolder folder;
    MessageRecorder messages;
};

TEST_F(ReadWaveSamplesOf, SixteenBitsScalesEveryValueExactly)
{
    std::string data;
    for (int value = -32768; value <= 32767; ++value)
        data += Le16(value);
    const Array<double> samples = Read(PlainWave({}, data));
    ASSERT_EQ(samples.UBound(), 65536);
    for (int value = -32768; value <= 32767; ++value)
        ASSERT_EQ(samples(value + 32769), value / 32768.0) << value;
    EXPECT_EQ(samples(1), -1.0);
    EXPECT_EQ(samples(65536), 0.999969482421875);
}

TEST_F(ReadWaveSamplesOf, EightBitsScalesEveryValueExactly)
{
    std::string data;
    for (int value = 0; value <= 255; ++value)
        data += static_cast<char>(value);
    const Array<double> samples = Read(PlainWave({.bits = 8}, data));
    ASSERT_EQ(samples.UBound(), 256);
    for (int value = 0; value <= 255; ++value)
        ASSERT_EQ(samples(value + 1), (value - 128) / 128.0) << value;
    EXPECT_EQ(samples(129), 0.0); // silence
}

TEST_F(ReadWaveSamplesOf, TheRangeIsClampedAndExchanged)
{
    const std::string file = PlainWave({}, Shorts({1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
    const struct {
        Position first, last;
        int from, to;
    } table[] = {
        {{}, {}, 1, 10},
        {3, {}, 3, 10},
        {{}, 4, 1, 4},
        {3, 7, 3, 7},
        {7, 3, 3, 7},
        {5, 5, 5, 5},
        {0, 5, 1, 5},
        {-9, 2, 1, 2},
        {11, {}, 10, 10},
        {99, {}, 10, 10},
        {99, 1, 1, 10},
        {4, 0, 1, 4},
        {4, -7, 1, 4},
        {8, 99, 8, 10},
        {1, 1, 1, 1},
        {10, 10, 10, 10},
        {kLeast64, kMost64, 1, 10},
        {kMost64, kLeast64, 1, 10},
        {kMost64, kMost64, 10, 10},
        {{}, kLeast64, 1, 1},
    };
    for (const auto& row : table) {
        const Array<double> samples = Read(file, row.first, row.last);
        ASSERT_EQ(samples.Dimensions(), 1);
        EXPECT_EQ(samples.LBound(), 1);
        ASSERT_EQ(samples.UBound(), row.to - row.from + 1) << row.from << ".." << row.to;
        EXPECT_EQ(samples(1), row.from / 32768.0) << row.from << ".." << row.to;
        EXPECT_EQ(samples(samples.UBound()), row.to / 32768.0) << row.from << ".." << row.to;
    }
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(ReadWaveSamplesOf, StereoHasChannelsByFrames)
{
    const std::string data = Shorts({256, -256, 512, -512, 1024, -1024});
    const Array<double> all = Read(PlainWave({.channels = 2}, data));
    EXPECT_EQ(all,
              Table<double>({{1.0 / 128, 1.0 / 64, 1.0 / 32}, {-1.0 / 128, -1.0 / 64, -1.0 / 32}}));
    const Array<double> last = Read(PlainWave({.channels = 2}, data), 3);
    EXPECT_EQ(last, Table<double>({{1.0 / 32}, {-1.0 / 32}}));
    const Array<double> bytes = Read(PlainWave({.channels = 2, .bits = 8}, Raw({0, 192, 64, 128})));
    EXPECT_EQ(bytes, Table<double>({{-1.0, -0.5}, {0.5, 0.0}}));
}

TEST_F(ReadWaveSamplesOf, OfThreeChannelsTheFirstTwoAreConverted)
{
    const std::string data = Shorts({8192, 16384, 99, -8192, -16384, 99});
    EXPECT_EQ(Read(PlainWave({.channels = 3}, data)),
              Table<double>({{0.25, -0.25}, {0.5, -0.5}, {0.0, 0.0}}));
    EXPECT_EQ(Read(PlainWave({.channels = 3}, data), 2), Table<double>({{-0.25}, {-0.5}, {0.0}}));
    EXPECT_EQ(Read(PlainWave({.channels = 3, .bits = 8}, Raw({192, 64, 99}))),
              Table<double>({{0.5}, {-0.5}, {0.0}}));
}

TEST_F(ReadWaveSamplesOf, TheDataNeedNotStartAtTheUsualPlace)
{
    const std::string file =
        Wave(Chunk("fact", Le32(0) + "xxx") + FormatChunk({.size = 41}) + Chunk("INFO", "odd") +
             Chunk("data", Shorts({16384, -32768, 1})) + Chunk("LIST", "behind"));
    EXPECT_EQ(Read(file), Row<double>({0.5, -1.0, 1.0 / 32768}));
    EXPECT_EQ(Read(file, 2, 2), Row<double>({-1.0}));
}

TEST_F(ReadWaveSamplesOf, OtherWidthsLeaveTheArrayAsItWas)
{
    for (int bits : {0, 4, 12, 24, 32, -16})
        ExpectUntouched(folder.Write("f.wav", PlainWave({.bits = bits}, std::string(96, 's'))));
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(ReadWaveSamplesOf, AFileWithoutSamplesLeavesTheArrayAsItWas)
{
    ExpectUntouched(folder.Write("f.wav", PlainWave({}, "")));
    ExpectUntouched(folder.Write("f.wav", PlainWave({}, "s")));
    ExpectUntouched(folder.Write("f.wav", PlainWave({}, "ssss", -4)));
    ExpectUntouched(folder.Write("f.wav", PlainWave({.channels = -1}, "ssss")));
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(ReadWaveSamplesOf, AFaultyFileShowsItsMessageAndLeavesTheArrayAsItWas)
{
    ExpectUntouched(folder / "missing.wav");
    EXPECT_EQ(messages.Take().size(), 1U);
    ExpectUntouched(folder.Write("f.wav", "RIFF"));
    EXPECT_EQ(messages.Take().size(), 1U);
    ExpectUntouched(folder.Write("f.wav", Wave(Chunk("data", "ssss") + FormatChunk())));
    EXPECT_EQ(messages.Take().size(), 1U);
}

TEST_F(ReadWaveSamplesOf, ANewRangeReplacesTheOldOneWholly)
{
    const std::string name = folder.Write("f.wav", PlainWave({}, Shorts({1, 2, 3, 4})));
    Array<double> samples;
    ReadWaveSamples(name, samples);
    ReadWaveSamples(name, samples, 2, 3);
    EXPECT_EQ(samples, Row<double>({2.0 / 32768, 3.0 / 32768}));
    folder.Write("f.wav", PlainWave({.channels = 2}, Shorts({1, 2, 3, 4})));
    ReadWaveSamples(name, samples);
    EXPECT_EQ(samples.Dimensions(), 2);
    EXPECT_EQ(samples.UBound(2), 2);
}

TEST_F(ReadWaveSamplesOf, EveryFileIsClosedAgain)
{
    const std::ptrdiff_t before = OpenFileCount();
    Read(PlainWave({}, "ssss"));
    Read(PlainWave({.bits = 24}, "ssssss"));
    Read(PlainWave({}, ""));
    Raised([&] { Read(PlainWave({}, "", 0x7FFFFF00)); });
    EXPECT_EQ(OpenFileCount(), before);
}

} // namespace
} // namespace lumora
