#include "cli/CommandRun.h"
#include "cli/Sounds.h"
#include "overfilter/ModOverPolynom.h"
#include "overfilter/RemoveOverStream.h"
#include "platform/Conversion.h"
#include "support/LittleEndian.h"
#include "support/SameBytes.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <sndfile.h>

namespace lumora::test {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;
using Shorts = std::vector<std::int16_t>;

/// Two notes whose peaks meet now and then: those pass 0.8 of full scale for a few samples. Clipped
/// at full scale.
Shorts Peaks(std::int64_t frames, int channels = 1, double level = 27900.0)
{
    Shorts samples;
    const Shorts hiss = Tune(frames, channels);
    for (std::int64_t k = 0; k < frames * channels; ++k) {
        const auto t = static_cast<double>(k / channels);
        const double x = 0.53 * std::sin(0.05 * t) + 0.47 * std::sin(0.1137 * t);
        const double loud = level * x + hiss[static_cast<std::size_t>(k)] / 200.0;
        samples.push_back(static_cast<std::int16_t>(std::clamp(loud, -32768.0, 32767.0)));
    }
    return samples;
}

/// `samples` with a flat stretch of 0.9 of full scale put in.
Shorts WithPlateau(Shorts samples, std::size_t first, std::size_t length)
{
    for (std::size_t k = first; k < first + length; ++k)
        samples[k] = 29491;
    return samples;
}

std::string WaveOf(const Shorts& samples, int channels = 1, std::int32_t rate_hz = 22050)
{
    return PlainWave({.channels = channels, .rate_hz = rate_hz}, BytesOfSamples(samples));
}

Shorts SamplesIn(const std::string& path)
{
    const std::string bytes = BytesOf(path).substr(44);
    Shorts samples;
    for (std::size_t k = 0; k + 1 < bytes.size(); k += 2)
        samples.push_back(static_cast<std::int16_t>(static_cast<unsigned char>(bytes[k]) |
                                                    static_cast<unsigned char>(bytes[k + 1]) << 8));
    return samples;
}

class DeclipCommand : public testing::Test {
protected:
    CommandResult Run(const Names& more) const
    {
        Names words = {"declip"};
        words.insert(words.end(), more.begin(), more.end());
        return Lumora(words, {folder_.Path().string()});
    }

    /// What the library's own operation makes of a file.
    static std::string LibraryResult(const std::string& path)
    {
        const TempFolder folder;
        fs::copy_file(path, folder / "in.wav");
        std::int16_t quality = 0;
        return BytesOf(RemoveOverFile(folder / "in.wav", quality));
    }

    /// The one result of a run with --json.
    nlohmann::json Json(Names words) const
    {
        words.insert(words.end(), {"--json", "--force"});
        const CommandResult result = Run(words);
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_EQ(result.err, "");
        return nlohmann::json::parse(result.out).at("results").at(0);
    }

    /// The line without what depends on the clock.
    static std::string Told(const CommandResult& result)
    {
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_TRUE(result.out.ends_with(" times real time\n")) << result.out;
        return result.out.substr(0, result.out.rfind(", "));
    }

    TempFolder folder_;
};

TEST_F(DeclipCommand, WritesTheBytesOfTheLibrarysOwnOperation)
{
    for (const int channels : {1, 2}) {
        for (const double level : {20000.0, 27900.0, 32767.0}) {
            const std::string in =
                folder_.Write("in.wav", WaveOf(Peaks(50001, channels, level), channels));
            ASSERT_EQ(Run({"in.wav", "out.wav", "--force"}).status, 0);
            EXPECT_TRUE(HoldsBytes(folder_ / "out.wav", LibraryResult(in))) << level;
        }
    }
    EXPECT_EQ(NamesIn(folder_.Path()), (Names{"in.wav", "out.wav"}));
}

TEST_F(DeclipCommand, KeepsTheWidthOfAPlainFileOfEightBits)
{
    std::string bytes;
    for (const std::int16_t sample : Peaks(30001))
        bytes += static_cast<char>(sample / 256 + 128);
    const std::string in = folder_.Write("in.wav", PlainWave({.bits = 8}, bytes + '\0', 30001));
    ASSERT_EQ(Run({"in.wav", "out.wav"}).status, 0);
    EXPECT_TRUE(HoldsBytes(folder_ / "out.wav", LibraryResult(in)));
    EXPECT_EQ(BytesOf(folder_ / "out.wav").substr(34, 2), Le16(8));
}

TEST_F(DeclipCommand, ConvertsWhatIsNoPlainFileFirst)
{
    const Shorts samples = Peaks(30000, 2);
    for (const int format : {SF_FORMAT_FLAC | SF_FORMAT_PCM_16, SF_FORMAT_WAV | SF_FORMAT_PCM_24}) {
        WriteWithLibrary(folder_ / "in.x", format, samples, 2, 22050);
        fs::remove(folder_ / "plain.wav");
        ConvertToPlainWave(folder_ / "in.x", folder_ / "plain.wav", [](std::int64_t) {});
        const CommandResult result = Run({"in.x", "out.wav", "--force"});
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.err.find("lumora: in.x: converted to 16-bit PCM first: "), 0U)
            << result.err;
        EXPECT_TRUE(HoldsBytes(folder_ / "out.wav", LibraryResult(folder_ / "plain.wav")));
    }
}

