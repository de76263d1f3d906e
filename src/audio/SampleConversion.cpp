#include "audio/SampleConversion.h"

#include "base/PerWidth.h"
#include "base/RunTimeError.h"
#include "base/Vectors.h"

#include <cstring>
#include <limits>

namespace lumora {

namespace {

using Masks = std::int64_t __attribute__((vector_size(32)));
using Longs = std::int32_t __attribute__((vector_size(16)));
using Shorts = std::int16_t __attribute__((vector_size(8)));
constexpr std::size_t kLanes = 4;

/// Adding and taking away 1.5 x 2^52 leaves a double of moderate size rounded to a whole number,
/// half to even, without an instruction that not every processor has.
constexpr double kRounder = 6755399441055744.0;
constexpr double kFullScale = 32768.0;
constexpr double kLowest = -32768.0;
constexpr double kHighest = 32767.0;

struct FromShorts {
    template <class V>
    [[gnu::always_inline]] static void Run(const std::int16_t* in, std::size_t count, double* out)
    {
        for (std::size_t i = 0; i < count; ++i)
            out[i] = in[i] / kFullScale;
    }
};

struct FromBytes {
    template <class V>
    [[gnu::always_inline]] static void Run(const std::uint8_t* in, std::size_t count, double* out)
    {
        for (std::size_t i = 0; i < count; ++i)
            out[i] = (in[i] - 128) / 128.0;
    }
};

/// Rounds four samples to whole numbers and notes in `outside` which do not fit, a NaN included.
[[gnu::always_inline]] inline Longs Quantise(Four samples, Masks& outside)
{
    const Four scaled = samples * kFullScale;
    const Four rounded = (scaled + kRounder) - kRounder;
    outside |= ~((rounded >= kLowest) & (rounded <= kHighest));
    return __builtin_convertvector(rounded, Longs);
}

/// One sample the same way.
[[gnu::always_inline]] inline std::int16_t Quantise(double sample, bool& fits)
{
    const double rounded = (sample * kFullScale + kRounder) - kRounder;
    const bool inside = rounded >= kLowest && rounded <= kHighest;
    fits = fits && inside;
    return inside ? static_cast<std::int16_t>(rounded) : std::int16_t{0};
}

[[gnu::always_inline]] inline bool None(Masks masks)
{
    return (masks[0] | masks[1] | masks[2] | masks[3]) == 0;
}

struct ToShorts {
    template <class V>
    [[gnu::always_inline]] static bool Run(const double* in, std::size_t count, std::int16_t* out)
    {
        Masks outside{};
        std::size_t i = 0;
        for (; i + kLanes <= count; i += kLanes) {
            const Shorts packed =
                __builtin_convertvector(Quantise(Load<Four>(in + i), outside), Shorts);
            std::memcpy(out + i, &packed, sizeof packed);
        }
        bool fits = None(outside);
        for (; i < count; ++i)
            out[i] = Quantise(in[i], fits);
        return fits;
    }
};

struct ToStereoShorts {
    template <class V>
    [[gnu::always_inline]] static bool Run(const double* left, const double* right,
                                           std::size_t count, std::int16_t* out)
    {
        Masks outside{};
        std::size_t i = 0;
        for (; i + kLanes <= count; i += kLanes) {
            const Longs l = Quantise(Load<Four>(left + i), outside);
            const Longs r = Quantise(Load<Four>(right + i), outside);
            // Left in the low half of each pair of shorts: the order of the file.
            const Longs pairs = (l & 0xFFFF) | (r << 16);
            std::memcpy(out + 2 * i, &pairs, sizeof pairs);
        }
        bool fits = None(outside);
        for (; i < count; ++i) {
            out[2 * i] = Quantise(left[i], fits);
            out[2 * i + 1] = Quantise(right[i], fits);
        }
        return fits;
    }
};

constexpr SampleKernels KernelsOf(VectorWidth width)
{
    return {PerWidth<FromShorts>::For(width), PerWidth<FromBytes>::For(width),
            PerWidth<ToShorts>::For(width), PerWidth<ToStereoShorts>::For(width)};
}

/// Each sample x scale + centre, rounded. A plain loop without a branch: compilers make vectors of
/// it.
template <class T>
void Quantise(std::span<const double> samples, double scale, double centre, std::span<T> out)
{
    constexpr double kLeast = std::numeric_limits<T>::min();
    constexpr double kMost = std::numeric_limits<T>::max();
    bool fits = true;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double rounded = (samples[i] * scale + centre + kRounder) - kRounder;
        const bool inside = rounded >= kLeast && rounded <= kMost;
        fits &= inside;
        out[i] = static_cast<T>(inside ? rounded : 0.0);
    }
    if (!fits) Raise(ErrorNumber::Overflow);
}

const SampleKernels& Kernels()
{
    static const SampleKernels& widest = SampleKernelsFor(WidestVectors());
    return widest;
}

} // namespace

const SampleKernels& SampleKernelsFor(VectorWidth width)
{
    static constexpr TablePerWidth kTables(KernelsOf);
    return kTables[width];
}

void SamplesFromShorts(std::span<const std::int16_t> shorts, std::span<double> samples)
{
    Kernels().from_shorts(shorts.data(), shorts.size(), samples.data());
}

void SamplesFromBytes(std::span<const std::uint8_t> bytes, std::span<double> samples)
{
    Kernels().from_bytes(bytes.data(), bytes.size(), samples.data());
}

void SamplesFromLongs(std::span<const std::int32_t> longs, std::span<double> samples)
{
    for (std::size_t i = 0; i < longs.size(); ++i)
        samples[i] = longs[i] / 2147483648.0;
}

void ShortsFromBytes(std::span<const std::uint8_t> bytes, std::span<std::int16_t> shorts)
{
    for (std::size_t i = 0; i < bytes.size(); ++i)
        shorts[i] = static_cast<std::int16_t>((bytes[i] - 128) * 256);
}

void ShortsFromSamples(std::span<const double> samples, std::span<std::int16_t> shorts)
{
    if (!Kernels().to_shorts(samples.data(), samples.size(), shorts.data()))
        Raise(ErrorNumber::Overflow);
}

void BytesFromSamples(std::span<const double> samples, std::span<std::uint8_t> bytes)
{
    Quantise(samples, 128.0, 128.0, bytes);
}

void LongsFromSamples(std::span<const double> samples, std::span<std::int32_t> longs)
{
    Quantise(samples, 2147483647.0, 0.0, longs);
}

void ShortsFromSamples(std::span<const double> left, std::span<const double> right,
                       std::span<std::int16_t> shorts)
{
    if (!Kernels().to_stereo_shorts(left.data(), right.data(), left.size(), shorts.data()))
        Raise(ErrorNumber::Overflow);
}

} // namespace lumora
