#pragma once

#include "platform/FaultText.h"

#include <cstdint>
#include <string>
#include <vector>

namespace lumora {

/// "4.350 s", "3:25.120", "1:00:00.000".
std::string LengthText(std::int64_t samples, std::int32_t rate_hz);
/// "219 samples (9.93 ms)".
std::string SamplesText(std::int64_t samples, std::int32_t rate_hz);
/// "+25.00", "-0.13", "0.00".
std::string CentsText(double cents);
/// The gain in dB of a division by `divisor`.
double GainDb(double divisor);
/// "divided by up to 1.250 (-1.94 dB)".
std::string GainText(double divisor);
/// "pitch, declip and info", where `last` is "and".
std::string Listed(const std::vector<std::string>& words, const std::string& last);

} // namespace lumora
