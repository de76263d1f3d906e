#pragma once

#include "engine/PlainResampler.h"
#include "engine/PlainWsola.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <vector>

namespace lumora::test {

/// Channels of samples as they stand in a file of 16 bits.
using Sound = std::vector<std::vector<std::int16_t>>;

inline int PlainBlockLength(int rate_hz)
{
    return static_cast<int>(std::nearbyint(rate_hz * 220.0 / 22050.0));
}

inline std::int16_t PlainQuantised(double sample)
{
    const double value = std::nearbyint(sample * 32768.0);
    if (value < -32768 || value > 32767) throw std::overflow_error("beyond 16 bits");
    return static_cast<std::int16_t>(value);
}

/// A whole run over samples in memory: stretch, resample and quantise, block by block and within a
/// block channel by channel.
inline Sound PlainRun(const Sound& input, int rate_hz, double Q_P, PlainResampler& resampler)
{
    const int N = PlainBlockLength(rate_hz);
    const int S = static_cast<int>(std::nearbyint(rate_hz * 5.0 / 22050.0));
    std::vector<PlainWsola> cores(input.size(), PlainWsola(N, S, 20));
    const std::size_t blocks = input.at(0).size() / static_cast<std::size_t>(N);
    Sound output(input.size());
    for (std::size_t j = 0; j < blocks; ++j)
        for (std::size_t channel = 0; channel < input.size(); ++channel) {
            std::vector<double> frame;
            for (std::size_t i = 0; i < static_cast<std::size_t>(N); ++i)
                frame.push_back(input[channel].at(j * static_cast<std::size_t>(N) + i) / 32768.0);
            const std::vector<double> stretched = cores[channel].Operation(frame, 1 / Q_P);
            const double rate = static_cast<double>(N) / static_cast<double>(stretched.size());
            for (double sample : resampler.Resample(stretched, rate))
                output[channel].push_back(PlainQuantised(sample));
        }
    return output;
}

} // namespace lumora::test
