#include "overfilter/OverFilterPlan.h"

#include "base/Numbers.h"
#include "overfilter/ClsRemoveOverPolynom.h"

namespace lumora {

OverFilterPlan OverFilterPlan::ForRate(std::int32_t rate_hz)
{
    OverFilterPlan plan;
    plan.TrainLen = FrameLength(rate_hz);
    plan.GuardLen = CInt(plan.TrainLen / 3.0);
    plan.Order = CInt(double{kRuleOrder} * rate_hz / kRuleRate);
    return plan;
}

void SetUpForRate(ClsRemoveOverPolynom& filter, std::int32_t rate_hz)
{
    constexpr double kDecaySeconds = 1.0;
    constexpr double kAttackSeconds = 0.02;
    constexpr double kExcessMax = 2.0;
    const OverFilterPlan plan = OverFilterPlan::ForRate(rate_hz);
    filter.SetUp(plan.GuardLen, plan.TrainLen, kDecaySeconds, kAttackSeconds, plan.Order, rate_hz,
                 0.0, kExcessMax);
}

} // namespace lumora
