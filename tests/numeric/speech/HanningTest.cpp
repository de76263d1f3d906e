#include "base/Cosine.h"
#include "base/Numbers.h"
#include "numeric/Matrices.h"
#include "support/EdgeNumbers.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace lumora {
namespace {

using namespace test;

/// A notch of so many samples: at 1000 samples per second a millisecond is one.
Ref<clsMatrix> Pressed(const Ref<clsMatrix>& x, double samples)
{
    return x->Hanning_Normaliz({}, samples, 1000);
}

Ref<clsMatrix> SilenceWith(std::int32_t length, std::int32_t place, double peak)
{
    const Ref<clsMatrix> x = MakeRef<clsMatrix>();
    x->Initial_matrix(1, length);
    x->Real(1, place, peak);
    return x;
}

Ref<clsMatrix> UniformNoise(std::int32_t length, double height, std::uint32_t seed)
{
    std::mt19937 generator(seed);
    std::uniform_real_distribution<double> value(-height, height);
    const Ref<clsMatrix> x = MakeRef<clsMatrix>();
    x->Initial_matrix(1, length);
    for (std::int32_t i = 1; i <= length; ++i)
        x->Real(1, i, value(generator));
    return x;
}

/// The steps as they are told, on a checked array. It looks through the whole vector for each peak.
Array<double> PlainSteps(Array<double> x, double Twind, std::int32_t Fs)
{
    const std::int64_t length = x.UBound();
    for (;;) {
        double m = 0.0;
        std::int64_t p = 1;
        for (std::int64_t i = 1; i <= length; ++i)
            if (std::abs(x(i)) > m) {
                m = std::abs(x(i));
                p = i;
            }
        if (m <= 1.0) return x;
        const double w = CLng(Fs * Twind / 1000);
        const double phi = 6.28318530717959 / (w - 1);
        const double a = 1 - 0.9 / m;
        const auto at = static_cast<double>(p);
        const std::int64_t start = CLng(at - w / 2);
        const std::int64_t first = start < 2 ? 1 : start;
        const bool inside = Int(w / 2 + at) < static_cast<double>(length);
        const std::int64_t last = inside ? CLng(w / 2 + at) : length;
        for (std::int64_t i = first; i <= last; ++i)
            x(i) = (1 - (0.5 - Cosine(static_cast<double>(i - start) * phi) * 0.5) * a) * x(i);
    }
}

TEST(HanningNormaliz, LeavesPeaksUpToOneInANewObject)
{
    const Ref<clsMatrix> x = RealMatrix({{0.5, -1.0, 1.0, 0.25}});
    const Ref<clsMatrix> result = Pressed(x, 100);
    EXPECT_NE(result, x);
    EXPECT_EQ(Values(*result), Values(*x));
    EXPECT_EQ(ShapeOf(*result), Sized(1, 4));
}

TEST(HanningNormaliz, PressesAPeakOfTwoDownToNineTenths)
{
    // 101 samples around sample 500 begin at 450: half the turn is at the peak.
    for (const double peak : {2.0, -2.0, 1.5, 40.0}) {
        const Ref<clsMatrix> x = SilenceWith(1000, 500, peak);
        const Ref<clsMatrix> result = Pressed(x, 101);
        EXPECT_NEAR(result->Real(1, 500), std::copysign(0.9, peak), 1e-14);
        EXPECT_EQ(x->Real(1, 500), peak);
    }
}

TEST(HanningNormaliz, IsANotchOfRaisedCosine)
{
    const Ref<clsMatrix> x = MakeRef<clsMatrix>();
    x->Initial_matrix(1, 1000);
    for (std::int32_t i = 1; i <= 1000; ++i)
        x->Real(1, i, 0.8);
    x->Real(1, 500, 2.0);
    const Ref<clsMatrix> result = Pressed(x, 101);
    // The gain falls from 1 to 0.45 = 1 - 0.55; halfway there it is 1 - 0.55/2.
    EXPECT_NEAR(result->Real(1, 500) / 2.0, 0.45, 1e-14);
    for (const std::int32_t i : {1, 449, 450, 550, 551, 1000})
        EXPECT_NEAR(result->Real(1, i), 0.8, 1e-14) << i;
    EXPECT_NEAR(result->Real(1, 475), 0.8 * 0.725, 1e-14);
    EXPECT_NEAR(result->Real(1, 525), 0.8 * 0.725, 1e-14);
    EXPECT_EQ(Values(*result->OutMatrix(1, 449)), Values(*x->OutMatrix(1, 449)));
    EXPECT_EQ(Values(*result->OutMatrix(552, 1000)), Values(*x->OutMatrix(552, 1000)));
}

TEST(HanningNormaliz, FollowsThePlainStepsToTheLastBit)
{
    for (const std::int32_t length : {1, 2, 10, 1024, 1025, 5000})
        for (const double samples : {4.0, 20.0, 101.0, 2000.0}) {
            SCOPED_TRACE(testing::Message() << length << " samples, notch of " << samples);
            const Ref<clsMatrix> x = UniformNoise(length, 3.0, static_cast<std::uint32_t>(length));
            EXPECT_EQ(Elements(Pressed(x, samples)->Elements()),
                      Elements(PlainSteps(x->GetRealAll(), samples, 1000)));
        }
}

TEST(HanningNormaliz, TakesTheFirstOfEqualPeaks)
{
    // Halves up to 3: there are many of each height, in one notch and far from each other.
    const Ref<clsMatrix> x = UniformNoise(5000, 3.0, 5);
    for (std::int32_t i = 1; i <= 5000; ++i)
        x->Real(1, i, std::nearbyint(2.0 * x->Real(1, i)) / 2.0);
    for (const double samples : {20.0, 101.0, 2000.0})
        EXPECT_EQ(Elements(Pressed(x, samples)->Elements()),
                  Elements(PlainSteps(x->GetRealAll(), samples, 1000)));
}

TEST(HanningNormaliz, LeavesNoPeakAboveOne)
{
    const Ref<clsMatrix> x = UniformNoise(20000, 5.0, 77);
    const std::vector<double> result = Values(*x->Hanning_Normaliz("unused", 10.0, 22050));
    EXPECT_LE(*std::max_element(result.begin(), result.end()), 1.0);
    EXPECT_GE(*std::min_element(result.begin(), result.end()), -1.0);
}

TEST(HanningNormaliz, PressesEqualPeaksOneAfterTheOther)
{
    const Ref<clsMatrix> x = SilenceWith(4000, 500, 2.0);
    x->Real(1, 2500, -2.0);
    x->Real(1, 3500, 2.0);
    const Ref<clsMatrix> result = Pressed(x, 101);
    EXPECT_NEAR(result->Real(1, 500), 0.9, 1e-14);
    EXPECT_NEAR(result->Real(1, 2500), -0.9, 1e-14);
    EXPECT_NEAR(result->Real(1, 3500), 0.9, 1e-14);
}

TEST(HanningNormaliz, WorksAtBothEnds)
{
    for (const std::int32_t place : {1, 2, 49, 151, 199, 200})
        EXPECT_LE(std::abs(Pressed(SilenceWith(200, place, 1.8), 101)->Real(1, place)), 1.0);
    EXPECT_LE(Pressed(RealMatrix({{7.0}}), 101)->Real(1, 1), 1.0);
}

TEST(HanningNormaliz, RoundsItsWindowHalfToEven)
{
    // 4.5 samples are 4, around sample 8 from 6 on: a third of a turn for each sample.
    const Ref<clsMatrix> x = SilenceWith(20, 8, 1.2);
    const double depth = 1.0 - 0.9 / 1.2;
    EXPECT_NEAR(Pressed(x, 4.5)->Real(1, 8), 1.2 * (1.0 - 0.75 * depth), 1e-14);
}

TEST(HanningNormaliz, CannotMakeAWindowOfOneSample)
{
    EXPECT_EQ(Raised([] { Pressed(SilenceWith(10, 5, 2.0), 1); }), 11);
    EXPECT_EQ(Raised([] { Pressed(SilenceWith(10, 5, 2.0), 1.4); }), 11);
}

TEST(HanningNormaliz, StopsAtAPeakThatDoesNotFall)
{
    for (const double samples : {0.0, 2.0, 2.5, -1.0, -50.0})
        EXPECT_EQ(Raised([&] { Pressed(SilenceWith(100, 50, 2.0), samples); }), 5) << samples;
    // Three samples begin at an even place: they meet an odd peak, and miss an even one.
    EXPECT_NEAR(Pressed(SilenceWith(10, 5, 2.0), 3)->Real(1, 5), 0.9, 1e-14);
    EXPECT_EQ(Raised([] { Pressed(SilenceWith(10, 6, 2.0), 3); }), 5);
    EXPECT_EQ(Raised([] { Pressed(SilenceWith(1000, 500, kInfinity), 101); }), 5);
    EXPECT_EQ(Raised([] { Pressed(SilenceWith(1000, 501, -kInfinity), 101); }), 5);
}

TEST(HanningNormaliz, DoesNotAskForItsWindowWithoutAPeak)
{
    for (const double samples : {1.0, 0.0, -5.0, 1e300})
        EXPECT_EQ(Values(*Pressed(RealMatrix({{1.0, -0.5}}), samples)),
                  (std::vector<double>{1.0, -0.5}));
}

TEST(HanningNormaliz, RaisesError6ForAWindowBeyond32Bits)
{
    EXPECT_EQ(Raised([] { Pressed(RealMatrix({{2.0}}), 3e9); }), 6);
    EXPECT_EQ(Raised([] { Pressed(RealMatrix({{2.0}}), NAN); }), 6);
}

TEST(HanningNormaliz, LetsANaNPass)
{
    const Ref<clsMatrix> x = SilenceWith(1000, 500, 2.0);
    x->Real(1, 1, NAN);
    const Ref<clsMatrix> result = Pressed(x, 101);
    EXPECT_TRUE(std::isnan(result->Real(1, 1)));
    EXPECT_NEAR(result->Real(1, 500), 0.9, 1e-14);
}

TEST(HanningNormaliz, StopsAtWhatIsNoRow)
{
    EXPECT_EQ(Raised([] { Pressed(RealMatrix({{2.0}, {0.5}}), 101); }), 9);
    EXPECT_EQ(Raised([] { Pressed(RealMatrix({{0.1, 0.2}, {0.1, 0.2}}), 101); }), 9);
    EXPECT_EQ(Raised([] { clsMatrix().Hanning_Normaliz({}, 10, 8000); }), 9);
}

} // namespace
} // namespace lumora
