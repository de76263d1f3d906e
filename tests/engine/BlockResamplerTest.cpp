#include "engine/BlockResampler.h"

#include "engine/PlainResampler.h"
#include "engine/SoundKinds.h"
#include "support/Arrays.h"
#include "support/Raised.h"

#include <bit>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace lumora {
namespace {

using namespace test;
using Numbers = std::vector<double>;

Numbers Resampled(BlockResampler& resampler, const Numbers& source, double rate)
{
    Numbers dest(static_cast<std::size_t>(BlockResampler::LengthFor(source.size(), rate)));
    resampler.Resample(source, rate, dest);
    return dest;
}

TEST(BlockResampler, GivesTheBitsOfThePlainOne)
{
    test::Generator generator(3);
    std::uniform_real_distribution<double> uniform(-1.0, 1.0);
    for (VectorWidth width : VectorWidths()) {
        BlockResampler fast(width);
        PlainResampler plain;
        for (int round = 0; round < 3000; ++round) {
            // Each length some blocks long, as in a run; from all of a block to four of them.
            const int block = 22 + round / 10;
            const int n = test::Between(generator, 0, 3) == 0
                              ? block
                              : test::Between(generator, 5, 2 * block);
            Numbers source(static_cast<std::size_t>(n));
            for (double& sample : source)
                sample = uniform(generator);
            const double rate = static_cast<double>(block) / n;
            const Numbers expected = plain.Resample(source, rate);
            const Numbers dest = Resampled(fast, source, rate);
            ASSERT_EQ(dest.size(), expected.size());
            for (std::size_t i = 0; i < dest.size(); ++i)
                ASSERT_EQ(std::bit_cast<std::uint64_t>(dest[i]),
                          std::bit_cast<std::uint64_t>(expected[i]))
                    << "from " << n << " to " << block << ", sample " << i + 1;
        }
    }
}

TEST(BlockResampler, IsAnIdentityAtRateOne)
{
    BlockResampler resampler;
    Resampled(resampler, {0.75}, 1.0);
    const Numbers block{0.1, -0.2, 0.3, 0.7, -1.0};
    EXPECT_EQ(Resampled(resampler, block, 1.0), block);
    EXPECT_EQ(Resampled(resampler, {0.5}, 1.0), Numbers{0.5});
}

TEST(BlockResampler, StartsAStretchedBlockFromTheLastSampleOfTheOneBefore)
{
    BlockResampler resampler;
    EXPECT_EQ(Resampled(resampler, {4.0, 8.0}, 2.0), (Numbers{2.0, 4.0, 6.0, 8.0})) << "from zero";
    EXPECT_EQ(Resampled(resampler, {4.0, 8.0}, 2.0), (Numbers{6.0, 4.0, 6.0, 8.0})) << "from 8";
    EXPECT_EQ(Resampled(resampler, {0.0}, 4.0), (Numbers{6.0, 4.0, 2.0, 0.0})) << "from 8";
}

TEST(BlockResampler, KeepsItsLastSampleThroughBlocksThatDoNotStartFromIt)
{
    BlockResampler resampler;
    EXPECT_EQ(Resampled(resampler, {1.0, 2.0, 3.0, 16.0}, 0.5), (Numbers{2.0, 16.0}));
    EXPECT_EQ(Resampled(resampler, {0.0, 0.0}, 2.0), (Numbers{8.0, 0.0, 0.0, 0.0}));
}

TEST(BlockResampler, PutsTheFirstWholeSamplesBeforeTheSourceAtAFractionalRate)
{
    // Rate 2.5: two samples lie before the source's first, at 0.4 and 0.8 of the way.
    BlockResampler resampler;
    const Numbers dest = Resampled(resampler, {1.0, 2.0}, 2.5);
    ASSERT_EQ(dest.size(), 5U);
    EXPECT_DOUBLE_EQ(dest[0], 0.4);
    EXPECT_DOUBLE_EQ(dest[1], 0.8);
    EXPECT_DOUBLE_EQ(dest[2], 1.2);
    EXPECT_DOUBLE_EQ(dest[3], 1.6);
    EXPECT_EQ(dest[4], 2.0);
}

TEST(BlockResampler, RoundsItsLengthHalfToEven)
{
    EXPECT_EQ(BlockResampler::LengthFor(10, 0.25), 2);
    EXPECT_EQ(BlockResampler::LengthFor(10, 0.35), 4);
    EXPECT_EQ(BlockResampler::LengthFor(10, 0.45), 4);
    EXPECT_EQ(BlockResampler::LengthFor(5, 0.5), 2);
    EXPECT_EQ(BlockResampler::LengthFor(7, 0.5), 4);
    EXPECT_EQ(BlockResampler::LengthFor(1, 2147483647.0), 2147483647);
    EXPECT_EQ(Raised([] { BlockResampler::LengthFor(1, 2147483648.0); }), kOverflow);
    EXPECT_EQ(Raised([] { BlockResampler::LengthFor(2, 1e300); }), kOverflow);
    EXPECT_EQ(
        Raised([] { BlockResampler::LengthFor(2, std::numeric_limits<double>::quiet_NaN()); }),
        kOverflow);
}

TEST(BlockResampler, RefusesWhatMakesNoBlock)
{
    BlockResampler resampler;
    Numbers three(3);
    const Numbers two{0.5, 0.25};
    EXPECT_EQ(Raised([&] { resampler.Resample({}, 1.0, three); }), kSubscript);
    EXPECT_EQ(Raised([&] { resampler.Resample(two, 1.0, three); }), kSubscript) << "length";
    EXPECT_EQ(Raised([&] { resampler.Resample(two, 0.1, {}); }), kSubscript) << "no result";
    EXPECT_EQ(Raised([&] { resampler.Resample(two, 1.5, three); }), 0);
}

TEST(BlockResampler, RefusesARateThatIsNotAboveZero)
{
    BlockResampler resampler;
    Numbers dest(1);
    for (double rate : {0.0, -0.0, -1.0})
        EXPECT_EQ(Raised([&] { resampler.Resample(Numbers{1.0}, rate, dest); }), kSubscript);
}

TEST(ResampleBlock, AllocatesItsResultFromOne)
{
    Array<double> dest;
    ResampleBlock(Row({0.5, 0.25}), 1.5, dest);
    EXPECT_EQ(dest.LBound(), 1);
    EXPECT_EQ(dest.UBound(), 3);
    ResampleBlock(Row({0.5, 0.25}), 1.0, dest);
    EXPECT_EQ(Elements(dest), (Numbers{0.5, 0.25}));
}

TEST(ResampleBlock, KeepsOneLastSampleForTheWholeProcess)
{
    Array<double> dest;
    ResampleBlock(Row({8.0}), 1.0, dest);
    ResampleBlock(Row({0.0, 0.0}), 2.0, dest);
    EXPECT_EQ(Elements(dest), (Numbers{4.0, 0.0, 0.0, 0.0}));

    ResampleBlock(Row({8.0}), 1.0, dest);
    EXPECT_EQ(Resampled(ProcessResampler(), {0.0, 0.0}, 2.0), (Numbers{4.0, 0.0, 0.0, 0.0}));

    ResampleBlock(Row({8.0}), 1.0, dest);
    BlockResampler own;
    EXPECT_EQ(Resampled(own, {0.0, 0.0}, 2.0), (Numbers{0.0, 0.0, 0.0, 0.0})) << "one of its own";
}

TEST(ResampleBlock, RefusesWhatMakesNoBlock)
{
    Array<double> dest;
    EXPECT_EQ(Raised([&] { ResampleBlock(Array<double>(), 1.0, dest); }), kSubscript);
    EXPECT_EQ(Raised([&] { ResampleBlock(Row({1.0}), 0.2, dest); }), kSubscript);
    EXPECT_EQ(Raised([&] { ResampleBlock(Row({1.0}), 3e9, dest); }), kOverflow);
}

} // namespace
} // namespace lumora
