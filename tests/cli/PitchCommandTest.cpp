#include "cli/CommandRun.h"
#include "cli/Sounds.h"
#include "cli/pitch/PitchSetting.h"
#include "support/SameBytes.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cmath>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace lumora::test {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

class PitchCommand : public testing::Test {
protected:
    /// The whole result of the engine itself for a setting in tones.
    std::string Expected(const std::string& input, const std::string& tones, int channels = 1) const
    {
        return EngineResult(input, PitchSetting::FromTones(tones).Q_P, channels);
    }

    TempFolder folder_;
};

TEST_F(PitchCommand, WritesWhatTheEngineMakesOfTheFile)
{
    for (const int channels : {1, 2}) {
        const std::string name = std::to_string(channels) + ".wav";
        const std::string in = folder_.Write("in" + name, TuneWave(50000, channels));
        for (const char* tones : {"+1/8", "-2-3/8", "6", "-6", "0"}) {
            const CommandResult result =
                Lumora({"pitch", in, folder_ / "out.wav", "--tones", tones, "--force"});
            ASSERT_EQ(result.status, 0) << result.err;
            EXPECT_TRUE(HoldsBytes(folder_ / "out.wav", Expected(in, tones, channels))) << tones;
        }
    }
}

TEST_F(PitchCommand, SaysInOneLineWhatItDid)
{
    folder_.Write("in.wav", TuneWave(44100));
    const CommandResult result =
        Lumora({"pitch", "in.wav", "out.wav", "--tones", "+1"}, {folder_.Path().string()});
    EXPECT_EQ(result.status, 0);
    // 220 x 2^(1/6) is 247 to the nearest: 1200 log2(247/220) cents.
    const std::string start = "in.wav -> out.wav: 2.000 s, +1 tone = +200.00 cents, the engine "
                              "gives +200.41 cents, ";
    EXPECT_EQ(result.out.substr(0, start.size()), start);
    const std::string rest = result.out.substr(std::min(start.size(), result.out.size()));
    EXPECT_GT(std::atof(rest.c_str()), 0.0) << rest;
    EXPECT_EQ(rest.substr(rest.find(' ')), " times real time\n");
    EXPECT_EQ(result.err, "");
}

TEST_F(PitchCommand, SaysPlainlyWhenTheChangeIsTooFineForTheRate)
{
    const std::string in = folder_.Write("in.wav", TuneWave(22050));
    const CommandResult result = Lumora({"pitch", in, folder_ / "out.wav", "--tones", "1/64"});
    EXPECT_EQ(result.status, 0);
    EXPECT_NE(result.out.find("+3.12 cents, too fine for this sample rate: the pitch stays as it "
                              "is, "),
              std::string::npos)
        << result.out;
    EXPECT_TRUE(HoldsBytes(folder_ / "out.wav", Expected(in, "0")));

    const CommandResult none = Lumora({"pitch", in, folder_ / "same.wav", "--tones", "0"});
    EXPECT_NE(none.out.find("0 tones = 0.00 cents, the engine gives 0.00 cents"), std::string::npos)
        << none.out;
}

TEST_F(PitchCommand, ReportsAllFieldsAsJson)
{
    folder_.Write("in.wav", TuneWave(50000, 2, 44100));
    const CommandResult result = Lumora(
        {"pitch", "in.wav", "out.wav", "--json", "--tones", "-1/64"}, {folder_.Path().string()});
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.err, "");
    const auto document = nlohmann::json::parse(result.out);
    ASSERT_EQ(document.size(), 1U);
    ASSERT_EQ(document.at("results").size(), 1U);
    auto json = document.at("results").at(0);
    EXPECT_NEAR(json.at("q_p").get<double>(), 1.0018067, 0.5e-7);
    // 440 x 2^(-1/384) is 439 to the nearest.
    EXPECT_NEAR(json.at("effective_cents").get<double>(), 1200.0 * std::log2(439.0 / 440.0), 1e-9);
    EXPECT_GT(json.at("elapsed_seconds").get<double>(), 0.0);
    EXPECT_NEAR(json.at("times_real_time").get<double>() * json.at("elapsed_seconds").get<double>(),
                50000.0 / 44100.0, 1e-9);
    for (const char* measured : {"q_p", "effective_cents", "elapsed_seconds", "times_real_time"})
        json.erase(measured);
    const nlohmann::json expected = {{"file", "in.wav"},
                                     {"output", "out.wav"},
                                     {"change", "-1/64 tone"},
                                     {"asked_cents", -3.125},
                                     {"notes", nlohmann::json::array()},
                                     {"ok", true},
                                     {"rate_hz", 44100},
                                     {"channels", 2},
                                     {"samples", 50000},
                                     {"seconds", 50000.0 / 44100.0},
                                     {"output_samples", 50000 / 440 * 440},
                                     {"block_samples", 440},
                                     {"too_fine", false}};
    EXPECT_EQ(json, expected);
}

