#include "audio/Wavread.h"

#include "numeric/Matrices.h"
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

constexpr double kTwoTo31 = 2147483648.0;

class Wavread : public testing::Test {
protected:
    void TearDown() override
    {
        EXPECT_EQ(messages.Take(), Shown{});
        EXPECT_EQ(OpenFileCount(), open_before);
    }

    WavreadResult Read(const std::string& bytes, const Variant& arg1 = {}, const Variant& arg2 = {})
    {
        return wavread(folder.Write("f.wav", bytes), arg1, arg2);
    }

    /// The reading gave this matrix and no message.
    void ExpectSamples(const WavreadResult& result, Rows<double> rows)
    {
        ASSERT_TRUE(result.Samples);
        EXPECT_EQ(ShapeOf(*result.Samples), ShapeOf(*RealMatrix(rows)));
        EXPECT_EQ(Values(*result.Samples), Values(*RealMatrix(rows)));
        EXPECT_EQ(result.Info.Message, "");
        EXPECT_EQ(messages.Take(), Shown{});
    }

    /// The reading failed with this one message, which has no title; "" for none.
    void ExpectFault(const WavreadResult& result, const std::string& text)
    {
        EXPECT_EQ(result.Bits, -1);
        EXPECT_FALSE(result.Samples);
        EXPECT_EQ(result.Trailing, "");
        EXPECT_EQ(result.Info.Message, text);
        EXPECT_EQ(messages.Take(), text.empty() ? Shown{} : Shown{Plain(text)});
    }

    TempFolder folder;
    MessageRecorder messages;
    const std::ptrdiff_t open_before = OpenFileCount();
};

TEST_F(Wavread, AMonoFileIsAColumn)
{
    const auto result = Read(PlainWave({}, Shorts({16384, -32768, 32767})));
    ExpectSamples(result, {{0.5}, {-1.0}, {32767 / 32768.0}});
    EXPECT_EQ(result.Bits, 16);
    EXPECT_EQ(result.Rate, 22050);
    EXPECT_EQ(result.Trailing, "");
}

TEST_F(Wavread, AStereoFileIsARowPerFrame)
{
    const auto result = Read(PlainWave({.channels = 2}, Shorts({8192, -8192, 0, 1, 2, 3})));
    ExpectSamples(result, {{0.25, -0.25}, {0.0, 1 / 32768.0}, {2 / 32768.0, 3 / 32768.0}});
}

TEST_F(Wavread, FurtherChannelsHaveTheirColumnsInTheOrderOfTheFile)
{
    const auto result = Read(PlainWave({.channels = 3, .bits = 8}, Raw({0, 64, 128, 192, 255, 1})));
    ExpectSamples(result, {{-1.0, -0.5, 0.0}, {0.5, 127 / 128.0, -127 / 128.0}});
}

TEST_F(Wavread, TheHeaderComesWithTheSamples)
{
    const FormatSpec spec = {.channels = 2, .bits = 32, .rate_hz = 44100, .size = 18, .extra = 7};
    const WaveInfo info = Read(Wave(Chunk("fact", Le32(99)) + FormatChunk(spec) +
                                    Chunk("data", std::string(24, 's'))))
                              .Info;
    EXPECT_EQ(info.RiffID, "RIFF");
    EXPECT_EQ(info.RiffSize, 4 + 12 + 26 + 32);
    EXPECT_EQ(info.WaveID, "WAVE");
    EXPECT_EQ(info.FmtID, "fmt");
    EXPECT_EQ(info.FmtSize, 18);
    EXPECT_EQ(info.FactID, "fact");
    EXPECT_EQ(info.FactSize, 4);
    EXPECT_EQ(info.wFormatTag, 1);
    EXPECT_EQ(info.nChannels, 2);
    EXPECT_EQ(info.nSamplesPerSec, 44100);
    EXPECT_EQ(info.nAvgBytesPerSec, 352800);
    EXPECT_EQ(info.nBlockAlign, 8);
    EXPECT_EQ(info.nBitsPerSample, 32);
    EXPECT_EQ(info.cbExtra, 7);
    EXPECT_EQ(info.DataID, "data");
    EXPECT_EQ(info.DataSize, 24);
    EXPECT_EQ(info.DataStart, 59);
    EXPECT_EQ(info.DataEnd, 82);
    EXPECT_EQ(info.TotalSamples, 3); // and not the 99 of the fact chunk
}

