#pragma once

#include <cstdint>
#include <string>

namespace lumora {

/// A sound, as far as it matters to what can be done with it.
struct SoundShape {
    std::int32_t rate_hz = 0;
    std::int32_t channels = 0;
    std::int64_t samples = 0;          ///< per channel
    std::int32_t bytes_per_sample = 2; ///< as the engine reads it
};

/// What one kind of work can be done on, asked ahead of a run so that nobody meets a bare run-time
/// error.
struct RunLimits {
    std::int32_t lowest_rate_hz;
    std::int32_t highest_rate_hz;
    /// Samples of the longest sound that runs.
    std::int64_t (*most_samples)(const SoundShape& sound);
    /// Why a sound is too short, as one line; empty if it is not.
    std::string (*too_short)(const SoundShape& sound);
};
extern const RunLimits kPitchLimits;
extern const RunLimits kDeclipLimits;

/// Why such a sound cannot be worked on and what to do about it, as one line; empty if it can.
std::string LimitFault(const RunLimits& limits, const SoundShape& sound);
/// The same for all but too short a sound: for files that do not tell their length.
std::string LimitFaultButLength(const RunLimits& limits, const SoundShape& sound);

} // namespace lumora
