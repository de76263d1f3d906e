#pragma once

#include "audio/SampleConversion.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numbers>
#include <random>
#include <vector>

namespace lumora::bench {

inline constexpr double kRateHz = 44100.0;

/// Values of a decaying three-note chord with some noise, struck anew every half second, at
/// 44,100 Hz: neither silence nor strictly periodic, as both are special to the search.
inline std::vector<std::int16_t> ChordShorts(std::size_t count)
{
    constexpr std::size_t kStroke = 22050;
    constexpr double kChordHz[] = {196.0, 246.9, 329.6};
    std::minstd_rand noise(1);
    std::uniform_real_distribution<double> hiss(-0.03, 0.03);
    std::vector<std::int16_t> values(count);
    for (std::size_t i = 0; i < count; ++i) {
        const double t = static_cast<double>(i % kStroke) / kRateHz;
        double sample = hiss(noise);
        for (const double hz : kChordHz)
            for (int partial = 1; partial <= 6; ++partial)
                sample += 0.12 / partial * std::exp(-t * partial) *
                          std::sin(2.0 * std::numbers::pi * hz * partial * t);
        values[i] = static_cast<std::int16_t>(std::lround(sample * 32000.0));
    }
    return values;
}

/// The same as samples, exact multiples of 2^-15.
inline std::vector<double> ChordSamples(std::size_t count)
{
    const std::vector<std::int16_t> values = ChordShorts(count);
    std::vector<double> samples(count);
    SamplesFromShorts(values, samples);
    return samples;
}

} // namespace lumora::bench