TEST_F(Wavread, EachWidthHasItsScale)
{
    ExpectSamples(Read(PlainWave({.bits = 8}, Raw({0, 1, 127, 128, 255}))),
                  {{-1.0}, {-127 / 128.0}, {-1 / 128.0}, {0.0}, {127 / 128.0}});
    ExpectSamples(Read(PlainWave({.bits = 16}, Shorts({-32768, -1, 0, 32767}))),
                  {{-1.0}, {-1 / 32768.0}, {0.0}, {32767 / 32768.0}});
    ExpectSamples(
        Read(PlainWave({.bits = 32}, Le32(-2147483648LL) + Le32(-1) + Le32(0) + Le32(2147483647))),
        {{-1.0}, {-1 / kTwoTo31}, {0.0}, {2147483647 / kTwoTo31}});
}

TEST_F(Wavread, AnOddWidthTakesWholeBytes)
{
    ExpectSamples(Read(PlainWave({.bits = 1}, Raw({192}))), {{0.5}});
    ExpectSamples(Read(PlainWave({.bits = 7}, Raw({192}))), {{0.5}});
    ExpectSamples(Read(PlainWave({.bits = 9}, Shorts({16384}))), {{0.5}});
    ExpectSamples(Read(PlainWave({.bits = 12}, Shorts({16384}))), {{0.5}});
    ExpectSamples(Read(PlainWave({.bits = 25}, Le32(1 << 30))), {{0.5}});
    const auto result = Read(PlainWave({.bits = 12}, Shorts({1, 2})));
    EXPECT_EQ(result.Bits, 12);
    EXPECT_EQ(result.Info.TotalSamples, 2);
}

TEST_F(Wavread, OtherWidthsAreRefused)
{
    for (int bits : {24, 17, 20, 33, 64, 0, -1, -8, -16, 32767})
        ExpectFault(Read(PlainWave({.bits = bits}, std::string(12, 's'))),
                    "Cannot read PCM file formats with more than 32 bits per samle");
}

TEST_F(Wavread, ASingleSampleOrFrameIsARow)
{
    ExpectSamples(Read(PlainWave({.bits = 8}, Raw({64}))), {{-0.5}});
    ExpectSamples(Read(PlainWave({}, Shorts({-16384}))), {{-0.5}});
    ExpectSamples(Read(PlainWave({.bits = 32}, Le32(-(1 << 30)))), {{-0.5}});
    ExpectSamples(Read(PlainWave({.channels = 2}, Shorts({-16384, 8192}))), {{-0.5, 0.25}});
}

TEST_F(Wavread, EverySampleOfALongFileFindsItsPlace)
{
    for (int channels : {1, 2, 3, 7}) {
        std::string data;
        std::vector<double> expected;
        const int frames = 50000 / channels;
        for (int k = 0; k < frames * channels; ++k)
            data += Le16(k - 25000);
        for (int c = 0; c < channels; ++c)
            for (int frame = 0; frame < frames; ++frame)
                expected.push_back((frame * channels + c - 25000) / 32768.0);
        const auto result = Read(PlainWave({.channels = channels}, data));
        ASSERT_EQ(ShapeOf(*result.Samples), Sized(frames, channels));
        EXPECT_EQ(Values(*result.Samples), expected) << channels;
    }
}

