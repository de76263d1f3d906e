#include "numeric/Sounds.h"
#include "support/EdgeNumbers.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace lumora {
namespace {

using namespace test;

using Member = Ref<clsMatrix> (clsMatrix::*)(double) const;
constexpr Member kLinear = &clsMatrix::Compression_Expansion;
constexpr Member kToLength = &clsMatrix::Compression_ExpansionPrec;
constexpr Member kPicking = &clsMatrix::Compression_Expansion_Matrix;

Sound Resampled(const Sound& x, Member member, double koef)
{
    return Values(*((*RowOf(x)).*member)(koef));
}

/// The plain loop between neighbours, counting from 1.
Sound PlainLinear(const Sound& x, double koef, double length)
{
    Sound out{x.at(0)};
    const double r = 1.0 / std::abs(koef);
    for (int i = 2; i <= length; ++i) {
        const double pos = (i - 1) * r + 1.0;
        const double p = std::floor(pos);
        const auto at = static_cast<std::size_t>(p);
        out.push_back(at + 1 > x.size() ? x.at(at - 1)
                                        : (x.at(at) - x.at(at - 1)) * (pos - p) + x.at(at - 1));
    }
    return out;
}

Sound PlainPicking(const Sound& x, double koef)
{
    Sound out;
    const double r = 1.0 / koef;
    for (int i = 1; i <= std::floor(static_cast<double>(x.size()) * koef); ++i) {
        const double pos = i * r;
        const double whole = std::floor(pos);
        const double index = koef < 1.0 || pos == whole ? whole : whole + 1.0;
        out.push_back(x.at(static_cast<std::size_t>(index) - 1));
    }
    return out;
}

TEST(Compression, IsThePlainLoopBitForBit)
{
    constexpr std::uint32_t kSeed = 4911;
    std::mt19937 generator(kSeed);
    std::uniform_real_distribution<double> factor(0.02, 5.0);
    for (int round = 0; round < 400; ++round) {
        const double koef = round % 3 == 0 ? 0.25 * (1 + round % 20) : factor(generator);
        const Sound x = Noise(1 + generator() % 90, kSeed + static_cast<std::uint32_t>(round));
        const auto n = static_cast<double>(x.size());
        SCOPED_TRACE("seed " + std::to_string(kSeed) + ", koef " + std::to_string(koef) +
                     ", samples " + std::to_string(x.size()));
        const Sound linear = PlainLinear(x, koef, std::floor(koef * (n - 1.0) + 1.0));
        EXPECT_EQ(Resampled(x, kLinear, koef), linear);
        EXPECT_EQ(Resampled(x, kLinear, -koef), linear);
        if (std::nearbyint(koef * n) >= 1.0) {
            const Sound to_length = PlainLinear(x, koef, std::nearbyint(koef * n));
            EXPECT_EQ(Resampled(x, kToLength, koef), to_length);
            EXPECT_EQ(Resampled(x, kToLength, -koef), to_length);
        }
        if (std::floor(koef * n) >= 1.0) {
            EXPECT_EQ(Resampled(x, kPicking, koef), PlainPicking(x, koef));
        }
    }
}

TEST(Compression, ByOneIsACopy)
{
    for (std::size_t n = 1; n < 40; ++n) {
        const Sound x = Noise(n, 1);
        for (const Member member : {kLinear, kToLength, kPicking})
            EXPECT_EQ(Resampled(x, member, 1.0), x);
    }
}

TEST(Compression, KeepsAStraightLineStraight)
{
    Sound line(50);
    for (std::size_t n = 0; n < line.size(); ++n)
        line[n] = 3.0 - 0.5 * static_cast<double>(n);
    for (const double koef : {0.3, 0.77, 1.5, 4.0}) {
        const Sound out = Resampled(line, kLinear, koef);
        for (std::size_t i = 0; i < out.size(); ++i)
            EXPECT_NEAR(out[i], 3.0 - 0.5 * static_cast<double>(i) / koef, 1e-12);
    }
}

TEST(CompressionExpansion, KeepsEverySecondSampleOrFillsMidpoints)
{
    EXPECT_EQ(Resampled({1, 2, 4, 8, 16}, kLinear, 0.5), (Sound{1, 4, 16}));
    EXPECT_EQ(Resampled({1, 2, 4}, kLinear, 2.0), (Sound{1, 1.5, 2, 3, 4}));
    // At least one sample is left.
    EXPECT_EQ(Resampled({1, 2, 4}, kLinear, 1e-300), Sound{1});
    EXPECT_EQ(Resampled({1}, kLinear, std::numeric_limits<double>::denorm_min()), Sound{1});
    EXPECT_EQ(Resampled({7}, kLinear, 1000.0), Sound{7});
}

TEST(CompressionExpansionPrec, RepeatsTheLastSample)
{
    EXPECT_EQ(Resampled({1, 2, 4}, kToLength, 2.0), (Sound{1, 1.5, 2, 3, 4, 4}));
    EXPECT_EQ(Resampled({7}, kToLength, 3.0), (Sound{7, 7, 7}));
}

TEST(CompressionExpansionPrec, RoundsTheLengthHalvesToEven)
{
    EXPECT_EQ(Resampled(Sound(5), kToLength, 0.5).size(), 2U);
    EXPECT_EQ(Resampled(Sound(7), kToLength, 0.5).size(), 4U);
    EXPECT_EQ(Resampled(Sound(3), kToLength, 0.9).size(), 3U);
}

TEST(CompressionExpansionMatrix, PicksSamplesAtOrBeforeOrAfter)
{
    EXPECT_EQ(Resampled({1, 2, 3, 4, 5, 6}, kPicking, 0.5), (Sound{2, 4, 6}));
    EXPECT_EQ(Resampled({1, 2, 3, 4, 5}, kPicking, 0.4), (Sound{2, 5}));
    EXPECT_EQ(Resampled({1, 2, 3, 4}, kPicking, 0.75), (Sound{1, 2, 4}));
    EXPECT_EQ(Resampled({1, 2, 3}, kPicking, 2.0), (Sound{1, 1, 2, 2, 3, 3}));
    EXPECT_EQ(Resampled({1, 2, 3}, kPicking, 1.5), (Sound{1, 2, 2, 3}));
}

TEST(CompressionExpansionMatrix, StopsWhereRoundingLeavesTheVector)
{
    // What the last position should be, and what 1/koef makes of it.
    struct Case {
        double koef;
        std::size_t length;
    };
    for (const Case& c : {Case{75.0, 7}, Case{91.0, 3}}) {
        ASSERT_GT(c.koef * static_cast<double>(c.length) * (1.0 / c.koef),
                  static_cast<double>(c.length));
        EXPECT_EQ(Raised([&] { Resampled(Sound(c.length, 1.0), kPicking, c.koef); }), 9);
        EXPECT_EQ(Resampled(Sound(c.length - 1, 1.0), kPicking, c.koef).size(),
                  static_cast<std::size_t>(c.koef) * (c.length - 1));
    }
}

TEST(Compression, KeepsTheShape)
{
    for (const Member member : {kLinear, kToLength, kPicking}) {
        EXPECT_EQ(ShapeOf(*((*RowOf(Sound(6))).*member)(0.5)), Sized(1, 3));
        EXPECT_EQ(ShapeOf(*((*ColumnOf(Sound(6))).*member)(0.5)), Sized(3, 1));
        EXPECT_EQ(ShapeOf(*((*Shaped(Sound(30), 6, 5)).*member)(0.5)), Sized(3, 5));
        EXPECT_EQ(ShapeOf(*((*Shaped(Sound(10), 2, 5)).*member)(0.5)), Sized(1, 5));
    }
}

TEST(Compression, OfAMatrixIsThatOfEachColumn)
{
    const Sound x = Noise(60, 4912);
    const Ref<clsMatrix> matrix = Shaped(x, 12, 5);
    for (const Member member : {kLinear, kToLength, kPicking})
        for (const double koef : {0.35, 0.9, 1.0, 1.7, 3.0}) {
            const Ref<clsMatrix> out = ((*matrix).*member)(koef);
            for (std::int32_t j = 1; j <= 5; ++j) {
                const Sound column(x.begin() + (j - 1) * 12, x.begin() + j * 12);
                EXPECT_EQ(Values(*out->OutMatrix(1, j, out->size1, j)),
                          Resampled(column, member, koef));
            }
        }
    EXPECT_EQ(Values(*matrix), x);
}

TEST(Compression, ByNothingIsAMessageAndMinusOne)
{
    struct Case {
        Member member;
        double koef;
        std::size_t length;
        const char* text;
    };
    const Case cases[] = {
        {kLinear, 0.0, 5, "Koef for Compression-Expansion equal zero"},
        {kLinear, -0.0, 5, "Koef for Compression-Expansion equal zero"},
        {kToLength, 0.0, 5, "Koef for Compression-Expansion equal zero"},
        {kToLength, 0.1, 5, "Koef for Compression-Expansion it is  very Small"},
        {kToLength, -0.5, 1, "Koef for Compression-Expansion it is  very Small"},
        {kPicking, 0.0, 5, "Koef for Compression-Expansion_Matrix equal zero"},
        {kPicking, 0.19, 5, "Koef for Compression-Expansion_Matrix it is  very Small"},
        {kPicking, -1.0, 5, "Koef for Compression-Expansion_Matrix it is  very Small"},
        {kPicking, -kInfinity, 5, "Koef for Compression-Expansion_Matrix it is  very Small"},
    };
    for (const Case& c : cases) {
        MessageRecorder messages(MessageAnswer::Cancel);
        const Ref<clsMatrix> result = ((*ColumnOf(Sound(c.length))).*c.member)(c.koef);
        EXPECT_EQ(messages.shown, Shown{Plain(c.text)});
        EXPECT_EQ(ShapeOf(*result), Sized(1, 1));
        EXPECT_EQ(Values(*result), Sound{-1});
    }
}

TEST(Compression, StopsAtMoreSamplesThanCanBeCounted)
{
    for (const Member member : {kLinear, kToLength, kPicking}) {
        EXPECT_EQ(Raised([&] { Resampled(Sound(3), member, 2e9); }), 6);
        EXPECT_EQ(Raised([&] { Resampled(Sound(3), member, kInfinity); }), 6);
        EXPECT_EQ(Raised([&] { Resampled(Sound(3), member, kNan); }), 6);
        EXPECT_EQ(Raised([&] { ((*MakeRef<clsMatrix>()).*member)(1.0); }), 9);
    }
}

TEST(Compression, OverflowBetweenNeighboursIsAnErrorUnlessTheyAreNoNumbers)
{
    EXPECT_EQ(Raised([] { Resampled({1.7e308, -1.7e308}, kLinear, 2.0); }), 6);
    EXPECT_EQ(Raised([] { Resampled({1.7e308, -1.7e308}, kToLength, 2.0); }), 6);
    const Sound passed = Resampled({0, kInfinity, 0, 2}, kLinear, 2.0);
    EXPECT_EQ(passed[1], kInfinity);
    EXPECT_EQ(passed[5], 1.0);
}

} // namespace
} // namespace lumora
