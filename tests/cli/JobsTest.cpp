#include "cli/CommandRun.h"
#include "cli/Sounds.h"
#include "support/SameBytes.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <sndfile.h>

namespace lumora::test {
namespace {

using Names = std::vector<std::string>;

class Jobs : public testing::Test {
protected:
    /// Ten files of different lengths, rates and channels, one of them no WAVE file.
    Jobs()
    {
        for (int k = 0; k < 9; ++k) {
            const int channels = 1 + k % 2;
            const std::string name = "in" + std::to_string(k) + ".wav";
            inputs_.push_back(
                folder_.Write(name, TuneWave(30000 + 7001 * k, channels, 11025 * (1 + k % 4))));
        }
        inputs_.push_back(folder_ / "in9.flac");
        WriteWithLibrary(inputs_.back(), SF_FORMAT_FLAC | SF_FORMAT_PCM_16, Tune(50000), 1, 32000);
    }

    CommandResult Run(const std::string& out_dir, const Names& more = {},
                      const Names& command = {"pitch", "--tones", "+1/8"}) const
    {
        Names words = command;
        words.insert(words.end(), {"--out-dir", folder_ / out_dir});
        words.insert(words.end(), inputs_.begin(), inputs_.end());
        words.insert(words.end(), more.begin(), more.end());
        return Lumora(words);
    }

    TempFolder folder_;
    Names inputs_;
};

TEST_F(Jobs, SideBySideGivesTheBytesOfOneAfterAnother)
{
    for (const Names& command : {Names{"pitch", "--tones", "+1/8"}, Names{"declip"}}) {
        ASSERT_EQ(Run("one", {"--force"}, command).status, 0);
        ASSERT_EQ(Run("four", {"--force", "--jobs", "4"}, command).status, 0);
        for (std::size_t k = 0; k < inputs_.size(); ++k) {
            const std::string name = "in" + std::to_string(k) + ".wav";
            EXPECT_TRUE(HoldsBytes(folder_ / ("four/" + name), BytesOf(folder_ / ("one/" + name))))
                << name;
        }
        EXPECT_EQ(NamesIn(folder_ / "four").size(), inputs_.size());
    }
}

TEST_F(Jobs, AFilesResultDoesNotDependOnTheFilesBeforeIt)
{
    ASSERT_EQ(Run("all").status, 0);
    const CommandResult alone =
        Lumora({"pitch", inputs_[5], folder_ / "alone.wav", "--tones", "+1/8"});
    ASSERT_EQ(alone.status, 0);
    EXPECT_TRUE(HoldsBytes(folder_ / "all/in5.wav", BytesOf(folder_ / "alone.wav")));
}

TEST_F(Jobs, ResultsAreToldInTheOrderOfTheInputs)
{
    // The first file takes longest by far, so the others end before it.
    folder_.Write("in0.wav", TuneWave(3000000, 2, 48000));
    for (const Names& more : {Names{"--jobs", "4"}, Names{"--jobs", "4", "--json", "--force"}}) {
        const CommandResult run = Run("out", more);
        ASSERT_EQ(run.status, 0) << run.err;
        std::size_t last = 0;
        for (const std::string& input : inputs_) {
            const std::size_t place = run.out.find(input, last);
            ASSERT_NE(place, std::string::npos) << input << " in " << run.out;
            last = place;
        }
    }
}

TEST_F(Jobs, BadFilesAreReportedAndDoNotStopTheRest)
{
    inputs_.insert(inputs_.begin() + 3, folder_ / "missing.wav");
    inputs_.insert(inputs_.begin(), folder_.Write("text.wav", "no sound"));
    folder_.MakeFolder("out");
    folder_.Write("out/in2.wav", "old");
    for (const char* jobs : {"1", "4"}) {
        const CommandResult run = Run("out", {"--jobs", jobs});
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(std::count(run.out.begin(), run.out.end(), '\n'), 9) << run.out;
        for (const char* why : {"text.wav: cannot be read as sound",
                                "missing.wav: there is no such file", "in2.wav exists already"})
            EXPECT_NE(run.err.find(why), std::string::npos) << run.err;
        EXPECT_EQ(NamesIn(folder_ / "out").size(), 10U);
        EXPECT_TRUE(HoldsBytes(folder_ / "out/in2.wav", "old"));
        for (const std::string& name : NamesIn(folder_ / "out"))
            if (name != "in2.wav") std::remove((folder_ / ("out/" + name)).c_str());
    }
}

} // namespace
} // namespace lumora::test
