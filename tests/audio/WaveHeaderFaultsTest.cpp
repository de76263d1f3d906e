#include "audio/WaveStream.h"

#include "support/EdgeNumbers.h"
#include "support/MessageRecorder.h"
#include "support/Raised.h"
#include "support/TempFolder.h"
#include "support/WaveBuilder.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using namespace test;

const ShownMessage kNoMessage = {""};
const ShownMessage kHeadCut =
    FileError("Error using read_ckinfo", "Truncated chunk header found -possibly not a WAV file");
const ShownMessage kSizeCut =
    FileError("Error using read_ckinfo", "Truncated chunk data found- possibly not a WAV file");
const ShownMessage kRiffCut =
    FileError("Error using find_refftype", "Truncated RIFF data found- possibly not a WAV file");
const ShownMessage kUnknownChunk =
    FileError("Error using fseek", "The third operand must be SEEK_SET or SEEK_CUR or SEEK_END ");
const ShownMessage kNoFormat =
    FileError("Error using wavread", "Corrupt WAV file : found data before format information.");

ShownMessage Fact(const std::string& text)
{
    return FileError("Error using read_factck", text);
}
ShownMessage Format(const std::string& text)
{
    return FileError("Error using read_waveformat", text);
}

class WaveHeader : public testing::Test {
protected:
    /// Exactly this one message, which also stands in the record; kNoMessage for none.
    void ExpectFault(const std::string& bytes, const ShownMessage& fault, const std::string& where)
    {
        const WaveInfo info = ReadWaveInfo(folder.Write("f.wav", bytes));
        EXPECT_EQ(messages.Take(), fault == kNoMessage ? Shown{} : Shown{fault}) << where;
        EXPECT_EQ(info.Message, fault.text.substr(fault.text.rfind('\n') + 1)) << where;
    }

    /// For each length below that of `whole`, the fault of the last entry that starts at or below.
    struct Cut {
        std::size_t from;
        ShownMessage fault;
    };
    void ExpectCuts(const std::string& whole, const std::vector<Cut>& cuts)
    {
        std::size_t cut = 0;
        for (std::size_t length = 0; length <= whole.size(); ++length) {
            if (cut + 1 < cuts.size() && cuts[cut + 1].from == length) ++cut;
            ExpectFault(whole.substr(0, length), cuts[cut].fault, std::to_string(length));
        }
    }

    TempFolder folder;
    MessageRecorder messages;
};

TEST_F(WaveHeader, CutAtEveryByteHasOneMessage)
{
    ExpectCuts(PlainWave({}, "ss"), {{0, kHeadCut},
                                     {4, kSizeCut},
                                     {8, kRiffCut},
                                     {12, kHeadCut},
                                     {16, kSizeCut},
                                     {20, Format("Error reading <wave_fmt> chunk.")},
                                     {34, Format("Error reading PCM <wave-fmt> chunk")},
                                     {36, kHeadCut},
                                     {40, kSizeCut},
                                     {44, kNoMessage}});
}

TEST_F(WaveHeader, WithALongFormatCutAtEveryByteHasOneMessage)
{
    ExpectCuts(PlainWave({.size = 40}, "ss"), {{0, kHeadCut},
                                               {4, kSizeCut},
                                               {8, kRiffCut},
                                               {12, kHeadCut},
                                               {16, kSizeCut},
                                               {20, Format("Error reading <wave_fmt> chunk.")},
                                               {34, Format("Error reading PCM <wave-fmt> chunk")},
                                               {36, Format("Error reading PCM <wave-fmt> chunc.")},
                                               {38, Format("Error reading pcm <wave-fmt> chunk")},
                                               {60, kHeadCut},
                                               {64, kSizeCut},
                                               {68, kNoMessage}});
}

TEST_F(WaveHeader, WithFactAndInfoCutAtEveryByteHasOneMessage)
{
    // The skip over INFO is not checked; the read that follows it finds out.
    const std::string whole =
        Wave(Chunk("fact", Le32(1) + "xx") + FormatChunk({.tag = 3}) + Chunk("INFO", "") +
             Chunk("fact", Le32(1)) + Chunk("data", "ss"));
    ExpectCuts(whole, {{0, kHeadCut},
                       {4, kSizeCut},
                       {8, kRiffCut},
                       {12, kHeadCut},
                       {16, kSizeCut},
                       {20, Fact("Error reading <fact-ck> chunc.")},
                       {24, Fact("Error reading <fact-ck> chunk")},
                       {26, kHeadCut},
                       {30, kSizeCut},
                       {34, Format("Error reading <wave_fmt> chunk.")},
                       {48, Format("Error reading <wave-fmt> chunk")},
                       {50, kHeadCut},
                       {54, kSizeCut},
                       {58, kHeadCut},
                       {62, kSizeCut},
                       {66, Fact("Error reading <fact-ck> chunc.")},
                       {70, kHeadCut},
                       {74, kSizeCut},
                       {78, kNoMessage}});
}

