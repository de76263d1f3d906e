#include "overfilter/ClsRemoveOverPolynom.h"

#include "overfilter/OverFilterPlan.h"
#include "overfilter/OverSounds.h"
#include "support/MessageRecorder.h"
#include "support/Raised.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <initializer_list>

namespace lumora {
namespace {

using namespace test;

class RemoveOver : public testing::Test {
protected:
    /// A filter for small sizes by hand.
    void SetUpSmall(int guard, int train, int order, double first_excess = 0.0)
    {
        filter.SetUp(static_cast<std::int16_t>(guard), static_cast<std::int16_t>(train), 1.0, 0.02,
                     static_cast<std::int16_t>(order), 8000, first_excess, 2.0);
    }

    Stream Out(const Stream& in)
    {
        Stream out(in.size());
        filter.Process(in, out);
        return out;
    }

    /// Noise of middle level with some samples in its middle.
    Stream InNoise(const Stream& samples)
    {
        Stream in(4000);
        for (double& x : in)
            x = Uniform(noise, -0.5, 0.5);
        std::copy(samples.begin(), samples.end(), in.begin() + 2000);
        return in;
    }

    /// The regions that a sound in noise brings up, by length and sign.
    std::vector<int> SignedLengths(const Stream& samples)
    {
        std::vector<int> found;
        SetUpForRate(filter, 44100);
        filter.Observe([&](const RebuiltRegion& region) {
            EXPECT_GE(region.start, 2001);
            found.push_back(region.sign * region.length);
        });
        Out(InNoise(samples));
        EXPECT_EQ(filter.Figures().Regions(), static_cast<std::int64_t>(found.size()));
        return found;
    }

    /// All zeros but for what stands around a region of 0.9, which begins at 200.
    static Stream Around(int length, std::initializer_list<double> before)
    {
        Stream in(800, 0.0);
        std::copy(before.begin(), before.end(), in.begin() + 200 - std::ssize(before));
        std::fill_n(in.begin() + 200, length, 0.9);
        return in;
    }

    /// What went in comes out, late.
    void ExpectUntouched(const Stream& in, const Stream& out)
    {
        const auto delay = static_cast<std::size_t>(filter.BufferLen() - 1);
        for (std::size_t k = 0; k < out.size(); ++k)
            ASSERT_EQ(out[k], k < delay ? 0.0 : std::clamp(in[k - delay], -0.99, 0.99)) << k;
    }

