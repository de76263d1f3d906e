#pragma once

#include <string>
#include <string_view>

namespace lumora {

/// Tone settings are whole numbers of 64ths of a tone, -384 to 384: an octave either way.
inline constexpr int kSixtyFourthsPerTone = 64;

/// Reads a tone setting exactly: an optional sign, then whole tones, a fraction, or both joined by
/// a sign: "+1", "-2-3/8", "1/64", "+2+1/2". Denominators are 2, 4, 8, 16, 32 and 64. A decimal is
/// taken where it is exactly such a fraction: "-0.25". Both signs of a joined setting must be the
/// same. UsageError for anything else and beyond six tones.
int ReadTones(std::string_view text);

/// The setting as ReadTones takes it, in lowest terms and with the unit: "+1/8 tone", "-2-3/8
/// tones".
std::string TonesText(int sixty_fourths);

} // namespace lumora
