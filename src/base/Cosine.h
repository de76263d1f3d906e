#pragma once

namespace lumora {

/// Cosine of `radians` (0 to 100), rounded to nearest: the mathematics' own value to the last bit,
/// but for arguments whose cosine lies within 2^-95 or so of a tie. A library's cosine depends on
/// its version and on the processor it meets; this one does not.
double Cosine(double radians);

/// Sine, as true.
double Sine(double radians);

} // namespace lumora