TEST_F(WaveHeader, OfTheStreamedLayoutCutAtEveryByteHasOneMessage)
{
    ExpectCuts(Wave(FormatChunk({.size = 18}) + Chunk("fact", Le32(1)) + Chunk("data", "ss")),
               {{0, kHeadCut},
                {4, kSizeCut},
                {8, kRiffCut},
                {12, kHeadCut},
                {16, kSizeCut},
                {20, Format("Error reading <wave_fmt> chunk.")},
                {34, Format("Error reading PCM <wave-fmt> chunk")},
                {36, Format("Error reading PCM <wave-fmt> chunc.")},
                {38, kHeadCut},
                {42, kSizeCut},
                {46, Fact("Error reading <fact-ck> chunc.")},
                {50, kHeadCut},
                {54, kSizeCut},
                {58, kNoMessage}});
}

TEST_F(WaveHeader, ThatIsNoWaveSaysSo)
{
    const std::string body = FormatChunk() + Chunk("data", "ss");
    const ShownMessage no_riff =
        FileError("Error using read_cktype", "<RIFF-ck> did not appear as expected");
    ExpectFault(Chunk("RIFX", "WAVE" + body), no_riff, "RIFX");
    ExpectFault("fLaC and so on", no_riff, "FLAC");
    ExpectFault(Chunk("RIFF", "AVI " + body),
                FileError("Error using find_refftype", "Not a WAV file"), "AVI");
}

TEST_F(WaveHeader, WithARiffSizeThatLiesIsReadAllTheSame)
{
    for (std::int32_t size : {0, -1, 3, kLeast32, kMost32}) {
        ExpectFault(Wave(FormatChunk() + Chunk("data", "ssss"), size), kNoMessage,
                    std::to_string(size));
        EXPECT_EQ(ReadWaveInfo(folder / "f.wav").RiffSize, size);
        EXPECT_EQ(ReadWaveInfo(folder / "f.wav").TotalSamples, 2);
    }
}

TEST_F(WaveHeader, WithAFormatSizeThatLiesSaysSo)
{
    const struct {
        std::int32_t size;
        const char* text;
    } table[] = {{0, "Error reading <wave_fmt> chunk."},
                 {-1, "Error reading <wave_fmt> chunk."},
                 {kLeast32, "Error reading <wave_fmt> chunk."},
                 {13, "Error reading <wave_fmt> chunk."},
                 {15, "error reading <wave-fmt> chunk"},
                 {1000, "Error reading pcm <wave-fmt> chunk"},
                 {kMost32, "Error reading pcm <wave-fmt> chunk"}};
    for (const auto& row : table)
        ExpectFault(Wave(FormatChunk({}, row.size) + Chunk("data", "ssss")), Format(row.text),
                    std::to_string(row.size));
}

TEST_F(WaveHeader, WithAFactSizeThatLiesSaysSo)
{
    const struct {
        std::int32_t size;
        const char* text;
    } table[] = {
        {0, "Error reading <fact-ck> chunc."},   {3, "Error reading <fact-ck> chunc."},
        {-1, "Error reading <fact-ck> chunc."},  {kLeast32, "Error reading <fact-ck> chunc."},
        {1000, "Error reading <fact-ck> chunk"}, {kMost32, "Error reading <fact-ck> chunk"}};
    const std::string format_and_info = FormatChunk() + Chunk("INFO", "x");
    for (const auto& row : table) {
        std::string rest = Chunk("fact", Le32(2), row.size);
        rest += Chunk("data", "ssss");
        ExpectFault(Wave(FormatChunk() + rest), Fact(row.text), std::to_string(row.size));
        ExpectFault(Wave(format_and_info + rest), Fact(row.text),
                    "behind INFO " + std::to_string(row.size));
    }
}

TEST_F(WaveHeader, WithADataSizeThatLiesIsTakenAtItsWord)
{
    const struct {
        std::int32_t size;
        std::int32_t end;
        std::int32_t samples;
    } table[] = {{0, 44, 0},
                 {5, 49, 2},
                 {1000000, 1000044, 500000},
                 {-1, 43, -1}, // the floor of -0.5
                 {-4, 40, -2},
                 {kLeast32, kLeast32 + 44, kLeast32 / 2},
                 {kMost32 - 44, kMost32, (kMost32 - 45) / 2}};
    for (const auto& row : table) {
        ExpectFault(PlainWave({}, "ssss", row.size), kNoMessage, std::to_string(row.size));
        const WaveInfo info = ReadWaveInfo(folder / "f.wav");
        EXPECT_EQ(info.DataSize, row.size);
        EXPECT_EQ(info.DataStart, 45);
        EXPECT_EQ(info.DataEnd, row.end) << row.size;
        EXPECT_EQ(info.TotalSamples, row.samples) << row.size;
    }
}

