#include "engine/BlockPlan.h"

#include "base/Numbers.h"

namespace lumora {

BlockPlan BlockPlan::ForRate(std::int32_t rate_hz)
{
    BlockPlan plan;
    plan.BlockLen = FrameLength(rate_hz);
    plan.ChunkLen = plan.BlockLen * kBlocksPerChunk;
    plan.BlocksPerChunk = CInt(Divide(plan.ChunkLen, plan.BlockLen));
    plan.CoarseStep = CInt(rate_hz * double{kRuleStep} / kRuleRate);
    return plan;
}

std::int64_t BlockPlan::LeastSamples(std::int32_t rate_hz)
{
    return ForRate(rate_hz).BlockLen;
}

std::int64_t BlockPlan::MostSamples(std::int32_t rate_hz)
{
    constexpr std::int64_t kMostChunks = std::numeric_limits<std::int16_t>::max();
    return (kMostChunks + 1) * ForRate(rate_hz).ChunkLen - 1;
}

} // namespace lumora