TEST_F(PitchCommand, EverySettingReachesTheEngine)
{
    const std::string in = folder_.Write("in.wav", TuneWave(30000));
    const std::vector<Names> settings = {
        {"--tones", "-3"}, {"--octaves", "-0.5"}, {"--cents", "-600"}, {"--octaves=-0.5"}};
    const std::string expected = Expected(in, "-3");
    for (const Names& setting : settings) {
        Names words = {"pitch", "--force", in};
        words.insert(words.end(), setting.begin(), setting.end());
        words.push_back(folder_ / "out.wav");
        ASSERT_EQ(Lumora(words).status, 0);
        EXPECT_TRUE(HoldsBytes(folder_ / "out.wav", expected) << setting.front());
    }
    ASSERT_EQ(Lumora({"pitch", in, folder_ / "out.wav", "--force", "--q-p", "0.75"}).status, 0);
    EXPECT_TRUE(HoldsBytes(folder_ / "out.wav", EngineResult(in, 0.75)));
}

TEST_F(PitchCommand, TakesANameWithoutAnyDotForWhatItIs)
{
    folder_.Write("song", TuneWave(30000, 2));
    folder_.Write("song.wav", TuneWave(5000, 1));
    const CommandResult result =
        Lumora({"pitch", "song", "result", "--tones", "1"}, {folder_.Path().string()});
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_TRUE(HoldsBytes(folder_ / "result", Expected(folder_ / "./song", "1", 2)));
    EXPECT_EQ(NamesIn(folder_.Path()), (Names{"result", "song", "song.wav"}));
}

TEST_F(PitchCommand, TakesOddNamesForWhatTheyAre)
{
    for (const char* name : {"[x]", "{}", "++", "-", "a=b", "-1", "info", "pitch", "%%", " ",
                             "line\nbreak", "\xff\xfe", "--"}) {
        folder_.Write(name, TuneWave(5000));
        const bool protected_name = std::string(name).front() == '-';
        Names words = {"pitch", "--tones", "1", "--force", name, "out.wav"};
        if (protected_name) words.insert(words.end() - 2, "--");
        const CommandResult result = Lumora(words, {folder_.Path().string()});
        EXPECT_EQ(result.status, 0) << name << result.err;
        EXPECT_EQ(std::count(result.out.begin(), result.out.end(), '\n'), 1) << result.out;
    }
}

TEST_F(PitchCommand, AFolderForResultsIsMadeAndGetsTheInputsNames)
{
    folder_.Write("a.wav", TuneWave(30000));
    folder_.Write("b.x.wav", TuneWave(20000, 2));
    folder_.Write("c", TuneWave(10000));
    const CommandResult result =
        Lumora({"pitch", "a.wav", "b.x.wav", "c", "--out-dir", "new/deep", "--tones", "1"},
               {folder_.Path().string()});
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(NamesIn(folder_ / "new/deep"), (Names{"a.wav", "b.x.wav", "c.wav"}));
    EXPECT_TRUE(HoldsBytes(folder_ / "new/deep/b.x.wav", Expected(folder_ / "b.x.wav", "1", 2)));
}

TEST_F(PitchCommand, TheNewFileHasTheUsualPermissions)
{
    folder_.Write("in.wav", TuneWave(5000));
    const Surroundings around = {folder_.Path().string(), [] { umask(027); }};
    ASSERT_EQ(Lumora({"pitch", "in.wav", "out.wav", "--tones", "1"}, around).status, 0);
    EXPECT_EQ(fs::status(folder_ / "out.wav").permissions(), fs::perms(0640));
}

TEST_F(PitchCommand, FollowsALinkAndReplacesWhatItPointsTo)
{
    const std::string in = folder_.Write("in.wav", TuneWave(5000));
    folder_.MakeFolder("real");
    folder_.Write("real/old.wav", "old");
    fs::create_symlink("real/old.wav", folder_ / "link.wav");
    fs::create_symlink("real/new.wav", folder_ / "dangling.wav");
    EXPECT_EQ(Lumora({"pitch", in, folder_ / "link.wav", "--tones", "1"}).status, 1);
    EXPECT_TRUE(HoldsBytes(folder_ / "real/old.wav", "old"));
    EXPECT_EQ(Lumora({"pitch", in, folder_ / "link.wav", "--tones", "1", "--force"}).status, 0);
    EXPECT_EQ(Lumora({"pitch", in, folder_ / "dangling.wav", "--tones", "1"}).status, 0);
    for (const char* name : {"link.wav", "dangling.wav"})
        EXPECT_TRUE(fs::is_symlink(folder_ / name)) << name;
    for (const char* name : {"real/old.wav", "real/new.wav"})
        EXPECT_TRUE(HoldsBytes(folder_ / name, Expected(in, "1"))) << name;
    EXPECT_EQ(NamesIn(folder_ / "real"), (Names{"new.wav", "old.wav"}));
}

TEST_F(PitchCommand, AnAnswerThatCannotBePrintedIsAFailure)
{
    const std::string in = folder_.Write("in.wav", TuneWave(5000));
    const int full = open("/dev/full", O_WRONLY);
    const Surroundings around = {.standard_output = full};
    for (const char* form : {"--json", "--force"}) {
        const CommandResult result =
            Lumora({"pitch", in, folder_ / "out.wav", "--force", "--tones", "1", form}, around);
        EXPECT_EQ(result.status, 1);
        EXPECT_NE(result.err.find("standard output"), std::string::npos) << result.err;
        EXPECT_TRUE(HoldsBytes(folder_ / "out.wav", Expected(in, "1")));
    }
    EXPECT_EQ(Lumora({"info", in}, around).status, 1);
    EXPECT_EQ(Lumora({"--help"}, around).status, 1);
    close(full);
}

} // namespace
} // namespace lumora::test
