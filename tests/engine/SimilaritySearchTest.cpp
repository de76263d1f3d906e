#include "engine/SimilaritySearch.h"

#include "engine/SoundKinds.h"
#include "support/VectorWidths.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace lumora {
namespace {

using namespace test;

/// Room behind a signal for what the kernels read ahead.
constexpr std::size_t kBehind = kShiftGroup + ShortKernels::kGroup + 1;

/// Once for each width of vectors that this machine has.
class Search : public testing::TestWithParam<VectorWidth> {
protected:
    Search() : search(GetParam()) { search.SetUp(300); }

    std::size_t Best(std::vector<double> x, const std::vector<double>& y, std::size_t shifts,
                     EnergyWindow energy = EnergyWindow::Exact)
    {
        x.resize(x.size() + kBehind);
        return search.BestShift(x.data(), y.data(), y.size(), shifts, energy);
    }

    std::size_t BestOfShorts(test::Shorts16 x, test::Shorts16 y, std::size_t shifts,
                             EnergyWindow energy = EnergyWindow::Exact)
    {
        const std::size_t count = y.size();
        x.resize(x.size() + kBehind);
        y.resize(y.size() + kBehind);
        return search.BestShift(x.data(), y.data(), count, shifts, energy);
    }

    SimilaritySearch search;
};
INSTANTIATE_TEST_SUITE_P(, Search, EveryWidth(), WidthName);

std::vector<double> AsSamples(const test::Shorts16& shorts)
{
    std::vector<double> samples;
    for (std::int16_t value : shorts)
        samples.push_back(value / 32768.0);
    return samples;
}

TEST_P(Search, FindsATargetWhereverItStands)
{
    Generator generator(1);
    const test::Shorts16 sound = test::Noise(generator, 340);
    const std::size_t count = 60;
    for (std::size_t place = 0; place < 280; ++place) {
        const auto from = sound.begin() + static_cast<std::ptrdiff_t>(place);
        const test::Shorts16 target(from, from + static_cast<std::ptrdiff_t>(count));
        ASSERT_EQ(Best(AsSamples(sound), AsSamples(target), 280), place);
        if (search.TakesShorts()) {
            ASSERT_EQ(BestOfShorts(sound, target, 280), place);
        }
    }
}

TEST_P(Search, LooksAtTheGivenShiftsOnly)
{
    Generator generator(2);
    for (std::size_t shifts = 1; shifts <= 40; ++shifts) {
        test::Shorts16 sound = test::Noise(generator, 110, -3000, 3000);
        const test::Shorts16 target = test::Noise(generator, 30);
        // The perfect place is the first that is not asked for.
        std::copy(target.begin(), target.end(),
                  sound.begin() + static_cast<std::ptrdiff_t>(shifts));
        ASSERT_LT(Best(AsSamples(sound), AsSamples(target), shifts), shifts);
        if (search.TakesShorts()) {
            ASSERT_LT(BestOfShorts(sound, target, shifts), shifts);
        }
        ASSERT_EQ(Best(AsSamples(sound), AsSamples(target), shifts + 1), shifts);
    }
}

TEST_P(Search, IsBlindToLevelAndOffset)
{
    Generator generator(3);
    const std::vector<double> sound = AsSamples(test::Noise(generator, 200));
    std::vector<double> target(sound.begin() + 77, sound.begin() + 117);
    for (double& sample : target)
        sample = sample * 0.125 + 0.5;
    EXPECT_EQ(Best(sound, target, 150), 77U);
    for (double& sample : target)
        sample = -sample;
    EXPECT_NE(Best(sound, target, 150), 77U) << "turned over it is the least like";
}

TEST_P(Search, KeepsTheEarliestOfEquals)
{
    // Whole numbers: the running sums of equal windows are exactly equal.
    Generator generator(4);
    for (std::size_t period : {8U, 16U, 32U}) {
        const test::Shorts16 sound = test::Periodic(generator, 200, period);
        const auto from = sound.begin() + 5;
        // Windows of a power of two, so that means are exact and equal as well.
        const test::Shorts16 target(from, from + 64);
        EXPECT_EQ(Best(AsSamples(sound), AsSamples(target), 100), 5U) << period;
        if (search.TakesShorts()) {
            EXPECT_EQ(BestOfShorts(sound, target, 100), 5U) << period;
        }
    }
}

TEST_P(Search, StaysAtTheFirstShiftInSilence)
{
    Generator generator(5);
    const test::Shorts16 silence(120, 0);
    const test::Shorts16 constant(120, 32);
    const test::Shorts16 noise = test::Noise(generator, 120);
    const test::Shorts16 window(noise.begin(), noise.begin() + 32);
    for (EnergyWindow energy : {EnergyWindow::Exact, EnergyWindow::OneAhead})
        for (const auto& [x, y] : {std::pair{silence, window},
                                   {constant, window},
                                   {noise, test::Shorts16(32, 0)},
                                   {noise, test::Shorts16(32, 64)},
                                   {silence, test::Shorts16(32, 0)}}) {
            EXPECT_EQ(Best(AsSamples(x), AsSamples(y), 60, energy), 0U);
            if (search.TakesShorts()) {
                EXPECT_EQ(BestOfShorts(x, y, 60, energy), 0U);
            }
        }
}

TEST_P(Search, TakesTheFirstAboveZeroOverAWindowWithoutVariance)
{
    // The first windows are silent and correlate 0.0, which any likeness beats.
    std::vector<double> sound(60, 0.0);
    sound[40] = 0.5;
    const std::vector<double> target{0.0, 0.0, 0.5, 0.0};
    EXPECT_EQ(Best(sound, target, 50), 38U);
}

// Both energies by hand, in quarters, for windows of two samples and the target 0 1 (mean 1/2,
// variance 1/2). One ahead, shift 1 is measured with what leaves and enters a sample later.
TEST_P(Search, MeasuresTheEnergyOneSampleAheadWhereAsked)
{
    // Window 1 0 at shift 0: coefficient -1. Window 0 1 at shift 1: exactly 1. One ahead its energy
    // is 1 - 0 + 9 = 10 and its mean 1/2 + 3/2 = 2: (1 - 2) / sqrt((10 - 8) / 2) = -1, no better.
    const test::Shorts16 target{0, 8192};
    const test::Shorts16 found{8192, 0, 8192, 24576};
    // Window 1 1 at shift 0: no variance, 0. Window 1 1/2 at shift 1: exactly -1. One ahead its
    // energy is 2 - 1 + 1 = 2 and its mean 1 - 1 = 0: (1/2 - 0) / sqrt(2 / 2) = 1/2, better than 0.
    const test::Shorts16 passed_by{8192, 8192, 4096, -8192};

    const auto best = [&](const test::Shorts16& x, EnergyWindow energy) {
        const std::size_t place = Best(AsSamples(x), AsSamples(target), 2, energy);
        if (search.TakesShorts()) {
            EXPECT_EQ(BestOfShorts(x, target, 2, energy), place);
        }
        return place;
    };
    EXPECT_EQ(best(found, EnergyWindow::Exact), 1U);
    EXPECT_EQ(best(found, EnergyWindow::OneAhead), 0U);
    EXPECT_EQ(best(passed_by, EnergyWindow::Exact), 0U);
    EXPECT_EQ(best(passed_by, EnergyWindow::OneAhead), 1U);
}

} // namespace
} // namespace lumora
