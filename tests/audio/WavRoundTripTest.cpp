#include "audio/WaveStream.h"
#include "audio/Wavread.h"
#include "audio/Wavwrite.h"

#include "numeric/Matrices.h"
#include "support/MessageRecorder.h"
#include "support/TempFolder.h"
#include "support/WaveBuilder.h"

#include <gtest/gtest.h>
#include <random>

namespace lumora {
namespace {

using namespace test;

constexpr std::uint32_t kSeed = 20240607;

/// Lengths around the pieces in which files are read and written.
constexpr std::int32_t kFrames[] = {3, 4, 5, 1023, 1024, 1025, 5461, 8192, 16384, 16385, 40000};

class WavRoundTrip : public testing::TestWithParam<std::tuple<int, int>> {
protected:
    void TearDown() override { EXPECT_EQ(messages.Take(), Shown{}); }

    int Bits() const { return std::get<0>(GetParam()); }
    int Channels() const { return std::get<1>(GetParam()); }

    std::int64_t Whole(std::int64_t least, std::int64_t most)
    {
        return std::uniform_int_distribution<std::int64_t>(least, most)(random);
    }

    /// Samples that the width holds exactly, without the highest: a peak below 1.
    Ref<clsMatrix> ExactSamples(std::int32_t frames)
    {
        const std::int64_t full = Bits() == 8 ? 128 : 32768;
        Ref<clsMatrix> m = MakeRef<clsMatrix>();
        m->Initial_matrix(frames, Channels());
        for (std::int32_t i = 1; i <= frames; ++i)
            for (std::int32_t j = 1; j <= Channels(); ++j)
                m->Real(i, j,
                        static_cast<double>(Whole(-full, full - 1)) / static_cast<double>(full));
        return m;
    }

