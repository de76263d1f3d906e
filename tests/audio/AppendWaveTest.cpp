#include "audio/WaveRoom.h"
#include "audio/WaveStream.h"

#include "support/Arrays.h"
#include "support/MessageRecorder.h"
#include "support/Raised.h"
#include "support/TempFolder.h"
#include "support/WaveBuilder.h"

#include <gtest/gtest.h>
#include <random>

namespace lumora {
namespace {

using namespace test;

class AppendWaveTo : public testing::Test {
protected:
    TempFolder folder;
    MessageRecorder messages;
};

/// Frames first..last of all channels, as an array from 1.
Array<std::int16_t> Part(const Array<std::int16_t>& whole, std::int64_t first, std::int64_t last)
{
    if (whole.Dimensions() == 1) {
        Array<std::int16_t> part(last - first + 1);
        for (std::int64_t k = first; k <= last; ++k)
            part(k - first + 1) = whole(k);
        return part;
    }
    Array<std::int16_t> part(whole.UBound(1), last - first + 1);
    for (std::int64_t k = first; k <= last; ++k)
        for (std::int64_t c = 1; c <= whole.UBound(1); ++c)
            part(c, k - first + 1) = whole(c, k);
    return part;
}

TEST_F(AppendWaveTo, ThreeChunksEqualASingleWrite)
{
    std::minstd_rand random(20040201);
    for (bool stereo : {false, true}) {
        Array<std::int16_t> whole =
            stereo ? Array<std::int16_t>(2, 1000) : Array<std::int16_t>(1000);
        for (std::int16_t& value : whole.Span())
            value = static_cast<std::int16_t>(random());
        WriteNewWave(whole, 44100, folder / "single.wav");
        for (const auto& [a, b] : {std::pair{1, 2}, {1, 999}, {400, 401}, {333, 666}}) {
            WriteNewWave(Part(whole, 1, a), 44100, folder / "grown.wav");
            AppendWave(Part(whole, a + 1, b), folder / "grown.wav");
            AppendWave(Part(whole, b + 1, 1000), folder / "grown.wav");
            EXPECT_EQ(BytesOf(folder / "grown.wav"), BytesOf(folder / "single.wav"))
                << stereo << ' ' << a << ' ' << b;
        }
    }
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(AppendWaveTo, MendsThreeSizesAndNothingElse)
{
    const std::string name = folder / "f.wav";
    WriteNewWave(Table<std::int16_t>({{1}, {2}}), 44100, name);
    std::string expected = BytesOf(name);
    AppendWave(Table<std::int16_t>({{3}, {4}}), name);
    expected.replace(4, 4, Raw({58, 0, 0, 0})); // 8 data bytes + 50
    expected.replace(46, 4, Raw({2, 0, 0, 0}));
    expected.replace(54, 4, Raw({8, 0, 0, 0}));
    EXPECT_EQ(BytesOf(name), expected + Shorts({3, 4}));
}

TEST_F(AppendWaveTo, LeavesAValidFileAfterEachChunk)
{
    const std::string name = folder / "f.wav";
    WriteNewWave(Row<std::int16_t>({0, 1}), 8000, name);
    for (std::int16_t k = 1; k <= 10; ++k) {
        AppendWave(Row<std::int16_t>({k, k, k}), name);
        const WaveInfo info = ReadWaveInfo(name);
        EXPECT_EQ(info.TotalSamples, 2 + 3 * k);
        EXPECT_EQ(info.DataSize, 2 * info.TotalSamples);
        EXPECT_EQ(info.RiffSize, info.DataSize + 50);
        EXPECT_EQ(std::filesystem::file_size(name), 58U + static_cast<unsigned>(info.DataSize));
    }
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(AppendWaveTo, CountsWhatADyingRunHasLeftBehindItsSizes)
{
    const std::string name = folder / "f.wav";
    WriteNewWave(Row<std::int16_t>({1, 2}), 8000, name);
    folder.Write("f.wav", BytesOf(name) + Shorts({3, 4, 5})); // data gone ahead of the header
    EXPECT_EQ(ReadWaveInfo(name).TotalSamples, 2);
    AppendWave(Row<std::int16_t>({6}), name);
    Array<std::int16_t> samples;
    ReadWaveShorts(name, samples);
    EXPECT_EQ(samples, Row<std::int16_t>({1, 2, 3, 4, 5, 6}));
}

TEST_F(AppendWaveTo, OverflowsWhereASizeNoLongerFits)
{
    const std::string name = folder / "f.wav";
    WriteNewWave(Row<std::int16_t>({1, 2}), 8000, name);
    std::filesystem::resize_file(name, 0x7FFFFFFE); // a gap takes no room on the disk
    EXPECT_EQ(Raised([&] { AppendWave(Array<std::int16_t>(1000), name); }), 6);
    EXPECT_EQ(ReadWaveInfo(name).TotalSamples, 2);
}

TEST_F(AppendWaveTo, FillsAWaveFileToTheLastFrameThatItHasRoomFor)
{
    // The last byte may stand at 2,147,483,647, and 58 bytes are header.
    EXPECT_EQ(MostFramesInWave(1, 2), 1073741794);
    EXPECT_EQ(MostFramesInWave(2, 2), 536870897);
    EXPECT_EQ(MostFramesInWave(2, 1), 1073741794);
    for (const std::int32_t channels : {1, 2}) {
        const std::string name = folder / "f.wav";
        const auto frames = [&](std::int64_t count) {
            return channels == 1 ? Array<std::int16_t>(count) : Array<std::int16_t>(2, count);
        };
        const std::int64_t most = MostFramesInWave(channels, 2);
        WriteNewWave(frames(1), 8000, name);
        std::filesystem::resize_file(name,
                                     static_cast<std::uintmax_t>(58 + (most - 1) * 2 * channels));
        AppendWave(frames(1), name);
        EXPECT_EQ(ReadWaveInfo(name).TotalSamples, most);
        AppendWave(frames(1), name);
        EXPECT_EQ(Raised([&] { ReadWaveInfo(name); }), 6) << "one more can be written, not read";
    }
}

} // namespace
} // namespace lumora
