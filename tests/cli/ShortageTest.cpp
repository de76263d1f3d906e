#include "cli/CommandRun.h"
#include "cli/Sounds.h"
#include "support/SameBytes.h"

#include <gtest/gtest.h>

#include <sndfile.h>
#include <sys/resource.h>

namespace lumora::test {
namespace {

using Names = std::vector<std::string>;

constexpr char kTooMany[] = "too many open files); work on fewer files side by side, or raise the "
                            "limit on open files (ulimit -n)\n";

Surroundings WithDescriptors(rlim_t most)
{
    return {.before = [=] {
        const rlimit limit = {most, most};
        setrlimit(RLIMIT_NOFILE, &limit);
    }};
}

TEST(Shortage, OfDescriptorsMakesABatchWaitAndFailsNoFile)
{
    const TempFolder folder;
    Names words = {"pitch", "--tones", "1", "--out-dir", folder / "out", "--jobs", "60"};
    for (int k = 0; k < 60; ++k)
        words.push_back(folder.Write(std::to_string(k) + ".wav", TuneWave(20000 + 100 * k)));
    const CommandResult result = Lumora(words, WithDescriptors(32));
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(NamesIn(folder / "out").size(), 60U);
}

TEST(Shortage, OfDescriptorsEndsInTheWholeResultOrInTheAdvice)
{
    const TempFolder folder;
    std::vector<std::int16_t> samples = Tune(5000);
    std::fill_n(samples.begin() + 2000, 7, std::int16_t{29000});
    WriteWithLibrary(folder / "in.flac", SF_FORMAT_FLAC | SF_FORMAT_PCM_16, samples, 1, 22050);
    const Names words = {"declip", folder / "in.flac", folder / "out.wav",
                         "--plot", folder / "out.png", "--force"};
    ASSERT_EQ(Lumora(words).status, 0);
    const std::string sound = BytesOf(folder / "out.wav");
    const std::string picture = BytesOf(folder / "out.png");
    int done = 0;
    int told = 0;
    // With fewer than eight the system may not be able to load the program.
    for (rlim_t most = 8; most < 32; ++most) {
        for (const char* name : {"out.wav", "out.png"})
            std::filesystem::remove(folder / name);
        const CommandResult result = Lumora(words, WithDescriptors(most));
        if (result.status == 0) {
            ++done;
            EXPECT_TRUE(HoldsBytes(folder / "out.wav", sound)) << most;
            EXPECT_TRUE(HoldsBytes(folder / "out.png", picture)) << most;
        } else {
            ++told;
            EXPECT_EQ(result.status, 1) << most;
            EXPECT_EQ(result.err, "lumora: " + folder / "in.flac" +
                                      ": no process could be started for it (" + kTooMany)
                << most;
            EXPECT_EQ(NamesIn(folder.Path()), Names{"in.flac"}) << most;
        }
    }
    EXPECT_GT(done, 5);
    EXPECT_GT(told, 5);
}

} // namespace
} // namespace lumora::test