TEST_F(WaveHeader, ThatCountsBeyondThirtyTwoBitsOverflows)
{
    const struct {
        FormatSpec spec;
        std::int32_t size;
    } table[] = {
        {{}, kMost32}, {{}, kMost32 - 43}, {{.bits = 1}, kMost32 - 44}, {{.bits = 4}, kLeast32}};
    for (const auto& row : table)
        EXPECT_EQ(Raised([&] {
                      ReadWaveInfo(folder.Write("f.wav", PlainWave(row.spec, "ss", row.size)));
                  }),
                  6)
            << row.size;
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(WaveHeader, WithoutChannelsIsADivisionByZero)
{
    const std::string name = folder.Write("f.wav", PlainWave({.channels = 0}, "ssss"));
    EXPECT_EQ(Raised([&] { ReadWaveInfo(name); }), 11);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(WaveHeader, WithNegativeChannelsOrBitsCountsBelowZero)
{
    for (const FormatSpec& spec : {FormatSpec{.channels = -1}, FormatSpec{.bits = -16}}) {
        ExpectFault(PlainWave(spec, "ssss"), kNoMessage, "negative");
        EXPECT_EQ(ReadWaveInfo(folder / "f.wav").TotalSamples, -2);
    }
    ExpectFault(PlainWave({.channels = -32768, .bits = -32768}, "ssss"), kNoMessage, "both");
    EXPECT_EQ(ReadWaveInfo(folder / "f.wav").TotalSamples, 0);
}

TEST_F(WaveHeader, WithDataAheadOfItsFormatIsCorrupt)
{
    const std::string data = Chunk("data", "ssss");
    ExpectFault(Wave(data + FormatChunk()), kNoFormat, "data first");
    ExpectFault(Wave(Chunk("fact", Le32(2)) + data), kNoFormat, "fact, data");
    ExpectFault(Wave(Chunk("INFO", "x") + data), kNoFormat, "INFO, data");
}

TEST_F(WaveHeader, WithAnotherChunkAheadOfTheDataEndsInTheErrorOfFseek)
{
    const std::string data = Chunk("data", "ssss");
    const std::string info = Chunk("INFO", "x");
    const std::string files[] = {
        Wave(FormatChunk() + Chunk("LIST", "INFO") + data),
        Wave(Chunk("LIST", "") + FormatChunk() + data),
        Wave(FormatChunk() + Chunk("LIST", "", -8) + data),
        Wave(FormatChunk() + Chunk("LIST", "", kMost32)),
        Wave(FormatChunk() + std::string(8, '\0') + data),
        // Only RIFF and WAVE ignore letter case.
        Wave(Chunk("FMT ", FormatBody({})) + data),
        Wave(FormatChunk() + Chunk("Data", "ssss")),
        Wave(FormatChunk() + Chunk("FACT", Le32(2)) + data),
        Wave(FormatChunk() + Chunk("info", "x") + data),
        // Behind INFO only fact and data are known.
        Wave(FormatChunk() + info + Chunk("LIST", "x") + data),
        Wave(FormatChunk() + info + info + data),
        Wave(info + FormatChunk() + data),
        Wave(FormatChunk() + Chunk("INFO", "", -8) + data),
    };
    int number = 0;
    for (const std::string& bytes : files) {
        const std::string name = folder.Write("f.wav", bytes);
        EXPECT_EQ(Raised([&] { ReadWaveInfo(name); }), 63) << number;
        EXPECT_EQ(messages.Take(), Shown{kUnknownChunk}) << number;
        ++number;
    }
}

TEST_F(WaveHeader, WithAnInfoSizeThatLiesIsFoundOutByTheNextRead)
{
    const std::string start = FormatChunk();
    const std::string name = folder.Write("f.wav", Wave(start + Chunk("INFO", "", 1000)));
    const WaveInfo info = ReadWaveInfo(name);
    EXPECT_EQ(messages.Take(),
              (Shown{FileError("Error using fread", "Empty matrix: out of file size"), kHeadCut}));
    EXPECT_EQ(info.Message, "Truncated chunk header found -possibly not a WAV file");

    folder.Write("f.wav", Wave(start + Chunk("INFO", "", -1000)));
    EXPECT_EQ(Raised([&] { ReadWaveInfo(name); }), 63);
    EXPECT_TRUE(messages.Take().empty());
}

} // namespace
} // namespace lumora
