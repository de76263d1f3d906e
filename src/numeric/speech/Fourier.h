#pragma once

#include "base/VectorWidth.h"

#include <span>

namespace lumora {

/// Discrete Fourier transform, radix 2, decimation in time (J. W. Cooley, J. W. Tukey, Math. Comp.
/// 19, 1965): element k of re + i im, from 0, becomes the sum of x(n) exp(-2 pi i k n / N). N, a
/// power of two, is the length of re and of im; either part of x is cut or padded with zeros to it.
/// The factors of a stage come by recurrence from one cosine and one sine; every factor is the
/// rounded product of the one before it, and results follow it to the last bit. Every width gives
/// the same bits.
void Fourier(std::span<const double> x_re, std::span<const double> x_im, std::span<double> re,
             std::span<double> im, VectorWidth width);

} // namespace lumora
