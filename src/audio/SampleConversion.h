#pragma once

#include "base/VectorWidth.h"

#include <cstddef>
#include <cstdint>
#include <span>

/// Between the numbers of a file and samples from -1 to 1.
namespace lumora {

/// Each value / 32768. Both spans have one length.
void SamplesFromShorts(std::span<const std::int16_t> shorts, std::span<double> samples);

/// Each (value - 128) / 128. Both spans have one length.
void SamplesFromBytes(std::span<const std::uint8_t> bytes, std::span<double> samples);

/// Each value / 2147483648. Both spans have one length.
void SamplesFromLongs(std::span<const std::int32_t> longs, std::span<double> samples);

/// Each (value - 128) x 256: the same samples times 32768. Both spans have one length.
void ShortsFromBytes(std::span<const std::uint8_t> bytes, std::span<std::int16_t> shorts);

/// Each sample x 32768 to nearest, half to even. No clipping: error 6 for a value outside 16 bits.
/// `shorts` is as long as `samples`.
void ShortsFromSamples(std::span<const double> samples, std::span<std::int16_t> shorts);

/// The same for two channels of one length, interleaved left first into `shorts`.
void ShortsFromSamples(std::span<const double> left, std::span<const double> right,
                       std::span<std::int16_t> shorts);

/// Each sample x 128 + 128 to nearest, half to even. No clipping: error 6 for a value outside 8
/// bits. `bytes` is as long as `samples`.
void BytesFromSamples(std::span<const double> samples, std::span<std::uint8_t> bytes);

/// Each sample x 2147483647 the same way in 32 bits, so that 1.0 fits.
void LongsFromSamples(std::span<const double> samples, std::span<std::int32_t> longs);

// The same by the type of the numbers, for templates.
// clang-format off
inline void Convert(std::span<const std::uint8_t> in, std::span<double> out) { SamplesFromBytes(in, out); }
inline void Convert(std::span<const std::int16_t> in, std::span<double> out) { SamplesFromShorts(in, out); }
inline void Convert(std::span<const std::int32_t> in, std::span<double> out) { SamplesFromLongs(in, out); }
inline void Convert(std::span<const double> in, std::span<std::uint8_t> out) { BytesFromSamples(in, out); }
inline void Convert(std::span<const double> in, std::span<std::int16_t> out) { ShortsFromSamples(in, out); }
inline void Convert(std::span<const double> in, std::span<std::int32_t> out) { LongsFromSamples(in, out); }
// clang-format on

/// The kernels behind them, for one width of vectors.
struct SampleKernels {
    void (*from_shorts)(const std::int16_t* in, std::size_t count, double* out);
    void (*from_bytes)(const std::uint8_t* in, std::size_t count, double* out);
    /// False if a value did not fit; `out` holds unusable numbers then.
    bool (*to_shorts)(const double* in, std::size_t count, std::int16_t* out);
    bool (*to_stereo_shorts)(const double* left, const double* right, std::size_t count,
                             std::int16_t* out);
};
const SampleKernels& SampleKernelsFor(VectorWidth width);

} // namespace lumora
