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

class WriteNewWaveTo : public testing::Test {
protected:
    std::string Written(const Array<std::int16_t>& samples, std::int32_t rate)
    {
        WriteNewWave(samples, rate, folder / "f.wav");
        return BytesOf(folder / "f.wav");
    }

    TempFolder folder;
    MessageRecorder messages;
};

TEST_F(WriteNewWaveTo, AMonoFileHasThisLayout)
{
    const std::string expected =
        std::string("RIFF") + Raw({56, 0, 0, 0}) + // 6 data bytes + 50
        "WAVEfmt " + Raw({18, 0, 0, 0}) + Raw({1, 0}) + Raw({1, 0}) +
        Raw({0x22, 0x56, 0, 0}) + // 22050
        Raw({0x44, 0xAC, 0, 0}) + // 44100
        Raw({2, 0}) + Raw({16, 0}) + Raw({0, 0}) + "fact" + Raw({4, 0, 0, 0}) + Raw({3, 0, 0, 0}) +
        "data" + Raw({6, 0, 0, 0}) + Raw({0x01, 0x00, 0xFE, 0xFF, 0xFF, 0x7F}); // 1, -2, 32767
    EXPECT_EQ(Written(Row<std::int16_t>({1, -2, 32767}), 22050), expected);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(WriteNewWaveTo, AStereoFileInterleavesChannelOneFirst)
{
    const std::string expected =
        std::string("RIFF") + Raw({58, 0, 0, 0}) + // 8 data bytes + 50
        "WAVEfmt " + Raw({18, 0, 0, 0}) + Raw({1, 0}) + Raw({2, 0}) +
        Raw({0x44, 0xAC, 0, 0}) +    // 44100
        Raw({0x10, 0xB1, 0x02, 0}) + // 176400
        Raw({4, 0}) + Raw({16, 0}) + Raw({0, 0}) + "fact" + Raw({4, 0, 0, 0}) +
        Raw({2, 0, 0, 0}) + // per channel: half the number of values
        "data" + Raw({8, 0, 0, 0}) +
        Raw({0x00, 0x01, 0x02, 0x00, 0xFF, 0xFF, 0x00, 0x80}); // 256, 2, -1, -32768
    EXPECT_EQ(Written(Table<std::int16_t>({{256, -1}, {2, -32768}}), 44100), expected);
}

TEST_F(WriteNewWaveTo, ATableOfOneRowIsMono)
{
    EXPECT_EQ(Written(Table<std::int16_t>({{5, 6, 7}}), 8000),
              Written(Row<std::int16_t>({5, 6, 7}), 8000));
}

TEST_F(WriteNewWaveTo, AnExistingFileIsReplaced)
{
    folder.Write("f.wav", std::string(1000, 'x'));
    EXPECT_EQ(Written(Row<std::int16_t>({1}), 8000).size(), 60U);
}

TEST_F(WriteNewWaveTo, TheFileReadsBackAsItWas)
{
    const auto stereo = Table<std::int16_t>({{1, -2, 3}, {-32768, 32767, 0}});
    WriteNewWave(stereo, 96000, folder / "f.wav");
    Array<std::int16_t> back;
    ReadWaveShorts(folder / "f.wav", back);
    EXPECT_EQ(back, stereo);
    const WaveInfo info = ReadWaveInfo(folder / "f.wav");
    EXPECT_EQ(info.nSamplesPerSec, 96000);
    EXPECT_EQ(info.nBlockAlign, 4);
    EXPECT_EQ(info.FactID, "fact");
    EXPECT_EQ(info.DataStart, 59);
    EXPECT_EQ(info.TotalSamples, 3);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(WriteNewWaveTo, AnArrayOfNoUsableShapeIsARunTimeError)
{
    EXPECT_EQ(Raised([&] { WriteNewWave({}, 8000, folder / "f.wav"); }), 9);
    EXPECT_EQ(Raised([&] { WriteNewWave(Array<std::int16_t>(3, 4), 8000, folder / "f.wav"); }), 5);
    EXPECT_EQ(Raised([&] { AppendWave({}, folder / "f.wav"); }), 9);
    EXPECT_EQ(Raised([&] { AppendWave(Array<std::int16_t>(3, 4), folder / "f.wav"); }), 5);
}

} // namespace
} // namespace lumora
