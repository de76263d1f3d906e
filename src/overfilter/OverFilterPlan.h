#pragma once

#include <cstdint>

namespace lumora {

class ClsRemoveOverPolynom;

/// A sample beyond plus or minus this part of full scale is over-driven.
inline constexpr double kOverLimit = 0.8;

/// Sizes of the over-range filter for a rate: about 10 ms must be clean around a region of at most
/// 3.3 ms. Each is rounded to nearest, half to even. Of stereo these are interleaved samples.
struct OverFilterPlan {
    std::int16_t TrainLen = 0; ///< 220 at 22,050 Hz, 440 at 44,100, 479 at 48,000
    std::int16_t GuardLen = 0; ///<  73               147            160
    std::int16_t Order = 0;    ///<  12                24             26

    /// Error 6 where TrainLen leaves 16 bits (from 3,284,181 Hz).
    static OverFilterPlan ForRate(std::int32_t rate_hz);
};

/// Sets the filter up with the plan's sizes, a decay of 1 s, an attack of 20 ms, no overshoot at
/// the start and 2.0 as its bound. Errors 6 (from about 2.46 MHz) and 9 (below 919 Hz) of SetUp.
void SetUpForRate(ClsRemoveOverPolynom& filter, std::int32_t rate_hz);

} // namespace lumora
