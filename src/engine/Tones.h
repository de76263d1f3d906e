#pragma once

#include <cstdint>

/// The arithmetic of tone settings: whole tones and a fraction of a tone to the number that a run
/// takes, and what the engine makes of that number.
namespace lumora {

inline constexpr int kTonesPerOctave = 6;
inline constexpr double kCentsPerOctave = 1200.0;

/// Old pitch over new pitch of a setting of count + numerator / denominator tones, -6 to 6, both
/// with the sign of the change: 0.5 for an octave up, 2.0 for one down. A denominator of 0 says
/// that no fraction is in use, whatever its numerator.
double QuotientOfTones(int count, int numerator, int denominator);

/// The same of a change in octaves, and the change in cents that a quotient means.
double QuotientOfOctaves(double octaves);
double CentsOfQuotient(double Q_P);

/// The change in cents that the engine really makes of a quotient. A block of BlockLen samples is
/// stretched to a whole number K of samples and resampled back, so the pitch moves by exactly
/// K / BlockLen. The rate must be one that the engine runs at.
double CentsMade(double Q_P, std::int32_t rate_hz);

} // namespace lumora
