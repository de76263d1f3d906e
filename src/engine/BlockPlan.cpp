#include "engine/BlockPlan.h"

#include "audio/FrameRule.h"
#include "base/Numbers.h"

namespace lumora {

BlockPlan BlockPlan::ForRate(std::int32_t rate_hz)
{
    BlockPlan plan;
    plan.BlockLen = FrameLength(rate_hz);
    plan.ChunkLen = plan.BlockLen * kBlocksPerChunk;
    plan.BlocksPerChunk = CInt(Divide(plan.ChunkLen, plan.BlockLen));
    plan.CoarseStep = CInt(rate_hz * 5.0 / 22050.0);
    return plan;
}

} // namespace lumora
