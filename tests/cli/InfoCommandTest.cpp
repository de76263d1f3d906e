#include "cli/CommandRun.h"
#include "cli/Sounds.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sndfile.h>

namespace lumora::test {
namespace {

using Json = nlohmann::json;

class InfoCommand : public testing::Test {
protected:
    CommandResult Run(std::vector<std::string> words) const
    {
        words.insert(words.begin(), "info");
        return Lumora(std::move(words), {folder_.Path().string()});
    }

    Json Only(const std::string& file, int status = 0) const
    {
        const CommandResult result = Run({"--json", file});
        EXPECT_EQ(result.status, status);
        EXPECT_EQ(result.err, "");
        return Json::parse(result.out).at("results").at(0);
    }

    TempFolder folder_;
};

TEST_F(InfoCommand, TellsEveryHeaderField)
{
    const std::string fact = Chunk("fact", Le32(1000));
    const std::string data = Chunk("data", BytesOfSamples(Tune(1000, 2)));
    folder_.Write("in.wav",
                  Wave(FormatChunk({.channels = 2, .size = 18, .extra = 5}) + fact + data));
    const Json expected = {{"file", "in.wav"},
                           {"ok", true},
                           {"pitch", "direct"},
                           {"rate_hz", 22050},
                           {"channels", 2},
                           {"samples", 1000},
                           {"seconds", 1000 / 22050.0},
                           {"block_samples", 220},
                           {"header",
                            {{"RiffID", "RIFF"},
                             {"RiffSize", 4 + 26 + 12 + 8 + 4000},
                             {"WaveID", "WAVE"},
                             {"FmtID", "fmt"},
                             {"FmtSize", 18},
                             {"wFormatTag", 1},
                             {"nChannels", 2},
                             {"nSamplesPerSec", 22050},
                             {"nAvgBytesPerSec", 88200},
                             {"nBlockAlign", 4},
                             {"nBitsPerSample", 16},
                             {"cbExtra", 5},
                             {"FactID", "fact"},
                             {"FactSize", 4},
                             {"TotalSamples", 1000},
                             {"DataID", "data"},
                             {"DataSize", 4000},
                             {"DataStart", 59},
                             {"DataEnd", 4058},
                             {"Message", ""}}},
                           {"chunks",
                            {{{"id", "fmt"}, {"bytes", 18}, {"start", 21}},
                             {{"id", "fact"}, {"bytes", 4}, {"start", 47}},
                             {{"id", "data"}, {"bytes", 4000}, {"start", 59}}}},
                           {"data_bytes_there", 4000}};
    EXPECT_EQ(Only("in.wav"), expected);
}

TEST_F(InfoCommand, TellsAReaderTheSame)
{
    folder_.Write("in.wav", TuneWave(22050, 2));
    const CommandResult result = Run({"in.wav"});
    EXPECT_EQ(result.status, 0);
    for (const char* line :
         {"in.wav\n", "1.000 s, 22050 samples, 22050 Hz, 2 channels\n", "would read it as it is\n",
          "100 of 220 samples\n", "nAvgBytesPerSec   88200\n", "DataEnd           88244\n"})
        EXPECT_NE(result.out.find(line), std::string::npos) << result.out;
}

TEST_F(InfoCommand, TellsWhatIsKnownOfAHeaderThatTheEngineRefuses)
{
    const std::string data = Chunk("data", BytesOfSamples(Tune(1000)));
    folder_.Write("in.wav", Wave(FormatChunk() + Chunk("odd ", "abc") + '\0' + data));
    const Json json = Only("in.wav");
    EXPECT_EQ(json.at("pitch"), "converted");
    EXPECT_EQ(json.at("reason"), "a chunk odd stands ahead of its sound");
    EXPECT_EQ(json.at("format"), "WAV (Microsoft), Signed 16 bit PCM");
    EXPECT_EQ(json.at("samples"), 1000);
    EXPECT_EQ(json.at("header").at("nAvgBytesPerSec"), 44100);
    EXPECT_EQ(json.at("header").at("DataSize"), 2000);
    const Json chunks = {{{"id", "fmt"}, {"bytes", 16}, {"start", 21}},
                         {{"id", "odd"}, {"bytes", 3}, {"start", 45}},
                         {{"id", "data"}, {"bytes", 2000}, {"start", 57}}};
    EXPECT_EQ(json.at("chunks"), chunks);
}

TEST_F(InfoCommand, TellsOfFormatsThatHaveNoSuchHeader)
{
    WriteWithLibrary(folder_ / "in.flac", SF_FORMAT_FLAC | SF_FORMAT_PCM_16, Tune(5000, 2), 2,
                     48000);
    const Json json = Only("in.flac");
    EXPECT_EQ(json.at("pitch"), "converted");
    EXPECT_EQ(json.at("format"), "FLAC (Free Lossless Audio Codec), Signed 16 bit PCM");
    EXPECT_EQ(json.at("rate_hz"), 48000);
    EXPECT_EQ(json.at("samples"), 5000);
    EXPECT_FALSE(json.contains("header"));
}

TEST_F(InfoCommand, AFileThatPitchWouldRefuseIsStillToldOf)
{
    folder_.Write("many.wav", TuneWave(5000, 6));
    const Json json = Only("many.wav");
    EXPECT_EQ(json.at("pitch"), "refused");
    EXPECT_EQ(json.at("channels"), 6);
    EXPECT_EQ(json.at("header").at("nChannels"), 6);
    EXPECT_NE(json.at("reason").get<std::string>().find("mix it down"), std::string::npos);
}

TEST_F(InfoCommand, TellsHowMuchOfACutFileIsThere)
{
    folder_.Write("in.wav", TuneWave(5000).substr(0, 44 + 2 * 3000));
    const Json json = Only("in.wav");
    EXPECT_EQ(json.at("pitch"), "converted");
    EXPECT_EQ(json.at("samples"), 3000);
    EXPECT_EQ(json.at("header").at("DataSize"), 10000);
    EXPECT_EQ(json.at("data_bytes_there"), 6000);
    EXPECT_NE(Run({"in.wav"}).out.find("4000 bytes of the data"), std::string::npos);
}

TEST_F(InfoCommand, FilesThatNothingCanReadAreReportedAmongTheRest)
{
    folder_.Write("good.wav", TuneWave(5000));
    folder_.Write("text.wav", "no sound");
    const CommandResult result = Run({"text.wav", "good.wav", "missing.wav"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out.rfind("good.wav\n", 0), 0U) << result.out;
    EXPECT_NE(result.err.find("text.wav: cannot be read as sound"), std::string::npos);
    EXPECT_NE(result.err.find("missing.wav: there is no such file"), std::string::npos);
    const Json json = Only("missing.wav", 1);
    EXPECT_EQ(json.at("ok"), false);
    EXPECT_EQ(json.at("error"), "there is no such file; check the name");
}

TEST_F(InfoCommand, NamesAndChunksThatAreNoTextDoNotStopIt)
{
    const std::string chunk = Chunk("\xff\x01\x02\xfe", "ab");
    const std::string data = Chunk("data", BytesOfSamples(Tune(1000)));
    folder_.Write("\xff.wav", Wave(FormatChunk() + chunk + data));
    folder_.Write("good.wav", TuneWave(5000));
    const CommandResult result = Run({"--json", "\xff.wav", "good.wav"});
    EXPECT_EQ(result.status, 1); // libsndfile reads no file with such a chunk
    const Json results = Json::parse(result.out).at("results");
    EXPECT_EQ(results.at(0).at("file"), "\xEF\xBF\xBD.wav");
    EXPECT_EQ(results.at(0).at("chunks").size(), 3U);
    EXPECT_EQ(results.at(1).at("ok"), true);
}

} // namespace
} // namespace lumora::test
