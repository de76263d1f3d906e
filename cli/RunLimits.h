#pragma once

#include <cstdint>
#include <string>

namespace lumora {

/// What the engine can run, asked ahead of a run so that nobody meets a bare run-time error.
struct SoundShape {
    std::int32_t rate_hz = 0;
    std::int32_t channels = 0;
    std::int64_t samples = 0; ///< per channel
};

/// Why the engine cannot change the pitch of such a sound and what to do about it, as one line;
/// empty where it can.
std::string LimitFault(const SoundShape& sound);
/// The same for all but too short a sound: for files that do not tell their length.
std::string LimitFaultButLength(const SoundShape& sound);

} // namespace lumora
