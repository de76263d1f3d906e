#include "engine/BlockPipeline.h"

#include "engine/BlockResampler.h"
#include "engine/PlainPipeline.h"
#include "engine/SoundFile.h"
#include "engine/SoundKinds.h"
#include "support/MessageRecorder.h"
#include "support/TempFolder.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace lumora {
namespace {

using test::Generator;
using test::PlainResampler;
using test::Sound;
using test::SoundFile;

constexpr int kLowRate = 2206; ///< 22 samples a block, 3190 a chunk: many chunks in little time
constexpr std::size_t kLowBlock = 22;
constexpr std::size_t kLowChunk = 3190;

class BlockPipelineRun : public testing::Test {
protected:
    /// Runs a file of these bytes; answers what was written.
    SoundFile Run(const std::string& bytes, double Q_P, int channels, const RunHooks& hooks = {})
    {
        const std::string in = folder.Write("in.wav", bytes);
        report = RunBlockPipeline({in, out, Q_P, channels}, resampler, hooks);
        return test::ParseSoundFile(test::BytesOf(out));
    }

    /// The same on a resampler of its own, against the plain pipeline.
    void ExpectPlain(const Sound& sound, int rate_hz, int bits, double Q_P)
    {
        SCOPED_TRACE(testing::Message() << sound.size() << " channels, " << bits << " bits, "
                                        << rate_hz << " Hz, Q_P " << Q_P);
        resampler = BlockResampler();
        const SoundFile result =
            Run(test::FileOf(sound, rate_hz, bits), Q_P, static_cast<int>(sound.size()));
        PlainResampler plain;
        EXPECT_EQ(result.sound, test::PlainRun(sound, rate_hz, Q_P, plain));
        EXPECT_EQ(result.rate_hz, rate_hz);
        EXPECT_EQ(result.bits, 16);
    }

    Sound Music(std::size_t channels, std::size_t count, int rate_hz)
    {
        Sound sound;
        for (std::size_t channel = 0; channel < channels; ++channel)
            sound.push_back(test::Music(generator, count, rate_hz));
        return sound;
    }

    Sound EightBits(std::size_t channels, std::size_t count)
    {
        Sound sound;
        for (std::size_t channel = 0; channel < channels; ++channel)
            sound.push_back(test::EightBits(generator, count));
        return sound;
    }