TEST_F(Wavread, SizeIsSamplesAndChannelsInAnyLetterCase)
{
    for (const char* word : {"size", "SIZE", "SiZe"}) {
        const auto result = Read(PlainWave({.channels = 2}, std::string(40, 's')), word);
        ExpectSamples(result, {{10, 2}});
        EXPECT_EQ(result.Bits, 16);
        EXPECT_EQ(result.Rate, 22050);
        EXPECT_EQ(result.Info.DataSize, 40);
        EXPECT_EQ(result.Info.nBlockAlign, 4);
        EXPECT_EQ(result.Info.TotalSamples, 10);
    }
}

TEST_F(Wavread, SizeCountsBlocksToTheNearest)
{
    const int table[][2] = {{0, 0}, {1, 0}, {2, 1}, {3, 2}, {5, 2}, {7, 4}};
    for (const auto& [bytes, samples] : table)
        ExpectSamples(
            Read(PlainWave({}, std::string(static_cast<std::size_t>(bytes), 's')), "size"),
            {{static_cast<double>(samples), 1}});
}

TEST_F(Wavread, SizeKnowsEveryWidth)
{
    const auto result = Read(PlainWave({.channels = 2, .bits = 24}, std::string(60, 's')), "size");
    ExpectSamples(result, {{10, 2}});
    EXPECT_EQ(result.Bits, 24);
}

TEST_F(Wavread, SizeOfAnotherFormatFailsInSilence)
{
    for (int tag : {2, 3, 0, -2}) {
        const auto result = Read(PlainWave({.tag = tag}, std::string(40, 's')), "size");
        ExpectFault(result, "");
        EXPECT_EQ(result.Info.wFormatTag, tag);
        EXPECT_EQ(result.Info.DataSize, 40);
    }
}

TEST_F(Wavread, OtherArgumentsFailInSilence)
{
    const Variant table[][2] = {{1.0, {}},
                                {std::int32_t{2}, {}},
                                {"2", {}},
                                {"sizes", {}},
                                {"", {}},
                                {"size", 2.0},
                                {{}, 2.0},
                                {1.0, "size"},
                                {Array<double>(2), {}},
                                {1.0, "second"},
                                {RealMatrix({{1}}), 2.0}};
    for (const auto& [arg1, arg2] : table) {
        ExpectFault(Read(PlainWave({}, Shorts({1, 2, 3})), arg1, arg2), "");
        ExpectFault(wavread(folder / "missing.wav", arg1, arg2), "");
    }
}

TEST_F(Wavread, ARangeHasBothEnds)
{
    const std::string mono = PlainWave({}, Shorts({0, 8192, 16384, -8192}));
    ExpectSamples(Read(mono, 2.0, 3.0), {{0.25}, {0.5}});
    ExpectSamples(Read(mono, 3.0, 2.0), {{0.25}, {0.5}});
    ExpectSamples(Read(mono, std::int32_t{4}, std::int16_t{4}), {{-0.25}});
    ExpectSamples(Read(mono, "1", "2"), {{0.0}, {0.25}});
    ExpectSamples(Read(mono, 0.6, 2.5), {{0.0}, {0.25}}); // to nearest, half to even
    ExpectSamples(Read(mono, 1.0, 4.0), {{0.0}, {0.25}, {0.5}, {-0.25}});
    const std::string stereo =
        PlainWave({.channels = 2, .bits = 8}, Raw({0, 32, 64, 96, 128, 160}));
    ExpectSamples(Read(stereo, 2.0, 3.0), {{-0.5, -0.25}, {0.0, 0.25}});
    ExpectSamples(Read(stereo, 3.0, 3.0), {{0.0, 0.25}});
    EXPECT_EQ(Read(stereo, 3.0, 3.0).Info.TotalSamples, 3);
}

