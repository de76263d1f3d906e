#include "engine/Tones.h"

#include "audio/FrameRule.h"
#include "base/Numbers.h"

#include <cmath>

namespace lumora {

double QuotientOfTones(int count, int numerator, int denominator)
{
    constexpr double kTones = kTonesPerOctave;
    const double fraction = denominator == 0 ? 0.0 : -numerator / (denominator * kTones);
    return std::pow(2.0, fraction + -count / kTones);
}

double QuotientOfOctaves(double octaves)
{
    return std::pow(2.0, -octaves);
}

double CentsOfQuotient(double Q_P)
{
    return -kCentsPerOctave * std::log2(Q_P);
}

double CentsMade(double Q_P, std::int32_t rate_hz)
{
    const double block_len = FrameLength(rate_hz);
    return kCentsPerOctave * std::log2(Round(block_len * (1.0 / Q_P)) / block_len);
}

} // namespace lumora