    Generator generator{9};
    test::TempFolder folder;
    test::MessageRecorder messages;
    BlockResampler resampler;
    PitchReport report; ///< of the last Run
    const std::string out = folder / "out.wav";
};

TEST_F(BlockPipelineRun, GivesThePlainResult)
{
    for (double Q_P : {0.5, 0.749153538438341, 0.99, 1.0, 1.3348, 2.0})
        for (std::size_t channels : {1U, 2U}) {
            ExpectPlain(Music(channels, 3 * kLowChunk + 1000, kLowRate), kLowRate, 16, Q_P);
            ExpectPlain(EightBits(channels, 2 * kLowChunk + 500), kLowRate, 8, Q_P);
            ExpectPlain(Music(channels, 12000, 8000), 8000, 16, Q_P);
        }
    ExpectPlain(Music(1, 40000, 22050), 22050, 16, 0.8);
    ExpectPlain(Music(2, 40000, 22050), 22050, 16, 1.7);
    ExpectPlain(Music(2, 70000, 44100), 44100, 16, 0.6);
    EXPECT_EQ(messages.shown, test::Shown{});
}

TEST_F(BlockPipelineRun, GivesThePlainResultAtFullScale)
{
    for (double Q_P : {0.5, 0.8, 1.0, 1.4, 2.0})
        for (std::size_t longest : {3U, 100U}) {
            const Sound sound{test::ClippedRuns(generator, 5000, longest),
                              test::ClippedRuns(generator, 5000, longest)};
            ExpectPlain(sound, kLowRate, 16, Q_P);
            ExpectPlain({sound[0]}, kLowRate, 16, Q_P);
        }
}

TEST_F(BlockPipelineRun, DelaysByOneBlockAndOneSampleAtQpOne)
{
    const Sound sound = Music(2, kLowChunk + 101, kLowRate);
    for (double Q_P : {1.0, 0.0}) {
        const SoundFile result = Run(test::FileOf(sound, kLowRate), Q_P, 2);
        const std::size_t length = (kLowChunk + 101) / kLowBlock * kLowBlock;
        ASSERT_EQ(result.sound.size(), 2U);
        for (std::size_t channel = 0; channel < 2; ++channel) {
            std::vector<std::int16_t> expected(kLowBlock + 1, 0);
            expected.insert(expected.end(), sound[channel].begin(), sound[channel].end());
            expected.resize(length);
            EXPECT_EQ(result.sound[channel], expected);
        }
    }
}

TEST_F(BlockPipelineRun, DropsWhatIsLeftOverBehindTheLastWholeBlock)
{
    for (std::size_t more : {0U, 1U, 21U, 22U, 23U, 43U, 44U})
        for (std::size_t chunks : {0U, 1U, 2U}) {
            const std::size_t length = chunks * kLowChunk + more;
            if (length < kLowBlock) continue;
            std::filesystem::remove(out);
            const Sound sound = Music(1, length, kLowRate);
            const SoundFile result = Run(test::FileOf(sound, kLowRate), 0.8, 1);
            EXPECT_EQ(result.sound[0].size(), length / kLowBlock * kLowBlock) << length;
            ExpectPlain(sound, kLowRate, 16, 0.8);
        }
}

TEST_F(BlockPipelineRun, GivesAllFullChunksAndNoTailForAnExactMultipleOfTheChunk)
{
    for (std::size_t chunks : {1U, 3U})
        for (std::size_t channels : {1U, 2U}) {
            const Sound sound = Music(channels, chunks * kLowChunk, kLowRate);
            const SoundFile result =
                Run(test::FileOf(sound, kLowRate), 1.2, static_cast<int>(channels));
            EXPECT_EQ(result.sound[0].size(), chunks * kLowChunk);
            ExpectPlain(sound, kLowRate, 16, 1.2);
        }
}

TEST_F(BlockPipelineRun, ReplacesALongerFileOfThatName)
{
    Run(test::FileOf(Music(1, 4 * kLowChunk, kLowRate), kLowRate), 1.0, 1);
    const SoundFile tail_only = Run(test::FileOf(Music(1, 100, kLowRate), kLowRate), 1.0, 1);
    EXPECT_EQ(tail_only.sound[0].size(), 88U);
    Run(test::FileOf(Music(1, 4 * kLowChunk, kLowRate), kLowRate), 1.0, 1);
    const SoundFile chunked = Run(test::FileOf(Music(1, kLowChunk, kLowRate), kLowRate), 1.0, 1);
    EXPECT_EQ(chunked.sound[0].size(), kLowChunk);
}

TEST_F(BlockPipelineRun, ReadsTheBytesThatAFilePromisesButDoesNotHoldAsZero)
{
    for (std::size_t channels : {1U, 2U}) {
        Sound sound = Music(channels, 2 * kLowChunk + 700, kLowRate);
        const test::FormatSpec spec{static_cast<int>(channels), 16, kLowRate};
        const std::size_t promised = 2 * kLowChunk + 2000;
        const auto stated = static_cast<std::int64_t>(promised * channels * 2);
        resampler = BlockResampler();
        const SoundFile result = Run(test::PlainWave(spec, test::DataBytes(sound), stated), 0.7,
                                     static_cast<int>(channels));
        for (auto& channel : sound)
            channel.resize(promised);
        PlainResampler plain;
        EXPECT_EQ(result.sound, test::PlainRun(sound, kLowRate, 0.7, plain));
    }
}

TEST_F(BlockPipelineRun, StartsFromTheLastSampleOfTheRunBeforeOnTheSameResampler)
{
    const Sound sound = Music(1, 4000, kLowRate);
    const std::string file = test::FileOf(sound, kLowRate);
    PlainResampler plain;
    const Sound first = test::PlainRun(sound, kLowRate, 2.0, plain);
    ASSERT_NE(plain.last, 0.0);
    const Sound second = test::PlainRun(sound, kLowRate, 2.0, plain);
    ASSERT_NE(first, second);
    EXPECT_EQ(Run(file, 2.0, 1).sound, first);
    EXPECT_EQ(Run(file, 2.0, 1).sound, second);
    resampler = BlockResampler();
    EXPECT_EQ(Run(file, 2.0, 1).sound, first) << "a fresh one";
}

TEST_F(BlockPipelineRun, LetsAStereoBlockStartFromTheOtherChannel)
{
    // Channel 2 is silent, yet one octave down the first sample of each of its blocks lies halfway
    // between the last of channel 1 and silence.
    Sound sound = Music(1, 4000, kLowRate);
    sound.push_back(std::vector<std::int16_t>(4000, 0));
    const SoundFile result = Run(test::FileOf(sound, kLowRate), 2.0, 2);
    int heard = 0;
    for (std::size_t i = 0; i < result.sound[1].size(); ++i) {
        if (i % kLowBlock != 0) {
            ASSERT_EQ(result.sound[1][i], 0) << i;
        } else if (result.sound[1][i] != 0) {
            ++heard;
            ASSERT_NEAR(result.sound[1][i], result.sound[0][i + kLowBlock - 1] / 2.0, 1.0) << i;
        }
    }
    EXPECT_GT(heard, 100);
}

/// What a run told its caller, in order.
class Told {
public:
    Told()
    {
        hooks.Bar = &bar;
        hooks.PumpEvents = [this] {
            log.push_back("pump " + std::to_string(bar.Min) + " " + std::to_string(bar.Value) +
                          " " + std::to_string(bar.Max));
        };
        hooks.PublishPercent = [this](std::int16_t percent) {
            log.push_back("publish " + std::to_string(percent));
        };
    }
    ProgressBar bar{77, 78, 79};
    RunHooks hooks;
    std::vector<std::string> log;
};

TEST_F(BlockPipelineRun, TellsItsProgressChunkByChunk)
{
    Told told;
    Run(test::FileOf(Music(1, 3 * kLowChunk + 50, kLowRate), kLowRate), 0.9, 1, told.hooks);
    EXPECT_EQ(told.log, (std::vector<std::string>{"pump 0 0 4", "publish 1",  //
                                                  "pump 0 1 4", "publish 25", //
                                                  "pump 0 2 4", "publish 50", //
                                                  "pump 0 3 4", "publish 75", //
                                                  "publish 100", "pump 0 4 4"}));
    told.log.clear();
    Run(test::FileOf(Music(2, 50, kLowRate), kLowRate), 0.9, 2, told.hooks);
    EXPECT_EQ(told.log,
              (std::vector<std::string>{"pump 0 0 1", "publish 1", "publish 100", "pump 0 1 1"}));
}

TEST_F(BlockPipelineRun, RoundsThePercentageHalfToEven)
{
    std::vector<int> percents;
    RunHooks hooks;
    hooks.PublishPercent = [&](std::int16_t percent) { percents.push_back(percent); };
    Run(test::FileOf(Music(1, 7 * kLowChunk, kLowRate), kLowRate), 1.0, 1, hooks);
    EXPECT_EQ(percents, (std::vector{1, 12, 25, 38, 50, 62, 75, 88, 100}));
}

TEST_F(BlockPipelineRun, LeavesAValidFileBetweenChunks)
{
    const Sound sound = Music(2, 3 * kLowChunk + 500, kLowRate);
    std::vector<Sound> seen;
    RunHooks hooks;
    hooks.PumpEvents = [&] {
        if (std::filesystem::exists(out))
            seen.push_back(test::ParseSoundFile(test::BytesOf(out)).sound);
    };
    const Sound whole = Run(test::FileOf(sound, kLowRate), 1.1, 2, hooks).sound;
    ASSERT_EQ(seen.size(), 4U);
    const std::size_t tail = 500 / kLowBlock * kLowBlock;
    for (std::size_t k = 0; k < seen.size(); ++k) {
        const std::size_t length = k < 3 ? (k + 1) * kLowChunk : 3 * kLowChunk + tail;
        for (std::size_t channel = 0; channel < 2; ++channel) {
            const auto begin = whole[channel].begin();
            EXPECT_EQ(seen[k][channel], std::vector<std::int16_t>(
                                            begin, begin + static_cast<std::ptrdiff_t>(length)));
        }
    }
}

TEST_F(BlockPipelineRun, ReadsASourceThatIsRemovedOrReplacedOnTheWayAsItWas)
{
    const Sound sound = Music(2, 3 * kLowChunk + 500, kLowRate);
    PlainResampler plain;
    const Sound expected = test::PlainRun(sound, kLowRate, 0.8, plain);
    const std::string in = folder / "in.wav";
    for (const bool replace : {false, true}) {
        RunHooks hooks;
        hooks.PumpEvents = [&] {
            std::filesystem::remove(in);
            if (replace) folder.Write("in.wav", "another file");
        };
        resampler = BlockResampler();
        EXPECT_EQ(Run(test::FileOf(sound, kLowRate), 0.8, 2, hooks).sound, expected);
        EXPECT_FALSE(report.source_has_shrunk);
    }
    EXPECT_EQ(messages.shown, test::Shown{});
}

TEST_F(BlockPipelineRun, ReadsASourceThatIsCutDownOnTheWayAsZerosAndTellsIt)
{
    Sound sound = Music(1, 3 * kLowChunk + 500, kLowRate);
    const std::size_t left = 2 * kLowChunk + 100;
    RunHooks hooks;
    hooks.PumpEvents = [&] { std::filesystem::resize_file(folder / "in.wav", 44 + 2 * left); };
    const SoundFile result = Run(test::FileOf(sound, kLowRate), 0.8, 1, hooks);
    EXPECT_TRUE(report.source_has_shrunk);
    std::fill(sound[0].begin() + static_cast<std::ptrdiff_t>(left), sound[0].end(),
              std::int16_t{0});
    PlainResampler plain;
    EXPECT_EQ(result.sound, test::PlainRun(sound, kLowRate, 0.8, plain));
}

TEST_F(BlockPipelineRun, DoesNotAskWhetherItIsCancelled)
{
    RunHooks hooks;
    hooks.CancelRequested = [] { return true; };
    const Sound sound = Music(1, 3 * kLowChunk, kLowRate);
    EXPECT_EQ(Run(test::FileOf(sound, kLowRate), 0.8, 1, hooks).sound[0].size(), 3 * kLowChunk);
}

TEST_F(BlockPipelineRun, EndsSilentlyWithoutInput)
{
    Told told;
    for (const std::string& name : {std::string(), folder / "missing.wav"})
        RunBlockPipeline({name, out, 1.0, 1}, resampler, told.hooks);
    EXPECT_FALSE(std::filesystem::exists(out));
    EXPECT_EQ(told.log, std::vector<std::string>{});
    EXPECT_EQ(told.bar.Value, 77) << "the bar is left alone";
    EXPECT_EQ(messages.shown, test::Shown{});
}

} // namespace
} // namespace lumora
