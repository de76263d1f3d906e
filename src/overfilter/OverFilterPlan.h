#pragma once

#include "audio/FrameRule.h"

#include <cstdint>
#include <limits>

namespace lumora {

class ClsRemoveOverPolynom;

/// A sample beyond plus or minus this part of full scale is over-driven.
inline constexpr double kOverLimit = 0.8;

/// The order of the prediction at kRuleRate, and in proportion at any other rate.
inline constexpr std::int32_t kRuleOrder = 12;

/// Sizes of the over-range filter for a rate: about 10 ms must be clean around a region of at most
/// 3.3 ms. Each is rounded to nearest, half to even. Of stereo these are interleaved samples.
struct OverFilterPlan {
    std::int16_t TrainLen = 0; ///< 220 at 22,050 Hz, 440 at 44,100, 479 at 48,000
    std::int16_t GuardLen = 0; ///<  73               147            160
    std::int16_t Order = 0;    ///<  12                24             26

    /// Error 6 where TrainLen leaves 16 bits (from 3,284,198 Hz).
    static OverFilterPlan ForRate(std::int32_t rate_hz);

    /// The rates in Hz at which the filter can be set up. Below the first the order rounds to 0
    /// (error 9); no whole rate gives half of 1.
    static constexpr std::int32_t kLowestRate = kRuleRate / (2 * kRuleOrder) + 1;
    /// Above the last the buffer, TrainLen and a third of it, passes 16 bits (error 6).
    static constexpr std::int32_t kHighestRate =
        HighestRateOfFrame(std::numeric_limits<std::int16_t>::max() * 3 / 4);
    /// The shortest sound that a run over a file takes (error 9). The longest is what a WAVE file
    /// has room for.
    static constexpr std::int64_t kLeastSamples = 1;
};

/// Sets the filter up with the plan's sizes, a decay of 1 s, an attack of 20 ms, no overshoot at
/// the start and 2.0 as its bound. Errors of SetUp outside the plan's rates.
void SetUpForRate(ClsRemoveOverPolynom& filter, std::int32_t rate_hz);

} // namespace lumora
