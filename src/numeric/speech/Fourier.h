#pragma once

#include "base/VectorWidth.h"
#include "numeric/Sheets.h"

#include <cstdint>
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

/// Whether a transform is divided by its length.
enum class Scale { None, ByLength };

/// The vector x, cut or padded with zeros to n_fft elements, as a clsComplexMatrix row of its
/// transform; a part of x that has no elements is zero. An x of nothing but zeros gives a clsMatrix
/// row of n_fft zeros. Errors: 9 for what is no vector or has no elements, for n_fft below 1, and,
/// unless all is zero, for an n_fft that is no power of two, with which the stages would leave the
/// vector; 6 where finite elements overflow.
Variant Transformed(const ComplexSheet& x, std::int32_t n_fft, Scale scale);

/// A matrix as such an x. RealOf leaves the imaginary part out.
ComplexSheet RealOf(const clsMatrix& m);
ComplexSheet RealOf(const clsComplexMatrix& m);

} // namespace lumora
