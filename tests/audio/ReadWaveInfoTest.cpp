#include "audio/WaveStream.h"

#include "support/Limits.h"
#include "support/MessageRecorder.h"
#include "support/Raised.h"
#include "support/TempFolder.h"
#include "support/WaveBuilder.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using namespace test;

class ReadWaveInfoOf : public testing::Test {
protected:
    WaveInfo Read(const std::string& bytes) { return ReadWaveInfo(folder.Write("f.wav", bytes)); }

    TempFolder folder;
    MessageRecorder messages;
};

TEST_F(ReadWaveInfoOf, APlainFileFillsTheWholeRecord)
{
    const FormatSpec stereo = {.channels = 2, .rate_hz = 44100};
    const WaveInfo info = Read(PlainWave(stereo, std::string(400, 's')));
    EXPECT_EQ(info.RiffID, "RIFF");
    EXPECT_EQ(info.RiffSize, 4 + 24 + 8 + 400);
    EXPECT_EQ(info.WaveID, "WAVE");
    EXPECT_EQ(info.FmtID, "fmt");
    EXPECT_EQ(info.FmtSize, 16);
    EXPECT_EQ(info.wFormatTag, 1);
    EXPECT_EQ(info.nChannels, 2);
    EXPECT_EQ(info.nSamplesPerSec, 44100);
    EXPECT_EQ(info.nAvgBytesPerSec, 176400);
    EXPECT_EQ(info.nBlockAlign, 4);
    EXPECT_EQ(info.nBitsPerSample, 16);
    EXPECT_EQ(info.cbExtra, 0);
    EXPECT_EQ(info.FactID, "");
    EXPECT_EQ(info.FactSize, 0);
    EXPECT_EQ(info.DataID, "data");
    EXPECT_EQ(info.DataSize, 400);
    EXPECT_EQ(info.DataStart, 45);
    EXPECT_EQ(info.DataEnd, 444);
    EXPECT_EQ(info.TotalSamples, 100);
    EXPECT_EQ(info.Message, "");
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(ReadWaveInfoOf, AFactChunkIsKeptButNotTrusted)
{
    for (std::int32_t told : {50, 0, -3, 1000000}) {
        const WaveInfo info = Read(
            Wave(Chunk("fact", Le32(told)) + FormatChunk() + Chunk("data", std::string(100, 's'))));
        EXPECT_EQ(info.FactID, "fact");
        EXPECT_EQ(info.FactSize, 4);
        EXPECT_EQ(info.TotalSamples, 50) << told;
        EXPECT_EQ(info.DataStart, 57);
    }
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(ReadWaveInfoOf, AFormatChunkOfAnySizeIsSkippedToItsEnd)
{
    for (std::size_t size : {std::size_t{16}, std::size_t{17}, std::size_t{18}, std::size_t{40}}) {
        const WaveInfo info = Read(PlainWave({.size = size}, std::string(8, 's')));
        EXPECT_EQ(info.FmtSize, static_cast<std::int32_t>(size));
        EXPECT_EQ(info.DataStart, static_cast<std::int32_t>(29 + size));
        EXPECT_EQ(info.TotalSamples, 4) << size;
    }
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(ReadWaveInfoOf, NoBitsCountAsSixteen)
{
    const FormatSpec specs[] = {
        {.bits = 0}, {.tag = 3, .size = 14}, {.tag = 3, .size = 16}, {.tag = -2, .size = 40}};
    for (const FormatSpec& spec : specs) {
        const WaveInfo info = Read(PlainWave(spec, std::string(8, 's')));
        EXPECT_EQ(info.nBitsPerSample, 0) << spec.tag;
        EXPECT_EQ(info.TotalSamples, 4) << spec.tag;
        EXPECT_EQ(info.Message, "") << spec.tag;
    }
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(ReadWaveInfoOf, SamplesAreCountedPerChannelAndRoundedDown)
{
    // channels, bits, data bytes, samples
    const int table[][4] = {{1, 8, 5, 5},   {1, 16, 5, 2}, {2, 8, 5, 2},  {2, 16, 7, 1},
                            {3, 16, 17, 2}, {1, 24, 8, 2}, {2, 16, 0, 0}, {1, 12, 8, 5}};
    for (const auto& [channels, bits, size, samples] : table) {
        const FormatSpec spec = {.channels = channels, .bits = bits};
        const WaveInfo info =
            Read(PlainWave(spec, std::string(static_cast<std::size_t>(size), 's')));
        EXPECT_EQ(info.TotalSamples, samples) << channels << ' ' << bits << ' ' << size;
    }
}

TEST_F(ReadWaveInfoOf, BytesBehindTheDataDoNotMatter)
{
    const std::string file = Wave(FormatChunk() + Chunk("data", std::string(8, 's')) +
                                  Chunk("LIST", "INFOISFT\xFF\x80 anything") + "odd");
    const WaveInfo info = Read(file);
    EXPECT_EQ(info.DataEnd, 52);
    EXPECT_EQ(info.TotalSamples, 4);
    EXPECT_EQ(info.Message, "");
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(ReadWaveInfoOf, OnlyRiffAndWaveIgnoreLetterCase)
{
    const std::string body = FormatChunk() + Chunk("data", std::string(8, 's'));
    const WaveInfo info = Read(Chunk("riff", "Wave" + body));
    EXPECT_EQ(info.RiffID, "riff");
    EXPECT_EQ(info.WaveID, "Wave");
    EXPECT_EQ(info.TotalSamples, 4);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(ReadWaveInfoOf, AnInfoChunkIsSkippedOnTheWayToTheData)
{
    const std::string data = Chunk("data", std::string(8, 's'));
    for (const std::string& middle : {std::string(), Chunk("fact", Le32(99))}) {
        std::string chunks = FormatChunk() + Chunk("INFO", "artist");
        chunks += middle;
        chunks += data;
        const WaveInfo info = Read(Wave(chunks));
        EXPECT_EQ(info.DataStart, static_cast<std::int32_t>(59 + middle.size()));
        EXPECT_EQ(info.FactSize, middle.empty() ? 0 : 4);
        EXPECT_EQ(info.TotalSamples, 4);
        EXPECT_EQ(info.Message, "");
    }
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(ReadWaveInfoOf, AMissingFileIsAnEmptyRecord)
{
    const WaveInfo info = ReadWaveInfo(folder / "missing.wav");
    EXPECT_EQ(
        messages.Take(),
        (Shown{FileError("Error using open_wav.",
                         " Cannot open specifid WAV file for input, because file not exist.")}));
    EXPECT_EQ(info.RiffID, "");
    EXPECT_EQ(info.TotalSamples, 0);
    EXPECT_EQ(info.Message, "");
}

TEST_F(ReadWaveInfoOf, AnySoundIsClosedAgain)
{
    const std::ptrdiff_t before = OpenFileCount();
    Read(PlainWave({}, "ssss"));
    Read("RIFF");
    Raised([&] { Read(Wave(Chunk("LIST", "x"))); });
    Raised([&] { Read(PlainWave({.channels = 0}, "ssss")); });
    EXPECT_EQ(OpenFileCount(), before);
}

} // namespace
} // namespace lumora
