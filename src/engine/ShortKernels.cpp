#include "engine/ShortKernels.h"

#if defined(__x86_64__)
#include <immintrin.h>
#endif

#include <algorithm>
#include <cstring>

namespace lumora {

#if defined(__x86_64__)
namespace {

#define LUMORA_AVX2 [[gnu::target("avx2")]]

constexpr std::size_t kGroup = ShortKernels::kGroup;
constexpr double kUnit = 1.0 / 32768.0;
constexpr double kSquareUnit = kUnit * kUnit;

using Shorts = std::int16_t;

LUMORA_AVX2 inline __m256i Load(const Shorts* from)
{
    return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(from));
}

LUMORA_AVX2 inline __m256i Widened(__m256i ints)
{
    return _mm256_add_epi64(_mm256_cvtepi32_epi64(_mm256_castsi256_si128(ints)),
                            _mm256_cvtepi32_epi64(_mm256_extracti128_si256(ints, 1)));
}

LUMORA_AVX2 inline std::int64_t Total(__m256i longs)
{
    const __m128i pair =
        _mm_add_epi64(_mm256_castsi256_si128(longs), _mm256_extracti128_si256(longs, 1));
    return _mm_cvtsi128_si64(pair) + _mm_extract_epi64(pair, 1);
}

/// Four shifts over all of the target. Each lane sums pairs of products, which may wrap, and beside
/// it their high halves; what the sum has beyond those is the sum of the low halves, so the whole
/// comes back in 64 bits.
constexpr std::size_t kShiftsAtOnce = 4;

LUMORA_AVX2 void CorrelateFour(const Shorts* x, const Shorts* y, std::size_t padded, double* cross)
{
    __m256i all[kShiftsAtOnce];
    __m256i high[kShiftsAtOnce];
    for (std::size_t s = 0; s < kShiftsAtOnce; ++s)
        all[s] = high[s] = _mm256_setzero_si256();
#pragma GCC unroll 2
    for (std::size_t i = 0; i < padded; i += kGroup) {
        const __m256i target = Load(y + i);
        for (std::size_t s = 0; s < kShiftsAtOnce; ++s) {
            const __m256i pairs = _mm256_madd_epi16(target, Load(x + i + s));
            all[s] = _mm256_add_epi32(all[s], pairs);
            high[s] = _mm256_add_epi32(high[s], _mm256_srai_epi32(pairs, 16));
        }
    }
    for (std::size_t s = 0; s < kShiftsAtOnce; ++s) {
        const __m256i low = _mm256_sub_epi32(all[s], _mm256_slli_epi32(high[s], 16));
        const std::int64_t sum = Total(Widened(high[s])) * 65536 + Total(Widened(low));
        cross[s] = static_cast<double>(sum) * kSquareUnit;
    }
}

/// Sum and sum of squares of whole groups. A sum of two squares is an unsigned 32-bit number; its
/// halves are summed apart.
struct Moments {
    std::int64_t sum = 0;
    std::int64_t squares = 0;
};

LUMORA_AVX2 Moments MomentsOf(const Shorts* values, std::size_t padded)
{
    const __m256i low_half = _mm256_set1_epi32(0xFFFF);
    __m256i sum = _mm256_setzero_si256();
    __m256i low = _mm256_setzero_si256();
    __m256i high = _mm256_setzero_si256();
    for (std::size_t i = 0; i < padded; i += kGroup) {
        const __m256i v = Load(values + i);
        const __m256i squares = _mm256_madd_epi16(v, v);
        sum = _mm256_add_epi32(sum, _mm256_madd_epi16(v, _mm256_set1_epi16(1)));
        low = _mm256_add_epi32(low, _mm256_and_si256(squares, low_half));
        high = _mm256_add_epi32(high, _mm256_srli_epi32(squares, 16));
    }
    return {Total(Widened(sum)), Total(Widened(high)) * 65536 + Total(Widened(low))};
}

/// The window may go on behind `count`, so its last group is looked at apart.
LUMORA_AVX2 Moments MomentsOfWindow(const Shorts* window, std::size_t count)
{
    const std::size_t whole = count / kGroup * kGroup;
    Shorts rest[kGroup] = {};
    std::memcpy(rest, window + whole, (count - whole) * sizeof(Shorts));
    const Moments front = MomentsOf(window, whole);
    const Moments back = MomentsOf(rest, kGroup);
    return {front.sum + back.sum, front.squares + back.squares};
}

LUMORA_AVX2 void Correlate(const Shorts* x, const Shorts* y, std::size_t count, std::size_t shifts,
                           double* cross, WindowSums& sums)
{
    const std::size_t padded = (count + kGroup - 1) / kGroup * kGroup;
    for (std::size_t k = 0; k < shifts; k += kShiftsAtOnce)
        CorrelateFour(x + k, y, padded, cross + k);
    const Moments of_x = MomentsOfWindow(x, count);
    const Moments of_y = MomentsOf(y, padded);
    sums = {static_cast<double>(of_x.sum) * kUnit, static_cast<double>(of_y.sum) * kUnit,
            static_cast<double>(of_x.squares) * kSquareUnit,
            static_cast<double>(of_y.squares) * kSquareUnit};
}

#undef LUMORA_AVX2

constexpr ShortKernels kAvx2{Correlate};

} // namespace

const ShortKernels* ShortKernelsFor(VectorWidth width)
{
    return width == VectorWidth::Baseline ? nullptr : &kAvx2;
}

#else

const ShortKernels* ShortKernelsFor(VectorWidth)
{
    return nullptr;
}

#endif

} // namespace lumora