TEST_F(DeclipCommand, SaysSoWhenThereIsNothingToRebuild)
{
    folder_.Write("in.wav", TuneWave(44100));
    const CommandResult result = Run({"in.wav", "out.wav"});
    EXPECT_EQ(Told(result), "in.wav -> out.wav: 2.000 s, good quality: nothing lies beyond 0.8 of "
                            "full scale, so there was nothing to rebuild");
    EXPECT_EQ(result.err, "");
}

TEST_F(DeclipCommand, SaysWhatItMetInTheEndThatDoesNotComeOut)
{
    // 293 samples are in the filter at a time: the last 292 of the source never leave it.
    folder_.Write("in.wav", WaveOf(WithPlateau(Tune(44100), 44000, 10)));
    EXPECT_EQ(Told(Run({"in.wav", "out.wav"})),
              "in.wav -> out.wav: 2.000 s, good quality: 0 regions rebuilt; 1 region more in the "
              "last 292 samples (13.24 ms), which come out only with --keep-length");
    folder_.Write("in.wav", WaveOf(WithPlateau(WithPlateau(Tune(44100), 44000, 10), 20000, 10)));
    const std::string line = Told(Run({"in.wav", "out.wav", "--force"}));
    EXPECT_NE(line.find("good quality: 1 region rebuilt, "), std::string::npos) << line;
    EXPECT_NE(line.find("; 1 region more in the last 292 samples"), std::string::npos) << line;
    EXPECT_EQ(Json({"in.wav", "out.wav"}).at("regions_behind"), 1);
    const auto kept = Json({"in.wav", "out.wav", "--keep-length"});
    EXPECT_EQ(kept.at("regions_behind"), 0);
    EXPECT_EQ(kept.at("regions_rebuilt"), 2);
    folder_.Write("in.wav", WaveOf(Shorts(200, 32000))); // one region, open to the end
    EXPECT_EQ(Json({"in.wav", "out.wav"}).at("regions_behind"), 1);
}

TEST_F(DeclipCommand, CallsAResultGoodIfAllWasRebuilt)
{
    const std::string in = folder_.Write("in.wav", WaveOf(Peaks(44100)));
    const OverFilterReport report = RemoveOverStream(in, folder_ / "library.wav");
    ASSERT_EQ(report.QualityGood, 1);
    ASSERT_GT(report.figures.rebuilt, 10);
    const auto json = Json({"in.wav", "out.wav"});
    EXPECT_EQ(json.at("quality"), "good");
    EXPECT_EQ(json.at("regions_rebuilt"), report.figures.rebuilt);
    EXPECT_EQ(json.at("longest_region_samples"), report.figures.longest_region);
    const std::string line = Told(Run({"in.wav", "again.wav"}));
    EXPECT_EQ(line.find("in.wav -> again.wav: 2.000 s, good quality: " +
                        std::to_string(report.figures.rebuilt) + " regions rebuilt, the longest "),
              0U)
        << line;
}

