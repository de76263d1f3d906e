#include "cli/CommandRun.h"
#include "cli/Sounds.h"
#include "support/SameBytes.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <sndfile.h>

namespace lumora::test {
namespace {

using Names = std::vector<std::string>;
using Json = nlohmann::json;

constexpr std::int64_t kFrames = 40000;
constexpr char kConverted[] = "converted to 16-bit PCM first: ";

class UnusualInput : public testing::Test {
protected:
    /// The one result of a run on the file, one tone up, which must have gone well.
    Json Run(const std::string& input)
    {
        const CommandResult run =
            Lumora({"pitch", input, folder_ / "out.wav", "--force", "--json", "--tones", "1"});
        EXPECT_EQ(run.status, 0) << run.out << run.err;
        EXPECT_EQ(run.err, "");
        return Json::parse(run.out).at("results").at(0);
    }

    /// The result is the one of a plain 16-bit file with these samples, bit for bit.
    void ExpectResultOf(const std::vector<std::int16_t>& samples, int channels = 1)
    {
        const std::string plain =
            folder_.Write("plain.wav", PlainWave({.channels = channels}, BytesOfSamples(samples)));
        const double one_tone_up = std::exp2(-1.0 / 6.0);
        EXPECT_TRUE(HoldsBytes(folder_ / "out.wav", EngineResult(plain, one_tone_up, channels)));
    }

    /// Runs a file that the engine's reader refuses; its one note must give this reason.
    void ExpectConverted(const std::string& input, const std::string& reason)
    {
        const Json notes = Run(input).at("notes");
        ASSERT_EQ(notes.size(), 1U) << notes;
        EXPECT_EQ(notes.at(0), kConverted + reason);
    }