    Noise noise{7};
    MessageRecorder messages;
    ClsRemoveOverPolynom filter;
};

TEST_F(RemoveOver, SizesByRate)
{
    struct Row {
        int rate, train, guard, order, buffer, centre;
    };
    for (const Row& row : {Row{8000, 80, 27, 4, 107, 54}, Row{11025, 110, 37, 6, 147, 74},
                           Row{22050, 220, 73, 12, 293, 147}, Row{44100, 440, 147, 24, 587, 294},
                           Row{48000, 479, 160, 26, 639, 320}}) {
        const OverFilterPlan plan = OverFilterPlan::ForRate(row.rate);
        EXPECT_EQ(plan.TrainLen, row.train);
        EXPECT_EQ(plan.GuardLen, row.guard);
        EXPECT_EQ(plan.Order, row.order);
        SetUpForRate(filter, row.rate);
        EXPECT_EQ(filter.BufferLen(), row.buffer);
        int handled_at = 0; // counted from 1
        filter.Observe([&](const RebuiltRegion& region) { handled_at = region.buffer_start + 1; });
        Out(InNoise({0.9}));
        EXPECT_EQ(handled_at, row.centre);
    }
}

TEST_F(RemoveOver, SizesThatDoNotFitAreRefusedAtTheDoor)
{
    EXPECT_EQ(Raised([&] { SetUpSmall(16384, 16384, 10); }), kOverflow);
    EXPECT_EQ(Raised([&] { SetUpSmall(16384, 16383, 10); }), 0);
    EXPECT_EQ(Raised([&] { SetUpSmall(1, 1, 1); }), kSubscript);
    EXPECT_EQ(Raised([&] { SetUpSmall(-5, 5, 1); }), kSubscript);
    EXPECT_EQ(Raised([&] { SetUpSmall(27, 80, 0); }), kSubscript);
    EXPECT_EQ(Raised([&] { SetUpForRate(filter, 918); }), kSubscript);
    EXPECT_EQ(Raised([&] { SetUpForRate(filter, 919); }), 0);
    EXPECT_EQ(Raised([&] { SetUpForRate(filter, 0); }), kSubscript);
    EXPECT_EQ(Raised([&] { SetUpForRate(filter, -44100); }), kSubscript);
    EXPECT_EQ(Raised([&] { SetUpForRate(filter, 2463000); }), 0);
    EXPECT_EQ(Raised([&] { SetUpForRate(filter, 2464000); }), kOverflow);
    EXPECT_EQ(Raised([&] { SetUpForRate(filter, 2147483647); }), kOverflow);
    EXPECT_EQ(Raised([&] { filter.SetUp(27, 80, 0.0, 0.02, 4, 8000, 0.0, 2.0); }), kDivision);
    EXPECT_EQ(Raised([&] { filter.SetUp(27, 80, 1.0, 0.0, 4, 8000, 0.0, 2.0); }), kDivision);
    EXPECT_EQ(Raised([&] { filter.SetUp(27, 80, 1.0, 0.02, 4, 0, 0.0, 2.0); }), kDivision);
    double y = 0.0;
    EXPECT_EQ(Raised([&] { filter.RemoveOver_Operation(0.5, y); }), kSubscript);
}

TEST_F(RemoveOver, CallsOutOfOrderAreError9)
{
    double y = 0.0;
    Stream two(2);
    EXPECT_EQ(Raised([&] { filter.RemoveOver_Operation(0.5, y); }), kSubscript);
    EXPECT_EQ(Raised([&] { filter.ImpRespLPC(); }), kSubscript);
    SetUpForRate(filter, 8000);
    EXPECT_EQ(Raised([&] { filter.ImpRespLPC(); }), kSubscript); // there was no region yet
    EXPECT_EQ(Raised([&] { filter.Process(two, std::span(two).first(1)); }), kSubscript);
    EXPECT_EQ(Raised([&] { filter.RemoveOver_Operation(0.5, y); }), 0);
    filter.Destruct();
    EXPECT_EQ(Raised([&] { filter.RemoveOver_Operation(0.5, y); }), kSubscript);
    EXPECT_EQ(Raised([&] { filter.Process(two, two); }), kSubscript);
}

TEST_F(RemoveOver, SoundWithinTheLimitsIsOnlyDelayed)
{
    for (const int rate : {8000, 44100, 96000}) {
        SetUpForRate(filter, rate);
        Stream in(5000);
        for (double& x : in)
            x = Uniform(noise, -0.8, 0.8);
        in[77] = 0.8;
        in[78] = -0.8;
        ExpectUntouched(in, Out(in));
        EXPECT_EQ(filter.QualityGood(), 1);
        EXPECT_EQ(filter.Gain(), 1.0);
        EXPECT_EQ(filter.Figures(), OverFilterFigures{});
    }
}

TEST_F(RemoveOver, ASampleOnTheLimitNeitherOpensNorClosesARegion)
{
    EXPECT_EQ(SignedLengths({0.8}), std::vector<int>{});
    EXPECT_EQ(SignedLengths({-0.8}), std::vector<int>{});
    EXPECT_EQ(SignedLengths({0.9, 0.8, 0.8, 0.9}), std::vector<int>{4});
    EXPECT_EQ(SignedLengths({-0.9, -0.8, -0.9}), std::vector<int>{-3});
    EXPECT_EQ(SignedLengths({0.9, 0.8, 0.8}), std::vector<int>{3});
    EXPECT_EQ(SignedLengths({0.9, std::nextafter(0.8, 0.0), 0.9}), (std::vector<int>{1, 1}));
    EXPECT_EQ(SignedLengths({std::nextafter(0.8, 1.0)}), std::vector<int>{1});
}

TEST_F(RemoveOver, TheSampleThatClosesARegionOpensNone)
{
    EXPECT_EQ(SignedLengths({0.9, -0.9, 0.1}), std::vector<int>{1});
    EXPECT_EQ(SignedLengths({0.9, -0.9, -0.9}), (std::vector<int>{1, -1}));
    EXPECT_EQ(SignedLengths({-0.9, 0.9, 0.9, 0.9}), (std::vector<int>{-1, 2}));
}

TEST_F(RemoveOver, ARegionLongerThanGuardLenIsLeft)
{
    SetUpForRate(filter, 44100);
    Out(InNoise(Stream(147, 0.9)));
    EXPECT_EQ(filter.Figures().rebuilt, 1);
    EXPECT_EQ(filter.Figures().longest_region, 147);
    SetUpForRate(filter, 44100);
    const Stream in = InNoise(Stream(148, 0.9));
    ExpectUntouched(in, Out(in));
    EXPECT_EQ(filter.Figures().left_too_long, 1);
    EXPECT_EQ(filter.QualityGood(), 0);
}

TEST_F(RemoveOver, AShortRegionInNoiseIsOfGoodQuality)
{
    SetUpForRate(filter, 44100);
    Out(InNoise(Stream(20, 0.9)));
    EXPECT_EQ(filter.QualityGood(), 1);
    EXPECT_EQ(filter.Figures().crowded, 0);
}

TEST_F(RemoveOver, RegionsOverMoreThanFifteenHundredthsAreOfPoorQuality)
{
    // Of 587 samples 0.15 are 88.05; a region counts for one sample less than it has.
    SetUpForRate(filter, 44100);
    Out(InNoise(Stream(89, 0.9)));
    EXPECT_EQ(filter.QualityGood(), 1);
    SetUpForRate(filter, 44100);
    Out(InNoise(Stream(90, 0.9)));
    EXPECT_EQ(filter.QualityGood(), 0);
    EXPECT_EQ(filter.Figures().crowded, 1);
    EXPECT_EQ(filter.Figures().rebuilt, 1);
}

TEST_F(RemoveOver, SilenceGivesAZeroPivot)
{
    SetUpSmall(30, 90, 2);
    const Stream in = Around(3, {});
    ExpectUntouched(in, Out(in));
    EXPECT_EQ(filter.QualityGood(), 0);
    EXPECT_EQ(filter.Figures().left_unpredicted, 1);
    EXPECT_EQ(messages.Take(), Shown{});
    EXPECT_EQ(Raised([&] { filter.ImpRespLPC(); }), kSubscript);
}

TEST_F(RemoveOver, ALastPivotOfZeroHasItsMessage)
{
    const ShownMessage singular{"Matrix is singular to working precision."};
    SetUpSmall(30, 90, 1);
    Stream in = Around(3, {});
    ExpectUntouched(in, Out(in));
    EXPECT_EQ(filter.QualityGood(), 0);
    EXPECT_EQ(filter.Figures().left_unpredicted, 1);
    EXPECT_EQ(messages.Take(), Shown{singular});

    // Two equations that are one: a constant. Every region asks anew, as none has succeeded.
    SetUpSmall(30, 90, 2);
    in.assign(900, 0.5);
    in[300] = in[500] = 0.9;
    ExpectUntouched(in, Out(in));
    EXPECT_EQ(filter.Figures().left_unpredicted, 2);
    EXPECT_EQ(messages.Take(), (Shown{singular, singular}));
}

TEST_F(RemoveOver, ACoefficientOverTenIsRejected)
{
    SetUpSmall(30, 90, 1);
    Stream in = Around(3, {0.0625, std::nextafter(0.625, 1.0)}); // their quotient: above 10
    ExpectUntouched(in, Out(in));
    EXPECT_EQ(filter.QualityGood(), 0);
    EXPECT_EQ(filter.Figures().left_unpredicted, 1);
    SetUpSmall(30, 90, 1);
    in = Around(3, {-0.0625, std::nextafter(0.625, 1.0)});
    ExpectUntouched(in, Out(in));
    EXPECT_EQ(filter.Figures().left_unpredicted, 1);
    SetUpSmall(30, 90, 1);
    Out(Around(3, {0.0625, 0.625})); // exactly 10
    EXPECT_EQ(filter.QualityGood(), 1);
    EXPECT_EQ(filter.Figures().rebuilt, 1);
    EXPECT_EQ(messages.Take(), Shown{});
}

TEST_F(RemoveOver, APredictionThatOverflowsLeavesTheRegion)
{
    SetUpSmall(400, 90, 1);
    const Stream in = Around(320, {0.0625, 0.625}); // 0.625 x 10^320
    ExpectUntouched(in, Out(in));
    EXPECT_EQ(filter.Figures().left_unpredicted, 1);
    EXPECT_EQ(filter.QualityGood(), 0);
}

TEST_F(RemoveOver, APredictionFromOutsideTheBufferIsError9)
{
    // Two samples ahead of an open region at its centre make an equation; behind it there is none.
    SetUpSmall(12, 2, 1);
    EXPECT_EQ(Raised([&] { Out(InNoise(Stream(30, 0.9))); }), kSubscript);
}

TEST_F(RemoveOver, BothPredictionsOfARebuiltRegionEndOnTheLimit)
{
    // One sample is end and beginning at once, so both predictions are the limit there.
    SetUpForRate(filter, 44100);
    for (const double sign : {1.0, -1.0}) {
        double before = 0.0;
        double after = 0.0;
        filter.Observe([&](const RebuiltRegion& region) {
            EXPECT_EQ(region.start, 2001);
            EXPECT_EQ(region.sign, sign);
            EXPECT_EQ(region.before.size(), 587U);
            before = region.before[static_cast<std::size_t>(region.buffer_start)];
            after = region.after[static_cast<std::size_t>(region.buffer_start)];
        });
        SetUpForRate(filter, 44100);
        Out(InNoise({sign * 0.97}));
        EXPECT_EQ(before, sign * 0.97);
        EXPECT_NEAR(after, sign * 0.8, 1e-12);
    }
}

TEST_F(RemoveOver, TheImpulseResponseIsThatOfTheCoefficients)
{
    SetUpSmall(30, 90, 1);
    Out(Around(3, {0.25, 0.5})); // one equation: the coefficient is 2
    ASSERT_EQ(filter.Figures().rebuilt, 1);
    filter.ImpRespLPC();
    const std::span<const double> h = filter.ImpulseResp();
    EXPECT_EQ(Stream(h.begin(), h.end()), (Stream{1, 2, 4, 8, 16, 32}));
}

TEST_F(RemoveOver, AnOvershootRaisesTheGainAndItSettlesTowardsTwelveTenths)
{
    SetUpForRate(filter, 8000);
    Stream in(4000);
    for (std::size_t k = 0; k < in.size(); ++k) {
        const double loud = k >= 2000 && k < 2010 ? 1.5 : 0.7; // half a period of 20 samples
        in[k] = std::min(1.0, loud * std::sin(0.314159 * static_cast<double>(k - 2000)));
        in[k] += Uniform(noise, -0.001, 0.001);
    }
    const Stream out = Out(in);
    EXPECT_EQ(filter.Figures().rebuilt, 1);
    EXPECT_GT(filter.Figures().largest_gain, 1.2);
    EXPECT_LE(*std::ranges::max_element(out), 0.99);
    Out(Stream(400000, 0.0)); // fifty time constants
    EXPECT_NEAR(filter.Gain(), 1.2, 1e-6);
}

TEST_F(RemoveOver, ASecondSetUpForgetsTheFirstRun)
{
    const Stream in = Driven(noise, 8000, 22050, 2, 3.0);
    ClsRemoveOverPolynom fresh;
    SetUpForRate(fresh, 22050);
    Stream expected(in.size());
    fresh.Process(in, expected);
    SetUpForRate(filter, 44100);
    Out(Driven(noise, 5000, 44100, 1, 4.0));
    SetUpForRate(filter, 22050);
    EXPECT_EQ(Out(in), expected);
    EXPECT_EQ(filter.Figures(), fresh.Figures());
    EXPECT_EQ(filter.QualityGood(), fresh.QualityGood());
}

TEST_F(RemoveOver, AnObserverChangesNothing)
{
    const Stream in = Driven(noise, 8000, 22050, 1, 2.0);
    SetUpForRate(filter, 22050);
    const Stream unseen = Out(in);
    std::int64_t seen = 0;
    filter.Observe([&](const RebuiltRegion& region) {
        ++seen;
        // Only the region differs, and what it was is what came in.
        for (std::size_t k = 0; k < region.before.size(); ++k) {
            const auto place = static_cast<std::int64_t>(k) - region.buffer_start;
            if (place < 0 || place >= region.length)
                EXPECT_EQ(region.before[k], region.after[k]);
            else
                EXPECT_EQ(region.before[k], in[static_cast<std::size_t>(region.start - 1 + place)]);
        }
    });
    SetUpForRate(filter, 22050);
    EXPECT_EQ(Out(in), unseen);
    EXPECT_EQ(seen, filter.Figures().rebuilt);
    EXPECT_GT(seen, 10);
}

} // namespace
} // namespace lumora
