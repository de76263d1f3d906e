#pragma once

#include <cstdint>
#include <limits>

/// The numbers at the edge of their kinds, which every operation has to bear.
namespace lumora::test {

inline constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
inline constexpr double kInfinity = std::numeric_limits<double>::infinity();
inline constexpr double kEpsilon = std::numeric_limits<double>::epsilon();
inline constexpr std::int32_t kLeast32 = std::numeric_limits<std::int32_t>::min();
inline constexpr std::int32_t kMost32 = std::numeric_limits<std::int32_t>::max();
inline constexpr std::int64_t kLeast64 = std::numeric_limits<std::int64_t>::min();
inline constexpr std::int64_t kMost64 = std::numeric_limits<std::int64_t>::max();

} // namespace lumora::test
