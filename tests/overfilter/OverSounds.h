#pragma once

#include "overfilter/OverFilterPlan.h"
#include "overfilter/PlainRemoveOver.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numbers>
#include <random>
#include <vector>

/// Sounds for the over-range filter, from a seeded generator; streams of samples, as interleaved
/// as one likes to think of them.
namespace lumora::test {

using Stream = std::vector<double>;
using Noise = std::mt19937_64;

inline double Uniform(Noise& noise, double low, double high)
{
    return std::uniform_real_distribution<double>(low, high)(noise);
}
inline int Whole(Noise& noise, int low, int high)
{
    return std::uniform_int_distribution<int>(low, high)(noise);
}

/// What the filter's sizes are for a rate.
inline PlainSetUp PlainForRate(int rate_hz)
{
    const OverFilterPlan plan = OverFilterPlan::ForRate(rate_hz);
    return {plan.GuardLen, plan.TrainLen, 1.0, 0.02, plan.Order, rate_hz, 0.0, 2.0};
}

/// Three partials and some hiss in each channel, times `drive`, and clipped at full scale.
inline Stream Driven(Noise& noise, std::size_t count, int rate_hz, std::size_t channels,
                     double drive)
{
    Stream stream(count);
    const double pitch_hz = Uniform(noise, 80.0, 700.0);
    for (std::size_t k = 0; k < count; ++k) {
        const double t = static_cast<double>(k / channels) / rate_hz;
        const double side = k % channels == 0 ? 1.0 : 0.8;
        double x = Uniform(noise, -0.02, 0.02);
        for (int partial = 1; partial <= 3; ++partial)
            x += 0.25 * side *
                 std::sin(2 * std::numbers::pi * pitch_hz * partial * t + partial * side);
        stream[k] = std::clamp(x * drive, -1.0, 1.0);
    }
    return stream;
}

/// As a file of 16 bits holds it.
inline void Quantise(Stream& stream)
{
    for (double& x : stream)
        x = std::clamp(std::nearbyint(x * 32768.0), -32768.0, 32767.0) / 32768.0;
}

/// Stretches of quiet noise and of samples over either limit, exactly on it and just beside it,
/// none longer than told.
inline Stream Chain(Noise& noise, std::size_t count, int longest)
{
    const double beside = std::nextafter(0.8, 1.0) - 0.8;
    Stream stream;
    while (stream.size() < count) {
        const int kind = Whole(noise, 0, 9);
        const int length = Whole(noise, 1, kind < 4 ? 4 * longest : longest);
        const double sign = Whole(noise, 0, 1) == 0 ? 1.0 : -1.0;
        for (int k = 0; k < length; ++k)
            stream.push_back(sign * (kind < 4    ? Uniform(noise, -0.7, 0.7)
                                     : kind < 7  ? Uniform(noise, 0.81, 1.0)
                                     : kind == 7 ? 0.8
                                     : kind == 8 ? 0.8 + beside
                                                 : 0.8 - beside));
    }
    stream.resize(count);
    return stream;
}

} // namespace lumora::test