TEST_F(Wavread, ARangeBeyondTheFileIsRefused)
{
    const double table[][2] = {{0, 1},          {1, 4},    {-1, 2},  {4, 4},     {0, 0},
                               {4, 1},          {3, 3.6},  {0.5, 1}, {1e300, 1}, {1, kInfinity},
                               {-kInfinity, 1}, {kNan, 2}, {2, kNan}};
    for (const auto& [first, last] : table)
        ExpectFault(Read(PlainWave({}, Shorts({1, 2, 3})), first, last),
                    "Sample limits out of range.");
    ExpectFault(Read(PlainWave({}, ""), 1.0, 1.0), "Sample limits out of range.");
}

TEST_F(Wavread, EveryNamedFormatIsRefusedByItsName)
{
    const std::pair<int, std::string> table[] = {{2, "Microsoft ADPCM"},
                                                 {6, "CCITT a-law"},
                                                 {7, "CCITT mu-law"},
                                                 {17, "IMA ADPCM"},
                                                 {34, "DSP Group TrueSpeech TM"},
                                                 {49, "GsM 6.10"},
                                                 {50, "MSN Audio"},
                                                 {257, "IBM Mu-law"},
                                                 {258, "IBM A-law"},
                                                 {259, "IBM AVC Adaptive Diffrential"},
                                                 {0, "format #0"},
                                                 {3, "format #3"},
                                                 {256, "format #256"},
                                                 {-2, "format #-2"}};
    for (const auto& [tag, name] : table) {
        const std::string file = PlainWave({.tag = tag}, std::string(40, 's'));
        ExpectFault(Read(file), name + " data compression format is not supported");
        ExpectFault(Read(file, 1.0, 2.0), name + " data compression format is not supported");
    }
}

TEST_F(Wavread, AMissingFileHasItsMessageAndAnEmptyRecord)
{
    const auto result = wavread(folder / "missing.wav");
    EXPECT_EQ(messages.Take(),
              Shown{Plain(" Cannot open specifid WAV file for input, because file not exist.")});
    ExpectFault(result, "");
    EXPECT_EQ(result.Info.RiffID, "");
}

TEST_F(Wavread, ANameWithoutADotGetsItsEnding)
{
    folder.Write("phrase.wav", PlainWave({}, Shorts({16384})));
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    ExpectSamples(wavread("phrase"), {{0.5}});
    std::filesystem::current_path(before);
}

TEST_F(Wavread, FaultsOfTheChunksHaveNoTitle)
{
    const std::string data = Chunk("data", "ssss");
    const std::pair<std::string, std::string> table[] = {
        {"", "Truncated chunk header found -possibly not a WAV file"},
        {"RIFF12", "Truncated chunk data found- possibly not a WAV file"},
        {"fLaC1234WAVE", "<RIFF-ck> did not appear as expected"},
        {"RIFF1234WA", "Truncated RIFF data found- possibly not a WAV file"},
        {"RIFF1234AVI ", "Not a WAV file"},
        {Wave(Chunk("fact", "12")), "Error reading <fact-ck> chunc."},
        {Wave(Chunk("fact", "1234", 9)), "Error reading <fact-ck> chunk"},
        {Wave(FormatChunk({.size = 13})), "Error reading <wave_fmt> chunk."},
        {Wave(FormatChunk({.tag = 2}, 99)), "Error reading <wave-fmt> chunk"},
        {Wave(FormatChunk({.size = 15})), "error reading <wave-fmt> chunk"},
        {Wave(FormatChunk({.size = 14}, 16)), "Error reading PCM <wave-fmt> chunk"},
        {Wave(FormatChunk({.size = 16}, 18)), "Error reading PCM <wave-fmt> chunc."},
        {Wave(FormatChunk({.size = 18}, 40)), "Error reading pcm <wave-fmt> chunk"},
        {Wave(data + FormatChunk()), "Corrupt WAV file : found data before format information."},
        {Wave(FormatChunk()), "Truncated chunk header found -possibly not a WAV file"},
    };
    for (const auto& [file, text] : table) {
        ExpectFault(Read(file), text);
        ExpectFault(Read(file, "size"), text);
    }
}

