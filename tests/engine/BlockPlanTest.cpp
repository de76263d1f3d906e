#include "engine/BlockPlan.h"

#include "support/Raised.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using namespace test;

void ExpectPlan(std::int32_t rate_hz, int block_len, int coarse_step, int chunk_len)
{
    const BlockPlan plan = BlockPlan::ForRate(rate_hz);
    EXPECT_EQ(plan.BlockLen, block_len) << rate_hz;
    EXPECT_EQ(plan.CoarseStep, coarse_step) << rate_hz;
    EXPECT_EQ(plan.ChunkLen, chunk_len) << rate_hz;
    EXPECT_EQ(plan.BlocksPerChunk, 145) << rate_hz;
}

TEST(BlockPlan, HoldsTenMillisecondsABlockAndItsBlocksAChunk)
{
    ExpectPlan(22050, 220, 5, 31900);
    ExpectPlan(44100, 440, 10, 63800);
}

TEST(BlockPlan, RoundsToTheNearestAtRatesBetween)
{
    ExpectPlan(8000, 80, 2, 11600);    // 79.8 and 1.8
    ExpectPlan(11025, 110, 2, 15950);  // 110 and 2.5, half to even
    ExpectPlan(16000, 160, 4, 23200);  // 159.6 and 3.6
    ExpectPlan(32000, 319, 7, 46255);  // 319.3 and 7.3
    ExpectPlan(33075, 330, 8, 47850);  // 330 and 7.5, half to even
    ExpectPlan(48000, 479, 11, 69455); // 478.9 and 10.9
    ExpectPlan(96000, 958, 22, 138910);
    ExpectPlan(192000, 1916, 44, 277820);
}

TEST(BlockPlan, GivesAtTheEndsOfTheRangeWhatTheCoreDecidesOn)
{
    ExpectPlan(2205, 22, 0, 3190); // 0.5, half to even: the core cannot divide by it
    ExpectPlan(2206, 22, 1, 3190);
    ExpectPlan(820510, 8186, 186, 1186970);
    ExpectPlan(820511, 8187, 186, 1187115); // its buffers pass 16 bits
}

TEST(BlockPlan, RaisesWhatFallsOutBeyond)
{
    const auto raised = [](std::int32_t rate_hz) {
        return Raised([=] { BlockPlan::ForRate(rate_hz); });
    };
    EXPECT_EQ(raised(0), kDivision);
    EXPECT_EQ(raised(50), kDivision); // 0.499
    EXPECT_EQ(raised(51), 0);
    EXPECT_EQ(raised(3284145), 0); // 32766.99
    EXPECT_EQ(raised(3284250), kOverflow);
    EXPECT_EQ(raised(9761290), kOverflow) << "rate x 220 passes 32 bits";
    EXPECT_EQ(raised(2147483647), kOverflow);
}

TEST(BlockPlan, TellsWhatARunCanBeMadeOf)
{
    EXPECT_EQ(BlockPlan::kLowestRate, 2206);
    EXPECT_EQ(BlockPlan::kHighestRate, 820510);
    EXPECT_EQ(BlockPlan::LeastSamples(2206), 22);
    EXPECT_EQ(BlockPlan::LeastSamples(22050), 220);
    EXPECT_EQ(BlockPlan::LeastSamples(820510), 8186);
    EXPECT_EQ(BlockPlan::MostSamples(2206), 104529919);     // 32,768 chunks of 3190, less one
    EXPECT_EQ(BlockPlan::MostSamples(820510), 38894632959); // of 1,186,970: beyond 32 bits
}

} // namespace
} // namespace lumora
