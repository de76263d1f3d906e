#include "engine/BlockPipeline.h"

#include "engine/BlockPlan.h"
#include "engine/BlockResampler.h"
#include "engine/SoundFile.h"
#include "engine/SoundKinds.h"
#include "support/MessageRecorder.h"
#include "support/Raised.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

namespace lumora {
namespace {

using namespace test;

class BlockPipelineFaults : public testing::Test {
protected:
    /// The number of the run-time error, 0 if the run ended well.
    int Raised(const std::string& bytes, double Q_P = 0.8, int channels = 1)
    {
        const std::string in = folder.Write("in.wav", bytes);
        return test::Raised([&] {
            BlockResampler resampler;
            RunBlockPipeline({in, out, Q_P, channels}, resampler, {});
        });
    }

    /// A mono file of some frames of noise.
    std::string Mono(int rate_hz, std::size_t frames)
    {
        return test::FileOf({test::Noise(generator, frames)}, rate_hz);
    }

    bool Written() const { return std::filesystem::exists(out); }

    Generator generator{10};
    test::TempFolder folder;
    test::MessageRecorder messages;
    const std::string out = folder / "out.wav";
};

TEST_F(BlockPipelineFaults, AFileShorterThanOneBlockFailsAndWritesNothing)
{
    EXPECT_EQ(Raised(Mono(22050, 219)), kSubscript);
    EXPECT_FALSE(Written());
    EXPECT_EQ(Raised(Mono(22050, 1)), kSubscript);
    EXPECT_EQ(Raised(Mono(22050, 0)), kSubscript);
    EXPECT_FALSE(Written());
    EXPECT_EQ(Raised(Mono(22050, 220)), 0);
    EXPECT_TRUE(Written());
}

TEST_F(BlockPipelineFaults, AFileShorterThanOneBlockLeavesAnOlderResultAsItWas)
{
    folder.Write("out.wav", "older");
    EXPECT_EQ(Raised(Mono(22050, 219)), kSubscript);
    EXPECT_EQ(test::BytesOf(out), "older");
}

TEST_F(BlockPipelineFaults, ChannelsThatAreNotTheFilesFail)
{
    const auto file = [](int channels) {
        return PlainWave({channels, 16, 22050}, std::string(24000, 'a'));
    };
    EXPECT_EQ(Raised(file(1), 0.8, 2), kSubscript);
    EXPECT_EQ(Raised(file(2), 0.8, 1), kSubscript);
    EXPECT_EQ(Raised(file(3), 0.8, 1), kSubscript) << "three channels take the mono road";
    EXPECT_EQ(Raised(file(3), 0.8, 2), kSubscript);
    EXPECT_FALSE(Written());
    EXPECT_EQ(Raised(file(2), 0.8, 2), 0);
}

TEST_F(BlockPipelineFaults, WidthsOtherThanEightAndSixteenBitsFail)
{
    for (int bits : {24, 32, 12, 64})
        EXPECT_EQ(Raised(PlainWave({1, bits, 22050}, std::string(24000, 'a'))), kSubscript) << bits;
    EXPECT_FALSE(Written());
}

TEST_F(BlockPipelineFaults, AScaleAboveTwoFailsAndNotTwoItself)
{
    EXPECT_EQ(Raised(Mono(22050, 2000), 0.5), 0);
    EXPECT_EQ(Raised(Mono(22050, 2000), 1 / 2.05), kSubscript);
}

TEST_F(BlockPipelineFaults, AScaleThatGivesNoSamplesFails)
{
    EXPECT_EQ(Raised(Mono(22050, 2000), 1000.0), kSubscript);
    EXPECT_EQ(Raised(Mono(22050, 2000), 1e-4), kOverflow);
    EXPECT_FALSE(Written());
}

TEST_F(BlockPipelineFaults, RatesOutsideTheCoresRangeFail)
{
    EXPECT_EQ(Raised(Mono(2205, 100)), kDivision);
    EXPECT_EQ(Raised(Mono(820511, 20000)), kOverflow);
    EXPECT_EQ(Raised(Mono(50, 100)), kDivision);
    EXPECT_EQ(Raised(Mono(0, 100)), kDivision);
    EXPECT_EQ(Raised(Mono(2147483647, 100)), kOverflow);
    EXPECT_FALSE(Written());
}

TEST_F(BlockPipelineFaults, TheFirstAndTheLastRateRun)
{
    for (double Q_P : {0.5, 0.9, 1.4}) {
        EXPECT_EQ(Raised(Mono(2206, 100), Q_P), 0);
        EXPECT_EQ(test::ParseSoundFile(test::BytesOf(out)).sound[0].size(), 88U);
        EXPECT_EQ(Raised(Mono(820510, 40000), Q_P), 0);
        EXPECT_EQ(test::ParseSoundFile(test::BytesOf(out)).sound[0].size(), 4 * 8186U);
    }
}

TEST_F(BlockPipelineFaults, MoreChunksThanSixteenBitsCountOverflow)
{
    // 8-bit chunks of 3190 bytes, promised and not held: the count fails ahead of any reading.
    const std::int64_t frames = std::int64_t{32768} * 3190;
    EXPECT_EQ(Raised(PlainWave({1, 8, 2206}, "abcd", frames)), kOverflow);
    EXPECT_FALSE(Written());
}

TEST_F(BlockPipelineFaults, AHeaderThatPromisesFarTooMuchFailsBeforeAnythingIsWritten)
{
    // A chunk of two channels at 2206 Hz: 2 x 145 x 23 values, a block rounded up.
    constexpr std::int64_t kMost = 2 * 145 * 23;
    for (const int bits : {8, 16}) {
        const std::int64_t bytes = kMost * bits / 8;
        const std::string data(1000, '\1');
        const test::FormatSpec spec{1, bits, 2206};
        EXPECT_EQ(Raised(PlainWave(spec, data, 1000 + bytes + 2)), 7) << bits;
        EXPECT_EQ(Raised(PlainWave(spec, data, 100000000 * bits / 8)), 7) << bits;
        EXPECT_FALSE(Written());
        EXPECT_EQ(Raised(PlainWave(spec, data, 1000 + bytes)), 0) << bits;
        std::filesystem::remove(out);
    }
    EXPECT_EQ(messages.shown, test::Shown{});
}

TEST_F(BlockPipelineFaults, AFaultyHeaderFailsBehindOneMessage)
{
    const std::string head = Wave(test::FormatChunk({1, 16, 22050})); // no data chunk
    EXPECT_EQ(Raised(head), kSubscript);
    EXPECT_EQ(messages.Take(), test::Shown{test::FileError(
                                   "Error using read_ckinfo",
                                   "Truncated chunk header found -possibly not a WAV file")});
    EXPECT_FALSE(Written());
}

TEST_F(BlockPipelineFaults, TheSourceIsNoTarget)
{
    const std::string bytes = Mono(22050, 2000);
    const std::string in = folder.Write("in.wav", bytes);
    std::filesystem::create_symlink(in, folder / "symbolic.wav");
    std::filesystem::create_hard_link(in, folder / "hard.wav");
    BlockResampler resampler;
    for (const char* name : {"in.wav", "symbolic.wav", "hard.wav", "./in.wav"}) {
        const PitchRun run{in, folder / name, 0.8, 1};
        EXPECT_EQ(test::Raised([&] { RunBlockPipeline(run, resampler, {}); }), 75) << name;
        EXPECT_EQ(test::BytesOf(in), bytes) << name;
    }
    const PitchRun copy{in, folder.Write("copy.wav", bytes), 0.8, 1};
    EXPECT_EQ(test::Raised([&] { RunBlockPipeline(copy, resampler, {}); }), 0);
}

TEST_F(BlockPipelineFaults, JustInsideTheLimitsOfThePlanARunGoesWellAndJustOutsideItFails)
{
    const auto least = [](std::int32_t rate_hz) {
        return static_cast<std::size_t>(BlockPlan::LeastSamples(rate_hz));
    };
    for (const std::int32_t rate_hz : {BlockPlan::kLowestRate, 22050, BlockPlan::kHighestRate}) {
        EXPECT_EQ(Raised(Mono(rate_hz, least(rate_hz))), 0) << rate_hz;
        EXPECT_EQ(test::ParseSoundFile(test::BytesOf(out)).sound[0].size(), least(rate_hz));
        std::filesystem::remove(out);
        EXPECT_EQ(Raised(Mono(rate_hz, least(rate_hz) - 1)), kSubscript) << rate_hz;
    }
    for (const std::int32_t rate_hz : {BlockPlan::kLowestRate - 1, BlockPlan::kHighestRate + 1})
        EXPECT_NE(Raised(Mono(rate_hz, least(rate_hz))), 0) << rate_hz;
    EXPECT_FALSE(Written());
}

TEST_F(BlockPipelineFaults, ARunOfTheMostSamplesOfThePlanBeginsAndOneOfMoreDoesNot)
{
    struct Begun {};
    RunHooks hooks;
    hooks.PumpEvents = [] { throw Begun{}; };
    for (const std::int32_t rate_hz : {2206, 22050}) {
        const auto run = [&](std::int64_t frames) { // promised and not held
            const std::string in =
                folder.Write("in.wav", PlainWave({1, 8, rate_hz}, "abcd", frames));
            BlockResampler resampler;
            RunBlockPipeline({in, out, 0.8, 1}, resampler, hooks);
        };
        const std::int64_t most = BlockPlan::MostSamples(rate_hz);
        EXPECT_THROW(run(most), Begun) << rate_hz;
        EXPECT_EQ(test::Raised([&] { run(most + 1); }), kOverflow) << rate_hz;
    }
}

TEST_F(BlockPipelineFaults, ATargetThatCannotBeOpenedIsToldOnEachWrite)
{
    const std::string in = folder.Write("in.wav", Mono(2206, 3190 + 100));
    BlockResampler resampler;
    RunBlockPipeline({in, folder / "no such folder/out.wav", 1.0, 1}, resampler, {});
    const auto box = test::FileError("Error using fopen.", " Cannot open  WAV file for output.");
    EXPECT_EQ(messages.shown, (test::Shown{box, box}));
}

} // namespace
} // namespace lumora
