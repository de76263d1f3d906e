#include "engine/ClsWsolaQuick.h"

#include "engine/PlainWsola.h"
#include "engine/SoundKinds.h"
#include "support/Raised.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <numbers>
#include <vector>

namespace lumora {
namespace {

using namespace test;
using Block = std::vector<double>;

constexpr std::int16_t kN = 220, kS = 5, kX = 20;

/// The core as a run at 22,050 Hz sets it up.
class ClsWsolaQuickCore : public testing::Test {
protected:
    ClsWsolaQuickCore() { core.SetUp(kN, kS, kX); }

    Block Stretch(const Block& block, double scale)
    {
        const auto result = core.Stretch(std::span<const double>(block), scale);
        return {result.begin(), result.end()};
    }

    /// All blocks of a sound one after the other.
    Block StretchAll(const Block& sound, double scale)
    {
        Block all;
        for (std::size_t at = 0; at + kN <= sound.size(); at += kN) {
            const auto result = core.Stretch(std::span(sound).subspan(at, kN), scale);
            all.insert(all.end(), result.begin(), result.end());
        }
        return all;
    }

    ClsWsolaQuick core;
};

Block Sine(std::size_t count, double frequency, double amplitude)
{
    Block sound(count);
    for (std::size_t i = 0; i < count; ++i)
        sound[i] = amplitude *
                   std::sin(2 * std::numbers::pi * frequency * static_cast<double>(i) / 22050.0);
    return sound;
}

Block SeededNoise(std::size_t count)
{
    test::Generator generator(5);
    Block sound(count);
    for (double& sample : sound)
        sample = std::uniform_real_distribution<double>(-1.0, 1.0)(generator);
    return sound;
}

/// Cycles per sample between the first and the last rising crossing of zero.
double MeasuredFrequency(std::span<const double> sound)
{
    double first = -1, last = -1;
    int crossings = 0;
    for (std::size_t i = 1; i < sound.size(); ++i)
        if (sound[i - 1] < 0 && sound[i] >= 0) {
            last = static_cast<double>(i) - sound[i] / (sound[i] - sound[i - 1]);
            if (++crossings == 1) first = last;
        }
    return (crossings - 1) / (last - first);
}

TEST_F(ClsWsolaQuickCore, AtScaleOneDelaysByOneBlockAndOneSample)
{
    const Block sound = SeededNoise(50 * kN);
    const Block result = StretchAll(sound, 1.0);
    ASSERT_EQ(result.size(), sound.size());
    for (std::size_t i = 0; i < kN + 1; ++i)
        ASSERT_EQ(result[i], 0.0) << i;
    // The two window halves sum to one but for their rounding and the turn of fifteen digits, which
    // is 3.5e-15 too long: half of it moves the second half, and a half goes into the window.
    for (std::size_t i = kN + 1; i < result.size(); ++i)
        ASSERT_NEAR(result[i], sound[i - kN - 1], 1.5e-15) << i;
}

TEST_F(ClsWsolaQuickCore, AtScaleOneIsLinearForItNeverSearches)
{
    // A search would take another place for another sound; a fixed delay adds up sample by sample.
    const Block sound = SeededNoise(30 * kN);
    Block doubled = sound;
    for (double& sample : doubled)
        sample *= 2.0;
    const Block once = StretchAll(sound, 1.0);
    core.SetUp(kN, kS, kX);
    const Block twice = StretchAll(doubled, 1.0);
    for (std::size_t i = 0; i < once.size(); ++i)
        ASSERT_EQ(2.0 * once[i], twice[i]);

    test::PlainWsola plain(kN, kS, kX);
    for (std::size_t at = 0; at < sound.size(); at += kN)
        plain.Operation({sound.begin() + static_cast<std::ptrdiff_t>(at),
                         sound.begin() + static_cast<std::ptrdiff_t>(at) + kN},
                        1.0);
    EXPECT_EQ(plain.Searches(), 0);
}

TEST_F(ClsWsolaQuickCore, KeepsFrequencyAndLevelOfASine)
{
    const double hertz = 441.0;
    const Block sine = Sine(200 * kN, hertz, 0.5);
    for (double scale : {0.5, 0.75, 1.5, 2.0}) {
        SCOPED_TRACE(scale);
        core.SetUp(kN, kS, kX);
        const Block result = StretchAll(sine, scale);
        ASSERT_EQ(result.size(), static_cast<std::size_t>(200 * kN * scale));
        // Without the silence of the beginning and the frames that reach into it.
        const auto settled = std::span(result).subspan(8 * kN);
        const double cents = 1200 * std::log2(MeasuredFrequency(settled) * 22050.0 / hertz);
        EXPECT_NEAR(cents, 0.0, 3.0);
        const auto [low, high] = std::ranges::minmax_element(settled);
        EXPECT_NEAR(*high, 0.5, 0.005);
        EXPECT_NEAR(*low, -0.5, 0.005);
    }
}

TEST_F(ClsWsolaQuickCore, KeepsSilenceSilent)
{
    for (double scale : {0.35, 0.5, 1.0, 1.5, 2.0}) {
        core.SetUp(kN, kS, kX);
        const Block result = StretchAll(Block(60 * kN, 0.0), scale);
        EXPECT_EQ(result, Block(result.size(), 0.0)) << scale;
        EXPECT_EQ(result.size(), 60 * static_cast<std::size_t>(kN * scale + 0.5));
    }
}

TEST_F(ClsWsolaQuickCore, WorksAtTheEndsOfItsRange)
{
    for (double scale : {0.35, 2.0}) {
        core.SetUp(kN, kS, kX);
        EXPECT_EQ(StretchAll(SeededNoise(400 * kN), scale).size(),
                  static_cast<std::size_t>(std::lround(400 * kN * scale)));
    }
}

TEST_F(ClsWsolaQuickCore, FailsBeyondScaleTwoOnTheSecondBlock)
{
    const Block block = SeededNoise(kN);
    EXPECT_EQ(Stretch(block, 2.05).size(), 451U);
    EXPECT_EQ(Raised([&] { Stretch(block, 2.05); }), kSubscript);
}

TEST_F(ClsWsolaQuickCore, RoundsItsLengthHalfToEven)
{
    // 10 x 0.65 = 6.5 and 10 x 0.75 = 7.5.
    core.SetUp(10, 1, kX);
    EXPECT_EQ(Stretch(Block(10, 0.1), 0.65).size(), 6U);
    EXPECT_EQ(Stretch(Block(10, 0.1), 0.75).size(), 8U);
    EXPECT_EQ(Stretch(Block(10, 0.1), 1.25).size(), 12U);
    EXPECT_EQ(Stretch(Block(10, 0.1), 1.75).size(), 18U);
}

TEST_F(ClsWsolaQuickCore, FailsWhenNothingWouldComeBack)
{
    EXPECT_EQ(Raised([&] { Stretch(Block(kN, 0.1), 0.001); }), kSubscript);
    core.SetUp(10, 1, kX);
    EXPECT_EQ(Raised([&] { Stretch(Block(10, 0.1), 0.05); }), kSubscript) << "half to even: 0";
    core.SetUp(10, 1, kX);
    EXPECT_EQ(Stretch(Block(10, 0.1), 0.051).size(), 1U);
}

TEST_F(ClsWsolaQuickCore, OverflowsWhenTheLengthPassesSixteenBits)
{
    for (double scale : {149.0, 1e9, -1e9, std::numeric_limits<double>::infinity()}) {
        core.SetUp(kN, kS, kX);
        EXPECT_EQ(Raised([&] { Stretch(Block(kN, 0.1), scale); }), kOverflow) << scale;
    }
}

TEST_F(ClsWsolaQuickCore, TakesBlocksOfItsLengthOnly)
{
    EXPECT_EQ(Raised([&] { Stretch(Block(kN - 1), 1.0); }), kSubscript);
    EXPECT_EQ(Raised([&] { Stretch(Block(kN + 1), 1.0); }), kSubscript);
    EXPECT_EQ(Raised([&] { Stretch({}, 1.0); }), kSubscript);
    const test::Shorts16 shorts(kN - 1);
    EXPECT_EQ(Raised([&] { core.Stretch(std::span<const std::int16_t>(shorts), 1.0); }),
              kSubscript);
    EXPECT_EQ(Raised([&] { core.Wsola_Operation(Array<double>(), 1.0); }), kSubscript);
    EXPECT_EQ(Raised([&] { core.Wsola_Operation(Array<double>(kN + 1), 1.0); }), kSubscript);
    EXPECT_EQ(Raised([&] { core.Wsola_Operation(Array<double>(1, kN), 1.0); }), kSubscript);
    EXPECT_EQ(core.Wsola_Operation(Array<double>(kN), 1.0).UBound(), kN);
}

TEST_F(ClsWsolaQuickCore, GivesAnArrayFromOne)
{
    const Array<double> result = core.Wsola_Operation(Array<double>(kN), 1.5);
    EXPECT_EQ(result.LBound(), 1);
    EXPECT_EQ(result.UBound(), 330);
}

TEST(ClsWsolaQuick, FailsBeforeSetUpAndAfterDestruct)
{
    const Block block(kN, 0.1);
    ClsWsolaQuick core;
    EXPECT_EQ(Raised([&] { core.Stretch(std::span<const double>(block), 1.0); }), kSubscript);
    EXPECT_EQ(Raised([&] { core.Stretch(std::span<const double>(), 1.0); }), kSubscript);
    core.SetUp(kN, kS, kX);
    EXPECT_EQ(Raised([&] { core.Stretch(std::span<const double>(block), 1.0); }), 0);
    core.Destruct();
    EXPECT_EQ(Raised([&] { core.Stretch(std::span<const double>(block), 1.0); }), kSubscript);
}

TEST_F(ClsWsolaQuickCore, IsAsNewAfterAnotherSetUp)
{
    const Block sound = SeededNoise(40 * kN);
    for (double scale : {0.6, 1.7}) {
        core.SetUp(kN, kS, kX);
        const Block first = StretchAll(sound, scale);
        core.SetUp(kN, kS, kX);
        EXPECT_EQ(StretchAll(sound, scale), first) << "after a run";
        core.SetUp(440, 10, kX);
        const Block longer = SeededNoise(440);
        core.Stretch(std::span<const double>(longer), 1.9);
        core.SetUp(kN, kS, kX);
        EXPECT_EQ(StretchAll(sound, scale), first) << "after other sizes";
        core.Destruct();
        core.SetUp(kN, kS, kX);
        EXPECT_EQ(StretchAll(sound, scale), first) << "after its end";
        EXPECT_NE(StretchAll(sound, scale), first) << "without: the buffers are full";
        EXPECT_EQ(Raised([&] { Stretch(Block(kN), 200.0); }), kOverflow);
        core.SetUp(kN, kS, kX);
        EXPECT_EQ(StretchAll(sound, scale), first) << "after an error";
    }
}

TEST_F(ClsWsolaQuickCore, SharesNothingBetweenInstances)
{
    const Block sound = SeededNoise(30 * kN);
    const Block alone = StretchAll(sound, 1.6);
    core.SetUp(kN, kS, kX);
    ClsWsolaQuick other;
    other.SetUp(kN, kS, kX);
    const Block noise = Sine(30 * kN, 300, 0.9);
    Block beside;
    for (std::size_t at = 0; at < sound.size(); at += kN) {
        other.Stretch(std::span(noise).subspan(at, kN), 0.7);
        const auto result = core.Stretch(std::span(sound).subspan(at, kN), 1.6);
        beside.insert(beside.end(), result.begin(), result.end());
    }
    EXPECT_EQ(beside, alone);
}

TEST(ClsWsolaQuick, RefusesSizesThatMakeNoBuffers)
{
    const auto set_up = [](std::int16_t N, std::int16_t S, std::int16_t X) {
        return Raised([&] { ClsWsolaQuick().SetUp(N, S, X); });
    };
    EXPECT_EQ(set_up(220, 0, 20), kDivision);
    EXPECT_EQ(set_up(22, 1, 20), 0);
    EXPECT_EQ(set_up(8186, 186, 20), 0);
    EXPECT_EQ(set_up(8187, 186, 20), kOverflow) << "4N + X";
    EXPECT_EQ(set_up(16384, 186, 20), kOverflow) << "2N";
    EXPECT_EQ(set_up(0, 1, 20), kSubscript);
    EXPECT_EQ(set_up(-5, 1, 20), kSubscript);
}

} // namespace
} // namespace lumora