TEST_F(DeclipCommand, SaysWhatWasTooLongAndHowLongItMayBe)
{
    folder_.Write("in.wav", WaveOf(WithPlateau(Tune(44100), 20000, 100)));
    // 100 of the 293 samples that the filter looks at are more than 15 % too.
    EXPECT_EQ(Told(Run({"in.wav", "out.wav"})),
              "in.wav -> out.wav: 2.000 s, low quality: 0 regions rebuilt, 1 left as it was (1 "
              "too long: at this rate a region may last 73 samples (3.31 ms)), 1 region in places "
              "where more than 15 % of the samples are over-driven, the longest of 100 samples "
              "(4.54 ms), level unchanged");
}

TEST_F(DeclipCommand, SaysWhatCouldNotBePredicted)
{
    // The lags of a constant are all alike, so nothing can be solved for.
    folder_.Write("in.wav", WaveOf(WithPlateau(Shorts(44100, 16384), 20000, 5)));
    EXPECT_EQ(Told(Run({"in.wav", "out.wav"})),
              "in.wav -> out.wav: 2.000 s, low quality: 0 regions rebuilt, 1 left as it was (1 "
              "without usable coefficients: the sound around could not be predicted), the longest "
              "of 5 samples (0.23 ms), level unchanged");
}

TEST_F(DeclipCommand, TellsTheLargestDivisorInTheLineAndAsAGain)
{
    const std::string in = folder_.Write("in.wav", WaveOf(Peaks(44100, 1, 36000.0)));
    const OverFilterReport report = RemoveOverStream(in, folder_ / "library.wav");
    ASSERT_GT(report.figures.largest_gain, 1.2);
    const auto json = Json({"in.wav", "out.wav"});
    EXPECT_EQ(json.at("largest_gain"), report.figures.largest_gain);
    EXPECT_NEAR(std::pow(10.0, -json.at("gain_db").get<double>() / 20.0),
                report.figures.largest_gain, 1e-12);
    char text[60];
    std::snprintf(text, sizeof text, "level divided by up to %.3f (%.2f dB)",
                  report.figures.largest_gain, json.at("gain_db").get<double>());
    const std::string line = Told(Run({"in.wav", "again.wav"}));
    EXPECT_NE(line.find(text), std::string::npos) << line;
}

TEST_F(DeclipCommand, ReportsAllFieldsAsJson)
{
    folder_.Write("in.wav", WaveOf(WithPlateau(Tune(48000, 2), 20000, 60), 2, 24000));
    auto json = Json({"in.wav", "out.wav"});
    EXPECT_NEAR(json.at("times_real_time").get<double>() * json.at("elapsed_seconds").get<double>(),
                2.0, 1e-9);
    for (const char* measured : {"elapsed_seconds", "times_real_time"})
        json.erase(measured);
    // At 24,000 Hz the filter's sizes are 239 and 80 samples: 319 in all, a delay of 159 frames.
    const nlohmann::json expected = {{"file", "in.wav"},
                                     {"output", "out.wav"},
                                     {"keep_length", false},
                                     {"notes", nlohmann::json::array()},
                                     {"ok", true},
                                     {"rate_hz", 24000},
                                     {"channels", 2},
                                     {"samples", 48000},
                                     {"seconds", 2.0},
                                     {"output_samples", 48000},
                                     {"quality", "low"},
                                     {"regions_rebuilt", 1},
                                     {"regions_of_one_sample", 0},
                                     {"regions_left_too_long", 0},
                                     {"regions_left_unpredicted", 0},
                                     {"regions_behind", 0},
                                     {"crowded", 1},
                                     {"longest_region_samples", 60},
                                     {"most_region_samples", 80},
                                     {"largest_gain", json.at("largest_gain")},
                                     {"gain_db", json.at("gain_db")},
                                     {"delay_samples", 159},
                                     {"channels_exchanged", false}};
    EXPECT_EQ(json, expected);
}

TEST_F(DeclipCommand, KeepLengthGivesCleanSoundBackSampleForSample)
{
    const Shorts samples = Tune(30000, 2);
    for (const std::int32_t rate_hz : {12000, 22050}) { // of odd and of even delay
        folder_.Write("in.wav", WaveOf(samples, 2, rate_hz));
        const auto json = Json({"in.wav", "out.wav", "--keep-length"});
        EXPECT_EQ(json.at("delay_samples"), 0);
        EXPECT_EQ(json.at("keep_length"), true);
        EXPECT_EQ(json.at("channels_exchanged"), false);
        const Shorts kept = SamplesIn(folder_ / "out.wav");
        ASSERT_EQ(kept.size(), samples.size());
        for (std::size_t k = 0; k < kept.size(); ++k)
            ASSERT_NEAR(kept[k], samples[k], 1) << k;
    }
}

