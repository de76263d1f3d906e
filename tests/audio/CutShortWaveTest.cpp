#include "audio/WaveStream.h"

#include "support/Arrays.h"
#include "support/MessageRecorder.h"
#include "support/Raised.h"
#include "support/TempFolder.h"
#include "support/WaveBuilder.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using namespace test;

constexpr std::int64_t kChunkFrames = std::int64_t{145} * 220; // at 22,050 Hz

/// Files whose data chunk promises more than follows.
class CutShortWave : public testing::Test {
protected:
    std::string Write(const FormatSpec& spec, const std::string& data, std::int64_t frames_promised)
    {
        const std::int64_t promised = frames_promised * spec.channels * spec.bits / 8;
        return folder.Write("f.wav", PlainWave(spec, data, promised));
    }

    TempFolder folder;
    MessageRecorder messages;
    Array<double> samples;
    Array<std::int16_t> shorts;
    Array<std::uint8_t> bytes;
};

TEST_F(CutShortWave, ReadsMissingSamplesAsZero)
{
    ReadWaveSamples(Write({}, Shorts({16384, -16384}), 4), samples);
    EXPECT_EQ(samples, Row<double>({0.5, -0.5, 0, 0}));
    ReadWaveShorts(Write({.channels = 2}, Shorts({1, 2, 3}), 3), shorts);
    EXPECT_EQ(shorts, Table<std::int16_t>({{1, 3, 0}, {2, 0, 0}}));
    ReadWaveBytes(Write({.bits = 8}, Raw({9, 8}), 4), bytes);
    EXPECT_EQ(bytes, Row<std::uint8_t>({9, 8, 0, 0}));
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(CutShortWave, TakesAMissingByteForZeroAndNotForSilence)
{
    // Half a sample is there: its low byte. A byte of zero is the lowest sample of 8 bits.
    ReadWaveShorts(Write({}, Raw({1, 0, 0x34}), 3), shorts);
    EXPECT_EQ(shorts, Row<std::int16_t>({1, 0x34, 0}));
    ReadWaveSamples(Write({.bits = 8}, Raw({128}), 2), samples);
    EXPECT_EQ(samples, Row<double>({0, -1}));
}

TEST_F(CutShortWave, KeepsNothingOfAnEarlierCallInItsPlace)
{
    ReadWaveShorts(Write({}, Shorts({5, 6, 7, 8}), 4), shorts);
    ReadWaveShorts(Write({}, Shorts({1}), 4), shorts);
    EXPECT_EQ(shorts, Row<std::int16_t>({1, 0, 0, 0}));
}

TEST_F(CutShortWave, ReadsARangeThatIsMissingWholly)
{
    const std::string name = Write({}, Shorts({1, 2}), 1000000);
    ReadWaveShorts(name, shorts, 999999, 1000000);
    EXPECT_EQ(shorts, Row<std::int16_t>({0, 0}));
    ReadWaveSamples(name, samples, 500000, 500001);
    EXPECT_EQ(samples, Row<double>({0, 0}));
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(CutShortWave, GivesAChunkOfZerosAndNotMuchMore)
{
    const std::string name = Write({.channels = 2}, Shorts({1, 2}), 1000000);
    const std::int64_t chunk = 1 + kChunkFrames;
    ReadWaveShorts(name, shorts, 1, chunk);
    EXPECT_EQ(shorts.UBound(2), chunk);
    EXPECT_EQ(shorts(2, 1), 2);
    EXPECT_EQ(shorts(2, chunk), 0);
    ReadWaveSamples(name, samples, 1, chunk);
    EXPECT_EQ(samples(1, chunk), 0.0);
    const std::int64_t more = chunk + kChunkFrames / 100;
    EXPECT_EQ(Raised([&] { ReadWaveShorts(name, shorts, 1, more); }), 7);
    EXPECT_EQ(Raised([&] { ReadWaveSamples(name, samples, 1, more); }), 7);
    EXPECT_EQ(Raised([&] { ReadWaveSamples(name, samples); }), 7);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(CutShortWave, HasAChunkForEveryRateAndWidth)
{
    for (std::int32_t rate : {8000, 44100, 192000})
        for (int bits : {8, 16})
            for (int channels : {1, 2}) {
                const FormatSpec spec = {.channels = channels, .bits = bits, .rate_hz = rate};
                const std::string name = Write(spec, "", std::int64_t{20} * rate);
                ReadWaveSamples(name, samples, 1, rate);
                EXPECT_EQ(samples.UBound(channels == 1 ? 1 : 2), rate);
                EXPECT_EQ(Raised([&] { ReadWaveSamples(name, samples, 1, 3 * rate); }), 7)
                    << rate << ' ' << bits << ' ' << channels;
            }
}

TEST_F(CutShortWave, NeverReadsBytesBehindTheDataAsZeros)
{
    // What stands behind too short a promise is no sample of this file.
    const std::string file = Wave(FormatChunk() + Chunk("data", Shorts({1, 2, 3, 4}), 4));
    ReadWaveShorts(folder.Write("f.wav", file), shorts);
    EXPECT_EQ(shorts, Row<std::int16_t>({1, 2}));
}

} // namespace
} // namespace lumora