    TempFolder folder_;
};

TEST_F(UnusualInput, EightBitsAreReadAsTheyAre)
{
    std::string bytes;
    std::vector<std::int16_t> samples;
    for (const std::int16_t sample : Tune(kFrames)) {
        bytes += static_cast<char>(sample / 256 + 128);
        samples.push_back(static_cast<std::int16_t>(sample / 256 * 256));
    }
    const Json result = Run(folder_.Write("in.wav", PlainWave({.bits = 8}, bytes)));
    EXPECT_EQ(result.at("notes"), Json::array());
    ExpectResultOf(samples);
}

TEST_F(UnusualInput, AChunkAheadOfTheSoundIsPassedOver)
{
    const std::string data = Chunk("data", BytesOfSamples(Tune(kFrames, 2)));
    const FormatSpec stereo = {.channels = 2};
    const std::string list = Chunk("LIST", "INFOISFT" + Le32(4) + "tool");
    ExpectConverted(folder_.Write("list.wav", Wave(FormatChunk(stereo) + list + data)),
                    "a chunk LIST stands ahead of its sound");
    ExpectResultOf(Tune(kFrames, 2), 2);
    ExpectConverted(
        folder_.Write("first.wav", Wave(Chunk("JUNK", "abcd") + FormatChunk(stereo) + data)),
        "a chunk JUNK stands ahead of its sound");
    ExpectResultOf(Tune(kFrames, 2), 2);
}

TEST_F(UnusualInput, TheChunkThatIsReallyInTheWayIsNamed)
{
    const std::string data = Chunk("data", BytesOfSamples(Tune(kFrames)));
    const std::string info = Chunk("INFO", "made by hand");
    const std::string fact = Chunk("fact", Le32(kFrames));
    const auto expect_named = [&](const std::string& chunks, const std::string& name) {
        ExpectConverted(folder_.Write("in.wav", Wave(chunks)),
                        "a chunk " + name + " stands ahead of its sound");
        ExpectResultOf(Tune(kFrames));
    };
    expect_named(FormatChunk() + info + Chunk("LIST", "INFO") + data, "LIST");
    expect_named(FormatChunk() + fact + info + fact + Chunk("JUNK", "") + data, "JUNK");
    expect_named(FormatChunk() + info + info + data, "INFO"); // the second is no longer known
    expect_named(info + FormatChunk() + data, "fmt");         // nor is the format behind one
    expect_named(FormatChunk() + Chunk("INFO", "odd") + std::string(1, '\0') + data, "INFO");
    expect_named(FormatChunk() + Chunk("    ", "abcd") + data, "\"    \"");
    const CommandResult told = Lumora({"info", folder_ / "in.wav"});
    EXPECT_NE(told.out.find("\n  chunk \"    \"      4 bytes at position"), std::string::npos)
        << told.out;
}

TEST_F(UnusualInput, AnInfoChunkAheadOfTheSoundIsPassedOverByTheEngine)
{
    const std::string data = Chunk("data", BytesOfSamples(Tune(kFrames)));
    const std::string in =
        folder_.Write("in.wav", Wave(FormatChunk() + Chunk("INFO", "made by hand") + data));
    EXPECT_EQ(Run(in).at("notes"), Json::array());
    ExpectResultOf(Tune(kFrames));
}

TEST_F(UnusualInput, AChunkBehindTheSoundIsNoReasonToConvert)
{
    const std::string data = Chunk("data", BytesOfSamples(Tune(kFrames)));
    const std::string list = Chunk("LIST", "INFOISFT" + Le32(4) + "tool");
    const Json result = Run(folder_.Write("in.wav", Wave(FormatChunk() + data + list)));
    EXPECT_EQ(result.at("notes"), Json::array());
    EXPECT_EQ(result.at("samples"), kFrames);
    ExpectResultOf(Tune(kFrames));
}

TEST_F(UnusualInput, ABlockAlignmentThatDoesNotFitIsNotTrusted)
{
    std::string wave = TuneWave(kFrames);
    wave[32] = 4; // bytes of a frame: 2 in truth
    ExpectConverted(folder_.Write("in.wav", wave), "its block alignment does not fit its samples");
    ExpectResultOf(Tune(kFrames));
}

TEST_F(UnusualInput, TwentyFourBitsAreRoundedHalfToEven)
{
    // 24-bit samples a quarter, a half and three quarters of a 16-bit step above each tune sample.
    std::string bytes;
    std::vector<std::int16_t> samples;
    for (const std::int16_t sample : Tune(kFrames)) {
        const int quarters = static_cast<int>(samples.size() % 4);
        bytes += LittleEndian(static_cast<std::uint32_t>(sample * 256 + quarters * 64), 3);
        const bool up = quarters == 3 || (quarters == 2 && sample % 2 != 0);
        samples.push_back(static_cast<std::int16_t>(sample + (up ? 1 : 0)));
    }
    ExpectConverted(folder_.Write("in.wav", PlainWave({.bits = 24}, bytes)),
                    "its samples have 24 bits");
    ExpectResultOf(samples);
}

TEST_F(UnusualInput, FullScaleOf24BitsIsNotCalledClipped)
{
    std::string bytes;
    for (int k = 0; k < 5000; ++k)
        bytes += LittleEndian(0x7FFFFF, 3);
    ExpectConverted(folder_.Write("in.wav", PlainWave({.bits = 24}, bytes)),
                    "its samples have 24 bits");
    ExpectResultOf(std::vector<std::int16_t>(5000, 32767));
}

TEST_F(UnusualInput, FloatSamplesBeyondFullScaleAreClippedAndCounted)
{
    std::string bytes;
    std::vector<std::int16_t> samples;
    const auto put = [&](float value, int sample) {
        bytes += LeSingle(value);
        samples.push_back(static_cast<std::int16_t>(sample));
    };
    for (const std::int16_t sample : Tune(kFrames))
        put(static_cast<float>(sample) / 32768.0F, sample);
    put(1.0F, 32767);
    put(-1.0F, -32768);
    put(1.5F, 32767);
    put(-1.25F, -32768);
    put(1e30F, 32767);
    put(-INFINITY, -32768);
    put(NAN, 0);
    put(0.5F / 32768.0F, 0); // ties go to the even neighbour
    put(1.5F / 32768.0F, 2);
    put(-2.5F / 32768.0F, -2);
    const Json result = Run(folder_.Write("in.wav", PlainWave({.bits = 32, .tag = 3}, bytes)));
    const Json expected = {
        std::string(kConverted) + "its samples are not plain PCM (format tag 3)",
        "values beyond full scale that were clipped: 4; a quieter source avoids that",
        "values that are no numbers, taken as silence: 1"};
    EXPECT_EQ(result.at("notes"), expected);
    ExpectResultOf(samples);
}

TEST_F(UnusualInput, AnExtensibleHeaderIsConverted)
{
    const std::string in = folder_ / "in.wav";
    WriteWithLibrary(in, SF_FORMAT_WAVEX | SF_FORMAT_PCM_16, Tune(kFrames, 2), 2, 22050);
    ExpectConverted(in, "its samples are not plain PCM (format tag 65534)");
    ExpectResultOf(Tune(kFrames, 2), 2);
}

struct Lossless {
    const char* name;
    int format;
    const char* reason;
};

TEST_F(UnusualInput, LosslessFilesGiveTheSameResultAsTheirPlainTwin)
{
    constexpr Lossless kFormats[] = {
        {"in.flac", SF_FORMAT_FLAC | SF_FORMAT_PCM_16,
         "it is FLAC (Free Lossless Audio Codec), Signed 16 bit PCM"},
        {"in.aiff", SF_FORMAT_AIFF | SF_FORMAT_PCM_16, "it is AIFF (Apple/SGI), Signed 16 bit PCM"},
        {"in.au", SF_FORMAT_AU | SF_FORMAT_PCM_24, "it is AU (Sun/NeXT), Signed 24 bit PCM"},
        {"in.caf", SF_FORMAT_CAF | SF_FORMAT_DOUBLE,
         "it is CAF (Apple Core Audio File), 64 bit float"},
        {"named.wav", SF_FORMAT_FLAC | SF_FORMAT_PCM_24,
         "it is FLAC (Free Lossless Audio Codec), Signed 24 bit PCM"},
    };
    for (const auto& [name, format, reason] : kFormats) {
        for (const int channels : {1, 2}) {
            WriteWithLibrary(folder_ / name, format, Tune(kFrames, channels), channels, 22050);
            ExpectConverted(folder_ / name, reason);
            ExpectResultOf(Tune(kFrames, channels), channels);
        }
    }
}

TEST_F(UnusualInput, LossyFilesKeepTheirRateChannelsAndAboutTheirLength)
{
    constexpr std::pair<const char*, int> kFormats[] = {
        {"in.ogg", SF_FORMAT_OGG | SF_FORMAT_VORBIS},
        {"in.opus", SF_FORMAT_OGG | SF_FORMAT_OPUS},
        {"in.mp3", SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III},
    };
    for (const auto& [name, format] : kFormats) {
        WriteWithLibrary(folder_ / name, format, Tune(96000, 2), 2, 48000);
        const Json result = Run(folder_ / name);
        EXPECT_EQ(result.at("rate_hz"), 48000) << name;
        EXPECT_EQ(result.at("channels"), 2) << name;
        // Coders pad to whole frames of at most 1152 samples at both ends.
        EXPECT_NEAR(result.at("samples").get<double>(), 96000.0, 2304.0) << name;
        ASSERT_EQ(result.at("notes").size(), 1U) << result.at("notes");
    }
}

TEST_F(UnusualInput, TheTemporaryOfAConversionIsRemoved)
{
    const std::string in = folder_ / "in.flac";
    WriteWithLibrary(in, SF_FORMAT_FLAC | SF_FORMAT_PCM_16, Tune(kFrames), 1, 22050);
    Run(in);
    EXPECT_EQ(NamesIn(folder_.Path()), (Names{"in.flac", "out.wav"}));
}

TEST_F(UnusualInput, WithoutJsonTheNotesGoToStandardError)
{
    const std::string in = folder_ / "in.flac";
    WriteWithLibrary(in, SF_FORMAT_FLAC | SF_FORMAT_PCM_16, Tune(kFrames), 1, 22050);
    const CommandResult run = Lumora({"pitch", in, folder_ / "out.wav", "--tones", "1"});
    EXPECT_EQ(run.err, "lumora: " + in + ": " + kConverted +
                           "it is FLAC (Free Lossless Audio Codec), Signed 16 bit PCM\n");
    EXPECT_EQ(std::count(run.out.begin(), run.out.end(), '\n'), 1);
}

TEST_F(UnusualInput, AWaveThatIsCutShortIsUsedAsFarAsItGoes)
{
    const std::string whole = TuneWave(kFrames);
    const auto samples = Tune(kFrames);
    for (const std::int64_t frames : {220L, 221L, 5000L, kFrames - 1}) {
        const auto cut = static_cast<std::size_t>(44 + 2 * frames);
        const Json result = Run(folder_.Write("in.wav", whole.substr(0, cut)));
        EXPECT_EQ(result.at("samples"), frames);
        ASSERT_EQ(result.at("notes").size(), 2U) << result.at("notes");
        EXPECT_EQ(result.at("notes").at(0), std::string(kConverted) + "it is cut short");
        const std::string note = result.at("notes").at(1);
        EXPECT_EQ(note.rfind("the file is cut short: ", 0), 0U) << note;
        EXPECT_NE(note.find(" of 1.814 s are there, and these are used"), std::string::npos)
            << note;
        ExpectResultOf({samples.begin(), samples.begin() + frames});
    }
}

TEST_F(UnusualInput, AFlacThatIsCutShortIsUsedAsFarAsItGoes)
{
    const std::string in = folder_ / "in.flac";
    WriteWithLibrary(in, SF_FORMAT_FLAC | SF_FORMAT_PCM_16, Tune(kFrames), 1, 22050);
    const std::string whole = BytesOf(in);
    folder_.Write("in.flac", whole.substr(0, whole.size() / 2));
    const Json result = Run(in);
    const std::int64_t there = result.at("samples");
    EXPECT_GT(there, kFrames / 4);
    EXPECT_LT(there, kFrames);
    ASSERT_EQ(result.at("notes").size(), 2U) << result.at("notes");
    const std::string note = result.at("notes").at(1);
    EXPECT_EQ(note.rfind("the file is cut short: ", 0), 0U) << note;
    const auto samples = Tune(kFrames);
    ExpectResultOf({samples.begin(), samples.begin() + there});
}

TEST_F(UnusualInput, DecodersOwnRemarksAreNotShown)
{
    const std::string in = folder_ / "in.mp3";
    WriteWithLibrary(in, SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III, Tune(kFrames), 1, 44100);
    const std::string whole = BytesOf(in);
    folder_.Write("in.mp3", whole.substr(0, whole.size() * 2 / 3)); // its decoder grumbles at this
    EXPECT_EQ(Run(in).at("ok"), true);
    const CommandResult info = Lumora({"info", in});
    EXPECT_EQ(info.status, 0);
    EXPECT_EQ(info.err, "");
}

TEST_F(UnusualInput, AHeaderThatWasNeverCompletedMeansTheRestOfTheFile)
{
    for (const std::int64_t stated : {0xFFFFFFFFL, 0x80000000L, 0x7FFFFFFFL, 0x7FFFF000L}) {
        const std::string wave = PlainWave({}, BytesOfSamples(Tune(kFrames)), stated);
        ExpectConverted(folder_.Write("in.wav", wave), "its header was never completed");
        ExpectResultOf(Tune(kFrames));
    }
}

TEST_F(UnusualInput, AHeaderThatPromisesNoSoundIsRefusedWithAWayOut)
{
    const std::string wave = PlainWave({}, BytesOfSamples(Tune(kFrames)), 0);
    const std::string in = folder_.Write("in.wav", wave);
    const CommandResult run = Lumora({"pitch", in, folder_ / "out.wav", "--tones", "1"});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find("its header was never completed, so that it promises no sound"),
              std::string::npos)
        << run.err;
    EXPECT_EQ(NamesIn(folder_.Path()), Names{"in.wav"});
}

TEST_F(UnusualInput, NoCutOfAnyFileCrashesTheCommandOrLeavesAnythingBehind)
{
    const std::string list = Chunk("LIST", "INFOISFT" + Le32(4) + "tool");
    const std::string data = Chunk("data", BytesOfSamples(Tune(300)));
    const std::string wave = Wave(FormatChunk({.size = 18}) + list + data);
    Names words = {"pitch", "--json", "--tones", "1", "--jobs", "2", "--out-dir", folder_ / "out"};
    std::size_t last_too_short = 0;
    for (std::size_t cut = 0; cut <= wave.size(); ++cut) {
        if (cut > 90 && cut % 50 != 0 && cut != wave.size()) continue;
        words.push_back(folder_.Write(std::to_string(cut) + ".wav", wave.substr(0, cut)));
        if (cut < wave.size() - 160) last_too_short = cut; // 80 samples short of 300: no block
    }
    const CommandResult run = Lumora(words);
    EXPECT_EQ(run.status, 1);
    const Json results = Json::parse(run.out).at("results");
    EXPECT_GT(results.size(), 100U);
    for (const Json& result : results) {
        const std::string file = result.at("file");
        const std::size_t cut = std::stoul(file.substr(file.rfind('/') + 1));
        EXPECT_EQ(result.at("ok"), cut > last_too_short) << result;
        if (result.contains("error")) {
            EXPECT_EQ(result.at("error").get<std::string>().find("report it"), std::string::npos)
                << result;
        }
    }
    for (const std::string& name : NamesIn(folder_ / "out"))
        EXPECT_NE(name.front(), '.') << name;
}

} // namespace
} // namespace lumora::test
