#pragma once

#include "numeric/Matrices.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numbers>
#include <random>
#include <vector>

namespace lumora::test {

using Sound = std::vector<double>;

/// Values as a matrix of these sizes, column by column.
inline Ref<clsMatrix> Shaped(const Sound& values, std::int32_t rows, std::int32_t columns)
{
    Ref<clsMatrix> m = MakeRef<clsMatrix>();
    m->Initial_matrix(rows, columns);
    std::size_t k = 0;
    for (std::int32_t j = 1; j <= columns; ++j)
        for (std::int32_t i = 1; i <= rows; ++i)
            m->Real(i, j, values.at(k++));
    return m;
}
inline Ref<clsMatrix> RowOf(const Sound& values)
{
    return Shaped(values, 1, static_cast<std::int32_t>(values.size()));
}
inline Ref<clsMatrix> ColumnOf(const Sound& values)
{
    return Shaped(values, static_cast<std::int32_t>(values.size()), 1);
}

/// White noise of about unit level.
inline Sound Noise(std::size_t count, std::uint32_t seed)
{
    std::mt19937 generator(seed);
    std::normal_distribution<double> normal;
    Sound noise(count);
    for (double& x : noise)
        x = normal(generator);
    return noise;
}

/// A resonance of the vocal tract.
struct Formant {
    double hz;
    double bandwidth_hz;
};

inline constexpr double kSpeechRateHz = 22050.0;

/// Predictor coefficients of resonators in a row: x(n) = a(1)*x(n-1) + a(2)*x(n-2) + ...
inline std::vector<double> PredictorOfFormants(const std::vector<Formant>& formants)
{
    std::vector<double> polynomial{1.0};
    for (const Formant& formant : formants) {
        const double radius = std::exp(-std::numbers::pi * formant.bandwidth_hz / kSpeechRateHz);
        const double turn = 2.0 * std::numbers::pi * formant.hz / kSpeechRateHz;
        const double resonator[] = {1.0, -2.0 * radius * std::cos(turn), radius * radius};
        std::vector<double> product(polynomial.size() + 2, 0.0);
        for (std::size_t i = 0; i < polynomial.size(); ++i)
            for (std::size_t j = 0; j < 3; ++j)
                product[i + j] += polynomial[i] * resonator[j];
        polynomial = product;
    }
    std::vector<double> predictor;
    for (std::size_t i = 1; i < polynomial.size(); ++i)
        predictor.push_back(-polynomial[i]);
    return predictor;
}

/// The reflection coefficients of a predictor, by the step-down recursion.
inline std::vector<double> ReflectionsOfPredictor(std::vector<double> a)
{
    std::vector<double> k(a.size());
    while (!a.empty()) {
        const std::size_t m = a.size();
        k[m - 1] = a[m - 1];
        std::vector<double> shorter(m - 1);
        for (std::size_t i = 0; i + 1 < m; ++i)
            shorter[i] = (a[i] + k[m - 1] * a[m - 2 - i]) / (1.0 - k[m - 1] * k[m - 1]);
        a = shorter;
    }
    return k;
}

/// What resonators make of an excitation.
inline Sound Resonance(const Sound& excitation, const std::vector<double>& predictor)
{
    Sound x = excitation;
    for (std::size_t n = 0; n < x.size(); ++n)
        for (std::size_t j = 1; j <= predictor.size() && j <= n; ++j)
            x[n] += predictor[j - 1] * x[n - j];
    return x;
}

inline const std::vector<Formant> kVowelA = {{730, 90}, {1090, 110}, {2440, 170}, {3400, 250}};
inline const std::vector<Formant> kVowelI = {{270, 60}, {2290, 120}, {3010, 180}, {3700, 250}};
inline const std::vector<Formant> kVowelU = {{300, 70}, {870, 100}, {2240, 170}, {3300, 250}};

/// Something like speech, within -1..1: vowels one after another, a voice whose pitch falls,
/// breath, and pauses of silence between.
inline Sound SpeechLike(std::size_t count, std::uint32_t seed)
{
    const std::vector<Formant> vowels[] = {kVowelA, kVowelI, kVowelU};
    const Sound breath = Noise(count, seed);
    Sound speech(count, 0.0);
    constexpr std::size_t kSyllable = 2500;
    constexpr std::size_t kVoiced = 2100;
    for (std::size_t begin = 0; begin < count; begin += kSyllable) {
        const std::size_t length = std::min(kVoiced, count - begin);
        Sound excitation(length, 0.0);
        std::size_t period = 110 + 7 * (begin / kSyllable % 9);
        for (std::size_t n = 0; n < length; ++n)
            excitation[n] = 0.02 * breath[begin + n] + (n % period == 0 ? 1.0 : 0.0);
        const Sound vowel =
            Resonance(excitation, PredictorOfFormants(vowels[begin / kSyllable % 3]));
        double peak = 0.0;
        for (const double x : vowel)
            peak = std::max(peak, std::abs(x));
        for (std::size_t n = 0; n < length; ++n)
            speech[begin + n] = 0.8 * vowel[n] / peak;
    }
    return speech;
}

} // namespace lumora::test