    TempFolder folder;
    const std::string name = folder / "f.wav";
    MessageRecorder messages;
    std::mt19937 random{kSeed};
};

const auto kTestName = [](const testing::TestParamInfo<std::tuple<int, int>>& one) {
    return std::to_string(std::get<0>(one.param)) + "BitsBy" +
           std::to_string(std::get<1>(one.param));
};
INSTANTIATE_TEST_SUITE_P(, WavRoundTrip,
                         testing::Combine(testing::Values(8, 16, 32), testing::Values(1, 2, 3)),
                         kTestName);

TEST_P(WavRoundTrip, GivesTheSamplesBack)
{
    // 32 bits are written times 2^31 - 1 and read over 2^31: a step in proportion and half a step
    // of rounding.
    const double step = 1.0 / 2147483648.0;
    for (std::int32_t frames : kFrames) {
        const Ref<clsMatrix> samples = ExactSamples(frames);
        const std::string behind(static_cast<std::size_t>(Whole(0, 3)), 't');
        const auto rate = static_cast<std::int32_t>(Whole(1, 200000));
        ASSERT_TRUE(wavwrite(samples, rate, std::int16_t(Bits()), name, 0.0, behind));
        const WavreadResult back = wavread(name);
        ASSERT_TRUE(back.Samples) << frames;
        ASSERT_EQ(ShapeOf(*back.Samples), Sized(frames, Channels()));
        EXPECT_EQ(back.Bits, Bits());
        EXPECT_EQ(back.Rate, rate);
        EXPECT_EQ(back.Trailing, behind);
        if (Bits() < 32) {
            ASSERT_EQ(Values(*back.Samples), Values(*samples)) << frames;
            continue;
        }
        for (std::int32_t i = 1; i <= frames; ++i)
            for (std::int32_t j = 1; j <= Channels(); ++j)
                ASSERT_NEAR(back.Samples->Real(i, j), samples->Real(i, j),
                            (std::abs(samples->Real(i, j)) + 0.5) * step)
                    << i << ' ' << j;
    }
}

TEST_P(WavRoundTrip, GivesAnySignalBackWithinARounding)
{
    const double step = Bits() == 8 ? 1.0 / 128 : Bits() == 16 ? 1.0 / 32768 : 1.5 / 2147483648.0;
    Ref<clsMatrix> samples = MakeRef<clsMatrix>();
    samples->Initial_matrix(3000, Channels());
    std::uniform_real_distribution<double> noise(-0.99, 0.99);
    for (std::int32_t i = 1; i <= 3000; ++i)
        for (std::int32_t j = 1; j <= Channels(); ++j)
            samples->Real(i, j, noise(random));
    ASSERT_TRUE(wavwrite(samples, 44100.0, std::int16_t(Bits()), name));
    const WavreadResult back = wavread(name);
    ASSERT_TRUE(back.Samples);
    const double bound = Bits() == 32 ? step : step / 2;
    for (std::int32_t i = 1; i <= 3000; ++i)
        for (std::int32_t j = 1; j <= Channels(); ++j)
            ASSERT_NEAR(back.Samples->Real(i, j), samples->Real(i, j), bound) << i << ' ' << j;
}

TEST_P(WavRoundTrip, SizeTellsWhatTheSamplesAre)
{
    for (std::int32_t frames : kFrames) {
        ASSERT_TRUE(wavwrite(ExactSamples(frames), 8000.0, std::int16_t(Bits()), name));
        const WavreadResult size = wavread(name, "size");
        ASSERT_TRUE(size.Samples);
        EXPECT_EQ(Values(*size.Samples), (std::vector<double>{1.0 * frames, 1.0 * Channels()}));
    }
}

TEST_P(WavRoundTrip, ARangeIsThatPartOfTheWhole)
{
    const std::int32_t frames = 20000;
    ASSERT_TRUE(wavwrite(ExactSamples(frames), 8000.0, std::int16_t(Bits()), name));
    const Ref<clsMatrix> whole = wavread(name).Samples;
    for (int round = 0; round < 20; ++round) {
        const auto from = static_cast<std::int32_t>(Whole(1, frames));
        const auto to = static_cast<std::int32_t>(Whole(1, frames));
        const Ref<clsMatrix> part = wavread(name, from, to).Samples;
        ASSERT_TRUE(part) << from << ' ' << to;
        ASSERT_EQ(ShapeOf(*part), Sized(std::abs(to - from) + 1, Channels()));
        for (std::int32_t i = 1; i <= part->size1; ++i)
            for (std::int32_t j = 1; j <= Channels(); ++j)
                ASSERT_EQ(part->Real(i, j), whole->Real(std::min(from, to) + i - 1, j))
                    << from << ' ' << to << ", seed " << kSeed;
    }
}

/// Widths whose numbers come back bit for bit, and channels that the streaming reader serves.
class WavExactRoundTrip : public WavRoundTrip {};
INSTANTIATE_TEST_SUITE_P(, WavExactRoundTrip,
                         testing::Combine(testing::Values(8, 16), testing::Values(1, 2)),
                         kTestName);

TEST_P(WavExactRoundTrip, AFileOfAnyNumbersIsWrittenAsItWasRead)
{
    std::string data;
    for (int k = 0; k < 6000 * Channels() * Bits() / 8; ++k)
        data += static_cast<char>(Whole(0, 255));
    const std::string file = PlainWave({.channels = Channels(), .bits = Bits()}, data);
    const WavreadResult read = wavread(folder.Write("source.wav", file));
    ASSERT_TRUE(read.Samples);
    ASSERT_TRUE(wavwrite(read.Samples, read.Rate, std::int16_t(Bits()), name));
    EXPECT_EQ(BytesOf(name), file);
}

TEST_P(WavExactRoundTrip, TheStreamingReaderSeesTheSameSamples)
{
    const Ref<clsMatrix> samples = ExactSamples(5000);
    ASSERT_TRUE(wavwrite(samples, 22050.0, std::int16_t(Bits()), name));
    Array<double> streamed;
    ReadWaveSamples(name, streamed);
    for (std::int32_t i = 1; i <= 5000; ++i)
        for (std::int32_t j = 1; j <= Channels(); ++j)
            ASSERT_EQ(Channels() == 1 ? streamed(i) : streamed(j, i), samples->Real(i, j));
}

} // namespace
} // namespace lumora
