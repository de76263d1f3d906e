#include "overfilter/ClsRemoveOverPolynom.h"

#include "base/VectorWidth.h"
#include "overfilter/OverSounds.h"
#include "overfilter/PlainRemoveOver.h"
#include "support/MessageRecorder.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <gtest/gtest.h>
#include <initializer_list>
#include <string>

namespace lumora {
namespace {

using namespace test;

void SetUpAs(ClsRemoveOverPolynom& filter, const PlainSetUp& s)
{
    filter.SetUp(static_cast<std::int16_t>(s.guard), static_cast<std::int16_t>(s.train),
                 s.decay_seconds, s.attack_seconds, static_cast<std::int16_t>(s.order), s.rate,
                 s.first_excess, s.excess_max);
}

bool SameBits(double a, double b)
{
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

/// The fast class beside the plain one, at every vector width and in blocks of odd lengths. The
/// plain one is slow: it runs once for all widths.
class AgainstPlain : public testing::Test {
protected:
    /// Answers the plain filter as it stood at the end, for a look at what the sound has brought
    /// up.
    PlainRemoveOver Expect(const PlainSetUp& sizes, const Stream& in, std::size_t block = 997)
    {
        PlainRemoveOver plain(sizes);
        Stream expected;
        std::vector<double> gains;
        for (const double x : in) {
            expected.push_back(plain.Operation(x));
            gains.push_back(plain.Gain());
        }
        for (const VectorWidth width : VectorWidths()) {
            SCOPED_TRACE("vector width " + std::to_string(static_cast<int>(width)));
            ClsRemoveOverPolynom filter(width);
            SetUpAs(filter, sizes);
            Stream out(in.size());
            for (std::size_t from = 0; from < in.size(); from += block) {
                const std::size_t n = std::min(block, in.size() - from);
                filter.Process(std::span(in).subspan(from, n), std::span(out).subspan(from, n));
                EXPECT_TRUE(SameBits(filter.Gain(), gains[from + n - 1])) << from + n - 1;
            }
            ExpectSame(out, expected);
            EXPECT_EQ(filter.QualityGood(), plain.QualityGood());
            const OverFilterFigures& figures = filter.Figures();
            EXPECT_EQ(figures.rebuilt, plain.rebuilt);
            EXPECT_EQ(figures.single, plain.single);
            EXPECT_EQ(figures.left_too_long, plain.too_long);
            EXPECT_EQ(figures.left_unpredicted, plain.failed);
            EXPECT_EQ(figures.crowded, plain.crowded);
            EXPECT_EQ(figures.longest_region, plain.longest);
            EXPECT_EQ(figures.largest_gain, std::max(1.0, *std::ranges::max_element(gains)));
            EXPECT_EQ(messages.Take().size(), static_cast<std::size_t>(plain.singular));
        }
        return plain;
    }

    static void ExpectSame(const Stream& out, const Stream& expected)
    {
        ASSERT_EQ(out.size(), expected.size());
        for (std::size_t k = 0; k < out.size(); ++k)
            ASSERT_TRUE(SameBits(out[k], expected[k]))
                << k << ": " << out[k] << " for " << expected[k];
    }

    Noise noise{2026};
    MessageRecorder messages;
};
TEST_F(AgainstPlain, SoundsOfEveryRateAndDrive)
{
    int rebuilt = 0;
    for (const int rate : {8000, 11025, 22050, 44100, 48000, 96000})
        for (const std::size_t channels : {1U, 2U})
            for (const double drive : {0.9, 1.5, 3.2}) {
                SCOPED_TRACE(std::to_string(rate) + " Hz, drive " + std::to_string(drive));
                Stream in = Driven(noise, 6000, rate, channels, drive);
                if (channels == 2) Quantise(in);
                rebuilt += Expect(PlainForRate(rate), in).rebuilt;
            }
    EXPECT_GT(rebuilt, 500);
}

TEST_F(AgainstPlain, ChainsOfRegionsOnAndBesideTheLimits)
{
    for (const int rate : {8000, 22050, 44100})
        for (const int longest : {1, 4, 30, 200}) {
            SCOPED_TRACE(std::to_string(rate) + " Hz, runs up to " + std::to_string(longest));
            Expect(PlainForRate(rate), Chain(noise, 12000, longest));
        }
}

TEST_F(AgainstPlain, BurstsInSilenceAndInSteadySound)
{
    for (const double ground : {0.0, 0.3, -0.75, 0.8}) {
        Stream in(9000, ground);
        for (std::size_t at = 500; at + 60 < in.size(); at += 700)
            for (std::size_t k = 0; k < 1 + at % 53; ++k)
                in[at + k] = at % 2 == 0 ? 0.95 : -1.0;
        SCOPED_TRACE(ground);
        // No equation tells these samples apart, and on 0.8 a region never closes.
        const PlainRemoveOver plain = Expect(PlainForRate(11025), in);
        EXPECT_GT(ground == 0.8 ? plain.too_long : plain.failed, 0);
    }
}

TEST_F(AgainstPlain, OneRegionLongerThanTheBuffer)
{
    for (const double level : {1.0, -0.9}) {
        Stream in = Driven(noise, 4000, 8000, 1, 0.9);
        std::fill(in.begin() + 1000, in.begin() + 1700, level);
        const PlainRemoveOver plain = Expect(PlainForRate(8000), in);
        EXPECT_GE(plain.too_long, 700 / plain.Length());
    }
}

TEST_F(AgainstPlain, RegionsAtBothEndsOfTheBufferWhenOneIsCentred)
{
    // A region of each length at its centre, with others that begin or end on the first and on the
    // last samples of the buffer at that moment, and one that is still open.
    const PlainSetUp sizes = PlainForRate(8000);
    for (int length = 1; length <= sizes.guard + 2; ++length)
        for (const int reach : {-2, -1, 0, 1, 2}) {
            Stream in = Driven(noise, 800, 8000, 1, 0.9);
            const int centre = 400;
            const int half = (sizes.guard + sizes.train) / 2;
            for (int k = 0; k < length; ++k)
                in[static_cast<std::size_t>(centre - length / 2 + k)] = 0.93;
            for (int k = 0; k < 4; ++k) {
                in[static_cast<std::size_t>(centre - half + reach - k)] = -0.9;
                in[static_cast<std::size_t>(centre + half + reach + k)] = 0.9;
            }
            SCOPED_TRACE(std::to_string(length) + " with reach " + std::to_string(reach));
            Expect(sizes, in);
        }
}

TEST_F(AgainstPlain, SizesOfEveryKind)
{
    for (int k = 0; k < 60; ++k) {
        PlainSetUp sizes{Whole(noise, 0, 60), Whole(noise, 3, 150)};
        sizes.order = Whole(noise, 1, std::max(1, std::min(40, sizes.train / 2 - 1)));
        sizes.rate = Whole(noise, 50, 200000);
        sizes.decay_seconds = Uniform(noise, 0.0005, 2.0);
        sizes.attack_seconds = Uniform(noise, 0.001, 0.1);
        sizes.first_excess = k % 3 == 0 ? 1.5 : 0.0;
        sizes.excess_max = Uniform(noise, 0.1, 2.0);
        SCOPED_TRACE(std::to_string(sizes.guard) + ", " + std::to_string(sizes.train) + ", order " +
                     std::to_string(sizes.order));
        Expect(sizes, k % 2 == 0 ? Driven(noise, 3000, 8000, 1, 2.5) : Chain(noise, 3000, 20));
    }
}

TEST_F(AgainstPlain, SampleBySample)
{
    Expect(PlainForRate(22050), Driven(noise, 20000, 22050, 2, 2.0), 1);
}

/// Noise with a lone over-driven sample at each of some places.
Stream Lone(Noise& noise, std::size_t count, std::initializer_list<std::size_t> places)
{
    Stream in(count);
    for (double& x : in)
        x = Uniform(noise, -0.5, 0.5);
    for (const std::size_t place : places)
        in[place] = 0.9;
    return in;
}

TEST_F(AgainstPlain, CoefficientsAreYoungAgainAfterAgeHasWrapped)
{
    const PlainSetUp sizes = PlainForRate(8000); // TrainLen 80
    const std::size_t first = 300;
    // At the wrap and 80 samples later, the last age that counts as young.
    for (const std::size_t later : {32767U, 32767U + 80U, 3U * 32767U + 5U})
        EXPECT_EQ(Expect(sizes, Lone(noise, 100000, {first, first + later})).estimates, 1) << later;
    for (const std::size_t later : {81U, 32766U, 32767U + 81U})
        EXPECT_EQ(Expect(sizes, Lone(noise, 40000, {first, first + later})).estimates, 2) << later;
}

TEST_F(AgainstPlain, RejectedCoefficientsAreUsedAfterAgeHasWrapped)
{
    PlainSetUp sizes = PlainForRate(8000);
    sizes.order = 1;
    Stream in = Lone(noise, 34000, {300, 2000, 300 + 32767});
    std::fill(in.begin() + 1900, in.begin() + 2000, 0.0);
    std::fill(in.begin() + 2001, in.begin() + 2100, 0.0);
    in[1998] = 0.01;
    in[1999] = 0.5;
    const PlainRemoveOver plain = Expect(sizes, in);
    EXPECT_EQ(plain.over_ten, 1);
    EXPECT_EQ(plain.estimates, 2);
    EXPECT_EQ(plain.rebuilt, 2);
}

TEST_F(AgainstPlain, NoCoefficientsAreNeverYoung)
{
    const PlainSetUp sizes = PlainForRate(8000);
    Stream in = Lone(noise, 34000, {300, 2000, 300 + 32767});
    std::fill(in.begin() + 1900, in.begin() + 2000, 0.0);
    std::fill(in.begin() + 2001, in.begin() + 2100, 0.0);
    const PlainRemoveOver plain = Expect(sizes, in);
    EXPECT_EQ(plain.zero_pivots, 1);
    EXPECT_EQ(plain.estimates, 3);
    EXPECT_EQ(plain.rebuilt, 2);
}

TEST_F(AgainstPlain, AnOvershootThatOutlastsTheSound)
{
    PlainSetUp sizes = PlainForRate(8000);
    sizes.decay_seconds = 0.01; // so that Excess runs down to the smallest numbers there are
    sizes.first_excess = 1.0;
    const PlainRemoveOver plain = Expect(sizes, Stream(90000, 0.5));
    EXPECT_GT(plain.Excess(), 0.0);
    EXPECT_LT(plain.Excess(), 1e-300);
    EXPECT_NEAR(plain.Gain(), 1.2, 1e-9);
}

} // namespace
} // namespace lumora