TEST_F(Wavread, AnotherChunkAheadOfTheDataEndsInTheErrorOfFseek)
{
    const std::string name = folder.Write(
        "f.wav", Wave(FormatChunk() + Chunk("LIST", "INFO") + Chunk("data", Shorts({1}))));
    for (const Variant& arg : {Variant(), Variant("size")}) {
        EXPECT_EQ(Raised([&] { wavread(name, arg); }), 63);
        EXPECT_EQ(messages.Take(),
                  Shown{FileError("Error using fseek",
                                  "The third operand must be SEEK_SET or SEEK_CUR or SEEK_END ")});
    }
}

TEST_F(Wavread, FactAndInfoChunksArePassed)
{
    ExpectSamples(Read(Wave(FormatChunk({.size = 40}) + Chunk("INFO", "by nobody") +
                            Chunk("fact", Le32(7)) + Chunk("data", Shorts({16384})))),
                  {{0.5}});
}

TEST_F(Wavread, AFileWithoutFramesHasNoElements)
{
    for (const std::string& data : {std::string(), std::string("s")}) { // half a sample rounds to 0
        const auto result = Read(PlainWave({}, data));
        ASSERT_TRUE(result.Samples);
        EXPECT_EQ(result.Samples->size1, 0);
        EXPECT_EQ(result.Bits, 16);
        EXPECT_EQ(Raised([&] { result.Samples->AbsM(); }), 9);
    }
}

TEST_F(Wavread, BytesBehindTheDataAreItsTrailingText)
{
    const std::string samples = Wave(FormatChunk() + Chunk("data", Shorts({16384, 0})));
    EXPECT_EQ(Read(samples + "LIST and more").Trailing, "LIST and more");
    EXPECT_EQ(Read(samples + "LIST and more", 2.0, 2.0).Trailing, "LIST and more");
    EXPECT_EQ(Read(samples + std::string(1, '\0') + "x").Trailing, std::string(1, '\0') + "x");
    EXPECT_EQ(Read(samples + "LIST and more", "size").Trailing, "");
    // A zero behind odd data is the pad byte; other writers leave it out.
    const std::string odd = Wave(FormatChunk({.bits = 8}) + Chunk("data", Raw({1, 2, 3})));
    EXPECT_EQ(Read(odd + std::string(1, '\0')).Trailing, "");
    EXPECT_EQ(Read(odd + std::string(1, '\0') + "text").Trailing, "text");
    EXPECT_EQ(Read(odd + "text").Trailing, "text");
    EXPECT_EQ(Read(odd + std::string(2, '\0')).Trailing, std::string(1, '\0'));
}

TEST_F(Wavread, ALastFrameThatIsHalfThereCountsAndIsFilledWithZeros)
{
    // What follows the chunk, here 0x7F bytes, is no part of a sample.
    const auto file = [](const FormatSpec& spec, const std::string& data) {
        return PlainWave(spec, data) + "\x7F\x7F\x7F\x7F";
    };
    ExpectSamples(Read(file({}, Raw({0, 64, 2}))), {{0.5}, {2 / 32768.0}});
    ExpectSamples(Read(file({}, Raw({0, 64, 0, 64, 2}))), {{0.5}, {0.5}}); // 2.5 rounds to 2
    ExpectSamples(Read(file({.channels = 2}, Shorts({16384, 8192, 4096}))),
                  {{0.5, 0.25}, {0.125, 0.0}});
    ExpectSamples(Read(file({.channels = 2}, Shorts({16384, 8192, 4096})), 2.0, 2.0),
                  {{0.125, 0.0}});
    EXPECT_EQ(Read(file({}, Raw({0, 64, 2}))).Trailing, "\x7F\x7F\x7F\x7F");
}

} // namespace
} // namespace lumora
