#include "audio/SampleConversion.h"

#include "support/EdgeNumbers.h"
#include "support/Raised.h"
#include "support/VectorWidths.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>

namespace lumora {
namespace {

using namespace test;

constexpr std::size_t kLengths[] = {0, 1, 2, 3, 7, 8, 9, 15, 16, 17, 31, 33, 64, 1000};

/// Once for each width of vectors that this machine has.
class Conversion : public testing::TestWithParam<VectorWidth> {
protected:
    const SampleKernels& kernels = SampleKernelsFor(GetParam());
};
INSTANTIATE_TEST_SUITE_P(, Conversion, EveryWidth(), WidthName);

TEST_P(Conversion, OfEveryShortIsItsExactFraction)
{
    std::vector<std::int16_t> shorts;
    for (int value = -32768; value <= 32767; ++value)
        shorts.push_back(static_cast<std::int16_t>(value));
    std::vector<double> samples(shorts.size());
    kernels.from_shorts(shorts.data(), shorts.size(), samples.data());
    for (std::size_t k = 0; k < shorts.size(); ++k)
        ASSERT_EQ(samples[k], shorts[k] / 32768.0);
}

TEST_P(Conversion, OfEveryByteIsItsExactFraction)
{
    std::vector<std::uint8_t> bytes;
    for (int value = 0; value <= 255; ++value)
        bytes.push_back(static_cast<std::uint8_t>(value));
    std::vector<double> samples(bytes.size());
    kernels.from_bytes(bytes.data(), bytes.size(), samples.data());
    for (std::size_t k = 0; k < bytes.size(); ++k)
        ASSERT_EQ(samples[k], (bytes[k] - 128) / 128.0);
}

TEST_P(Conversion, ToShortsRoundsHalfToEven)
{
    std::vector<double> samples;
    std::vector<int> expected;
    // All multiples of a quarter step: the ties are those with two quarters over.
    for (int quarters = -4 * 32768 - 2; quarters <= 4 * 32767 + 1; ++quarters) {
        samples.push_back(quarters / 4.0 / 32768.0);
        const int below = static_cast<int>(std::floor(quarters / 4.0));
        const int over = quarters - 4 * below;
        expected.push_back(over > 2 || (over == 2 && below % 2 != 0) ? below + 1 : below);
    }
    std::vector<std::int16_t> shorts(samples.size());
    ASSERT_TRUE(kernels.to_shorts(samples.data(), samples.size(), shorts.data()));
    for (std::size_t k = 0; k < samples.size(); ++k)
        ASSERT_EQ(shorts[k], expected[k]) << samples[k] * 32768;
}

TEST_P(Conversion, ToShortsNoticesAMisfitWhereverItStands)
{
    for (double misfit : {1.0, -1.00002, 32767.5 / 32768, 3.0, -3.0, 1e300, -1e300, 65536.0, kNan,
                          kInfinity, -kInfinity})
        for (std::size_t length : kLengths)
            for (std::size_t place = 0; place < length; place += 1 + length / 40) {
                std::vector<double> samples(length, 0.25);
                samples[place] = misfit;
                std::vector<std::int16_t> shorts(2 * length);
                const std::vector<double> fine(length, -0.25);
                ASSERT_FALSE(kernels.to_shorts(samples.data(), length, shorts.data()))
                    << misfit << " at " << place << " of " << length;
                ASSERT_FALSE(
                    kernels.to_stereo_shorts(samples.data(), fine.data(), length, shorts.data()));
                ASSERT_FALSE(
                    kernels.to_stereo_shorts(fine.data(), samples.data(), length, shorts.data()));
            }
}

TEST_P(Conversion, ToStereoInterleavesLeftFirst)
{
    std::minstd_rand random(7);
    std::uniform_real_distribution<double> noise(-1.0, 0.9999);
    for (std::size_t length : kLengths) {
        std::vector<double> left(length), right(length);
        for (double& value : left)
            value = noise(random);
        for (double& value : right)
            value = noise(random);
        std::vector<std::int16_t> both(2 * length);
        ASSERT_TRUE(kernels.to_stereo_shorts(left.data(), right.data(), length, both.data()));
        for (std::size_t k = 0; k < length; ++k) {
            ASSERT_EQ(both[2 * k], std::nearbyint(left[k] * 32768)) << k << " of " << length;
            ASSERT_EQ(both[2 * k + 1], std::nearbyint(right[k] * 32768)) << k << " of " << length;
        }
    }
}

TEST(SamplesFromShorts, GoesThereAndBackWithoutALoss)
{
    std::vector<std::int16_t> shorts;
    for (int value = -32768; value <= 32767; ++value)
        shorts.push_back(static_cast<std::int16_t>(value));
    std::vector<double> samples(shorts.size());
    std::vector<std::int16_t> back(shorts.size());
    SamplesFromShorts(shorts, samples);
    ShortsFromSamples(samples, back);
    EXPECT_EQ(back, shorts);
}

TEST(SamplesFromBytes, HasSilenceAt128)
{
    const std::uint8_t bytes[] = {0, 64, 128, 255};
    double samples[4] = {};
    SamplesFromBytes(bytes, samples);
    EXPECT_EQ(std::vector<double>(samples, samples + 4),
              (std::vector{-1.0, -0.5, 0.0, 127.0 / 128}));
}

TEST(SamplesFromLongs, AreExactFractions)
{
    const std::int32_t longs[] = {std::numeric_limits<std::int32_t>::min(), -1, 0, 1, 1 << 30,
                                  std::numeric_limits<std::int32_t>::max()};
    double samples[6] = {};
    SamplesFromLongs(longs, samples);
    EXPECT_EQ(std::vector<double>(samples, samples + 6),
              (std::vector{-1.0, -0x1p-31, 0.0, 0x1p-31, 0.5, 1.0 - 0x1p-31}));
}

TEST(BytesFromSamples, HasSilenceAt128AndRoundsHalfToEven)
{
    const double samples[] = {-1.0,      0.0,        127.0 / 128, 0.5 / 128,
                              1.5 / 128, -0.5 / 128, 127.49 / 128};
    std::uint8_t bytes[7] = {};
    BytesFromSamples(samples, bytes);
    EXPECT_EQ(std::vector<int>(bytes, bytes + 7), (std::vector{0, 128, 255, 128, 130, 128, 255}));
}

TEST(BytesFromSamples, GoThereAndBackWithoutALoss)
{
    std::vector<std::uint8_t> bytes;
    for (int value = 0; value <= 255; ++value)
        bytes.push_back(static_cast<std::uint8_t>(value));
    std::vector<double> samples(bytes.size());
    std::vector<std::uint8_t> back(bytes.size());
    SamplesFromBytes(bytes, samples);
    BytesFromSamples(samples, back);
    EXPECT_EQ(back, bytes);
}

TEST(LongsFromSamples, HaveOneAtTheTopAndRoundHalfToEven)
{
    const double samples[] = {1.0, -1.0, 0.0, 0.5, -0.5, 0.25};
    std::int32_t longs[6] = {};
    LongsFromSamples(samples, longs);
    EXPECT_EQ(std::vector<std::int32_t>(longs, longs + 6),
              (std::vector<std::int32_t>{2147483647, -2147483647, 0, 1073741824, -1073741824,
                                         536870912}));
}

TEST(BytesAndLongsFromSamples, OverflowWhereverTheMisfitStands)
{
    for (std::size_t length : kLengths)
        for (std::size_t place = 0; place < length; place += 1 + length / 40) {
            for (double misfit : {1.5, -1.5, 1e300, -1e300, kNan, kInfinity, -kInfinity}) {
                std::vector<double> samples(length, 0.25);
                samples[place] = misfit;
                std::vector<std::uint8_t> bytes(length);
                std::vector<std::int32_t> longs(length);
                ASSERT_EQ(Raised([&] { BytesFromSamples(samples, bytes); }), 6) << misfit;
                ASSERT_EQ(Raised([&] { LongsFromSamples(samples, longs); }), 6) << misfit;
            }
        }
    const double one[] = {1.0}; // 256
    std::uint8_t byte[1] = {};
    EXPECT_EQ(Raised([&] { BytesFromSamples(one, byte); }), 6);
}

TEST(ShortsFromSamples, OverflowsInsteadOfClipping)
{
    std::int16_t shorts[4] = {};
    const double fits[] = {-1.0, 32767.0 / 32768};
    ShortsFromSamples(fits, std::span(shorts).first(2));
    EXPECT_EQ(shorts[0], -32768);
    EXPECT_EQ(shorts[1], 32767);
    const double too_loud[] = {0.0, 1.0};
    EXPECT_EQ(Raised([&] { ShortsFromSamples(too_loud, std::span(shorts).first(2)); }), 6);
    EXPECT_EQ(Raised([&] { ShortsFromSamples(fits, too_loud, shorts); }), 6);
    ShortsFromSamples(fits, fits, shorts);
    EXPECT_EQ(shorts[2], 32767);
    EXPECT_EQ(shorts[3], 32767);
}

} // namespace
} // namespace lumora