TEST_F(DeclipCommand, WithoutItAStereoSoundOfOddDelayChangesSidesAndANoteSaysSo)
{
    const Shorts samples = Tune(30000, 2);
    folder_.Write("in.wav", WaveOf(samples, 2, 12000));
    const CommandResult result = Run({"in.wav", "out.wav"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "lumora: in.wav: left and right come out exchanged: the filter delays "
                          "the interleaved samples by 159, an odd number; with --keep-length each "
                          "stays on its side\n");
    const Shorts delayed = SamplesIn(folder_ / "out.wav");
    ASSERT_EQ(delayed.size(), samples.size());
    for (std::size_t k = 0; k < delayed.size(); ++k)
        ASSERT_NEAR(delayed[k], k < 159 ? 0 : samples[k - 159], 1) << k;
    const CommandResult in_json = Run({"in.wav", "out.wav", "--force", "--json"});
    const auto json = nlohmann::json::parse(in_json.out).at("results").at(0);
    EXPECT_EQ(json.at("delay_samples"), 79.5);
    EXPECT_EQ(json.at("channels_exchanged"), true);
    EXPECT_EQ(json.at("notes").size(), 1U);
}

TEST_F(DeclipCommand, ANoteSaysWherePeaksOfOneChannelAreOnlyFlattened)
{
    // Only the left channel is loud: in the interleaved stream each of its samples over the limit
    // stands alone, and alone it is put onto the limit.
    Shorts samples = Tune(60000, 2);
    for (std::size_t k = 20000; k < 20040; k += 2)
        samples[k] = 29491;
    folder_.Write("in.wav", WaveOf(samples, 2));
    const CommandResult result = Run({"in.wav", "out.wav", "--keep-length"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err,
              "lumora: in.wav: 20 of 20 regions are single samples of one channel: such peaks are "
              "flattened at 0.8 or left, not rebuilt; split the channels into files of their own "
              "for that\n");
    const Shorts flat = SamplesIn(folder_ / "out.wav");
    for (std::size_t k = 20000; k < 20040; k += 2)
        EXPECT_NEAR(flat[k], 0.8 * 32768, 1) << k;
}

TEST_F(DeclipCommand, OfPeaksInOppositeWaysOneChannelsStay)
{
    // The sample that ends a region begins none: between two of the left channel the right one's
    // are no regions of their own.
    Shorts samples = Tune(60000, 2);
    for (std::size_t k = 20000; k < 20040; ++k)
        samples[k] = static_cast<std::int16_t>(k % 2 == 0 ? 29491 : -29491);
    folder_.Write("in.wav", WaveOf(samples, 2));
    const CommandResult result = Run({"in.wav", "out.wav", "--keep-length"});
    EXPECT_NE(result.err.find("20 of 20 regions are single samples of one channel"),
              std::string::npos)
        << result.err;
    const Shorts made = SamplesIn(folder_ / "out.wav");
    for (std::size_t k = 20000; k < 20040; ++k)
        EXPECT_NEAR(made[k], k % 2 == 0 ? 0.8 * 32768 : -29491, 1) << k;
}

TEST_F(DeclipCommand, TakesANameWithoutAnyDotForWhatItIs)
{
    const std::string in = folder_.Write("song", WaveOf(Peaks(30000)));
    folder_.Write("song.wav", TuneWave(5000));
    ASSERT_EQ(Run({"song", "result"}).status, 0);
    fs::copy_file(in, folder_ / "copy.wav");
    EXPECT_TRUE(HoldsBytes(folder_ / "result", LibraryResult(folder_ / "copy.wav")));
    EXPECT_EQ(NamesIn(folder_.Path()), (Names{"copy.wav", "result", "song", "song.wav"}));
}

TEST_F(DeclipCommand, LeavesAFileOfTheLibrarysOwnTemporaryNameAlone)
{
    folder_.Write("in.wav", WaveOf(Peaks(30000)));
    folder_.Write("intmp.wav", "the user's");
    ASSERT_EQ(Run({"in.wav", "out.wav"}).status, 0);
    EXPECT_TRUE(HoldsBytes(folder_ / "intmp.wav", "the user's"));
}

} // namespace
} // namespace lumora::test
