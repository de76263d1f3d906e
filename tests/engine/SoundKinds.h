#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

/// Sounds that bring out what a search can trip over, as 16-bit samples from a seeded generator.
namespace lumora::test {

using Generator = std::mt19937_64;
using Shorts16 = std::vector<std::int16_t>;

inline int Between(Generator& generator, int low, int high)
{
    return std::uniform_int_distribution<int>(low, high)(generator);
}

inline Shorts16 Noise(Generator& generator, std::size_t count, int low = -32768, int high = 32767)
{
    Shorts16 sound(count);
    for (std::int16_t& sample : sound)
        sample = static_cast<std::int16_t>(Between(generator, low, high));
    return sound;
}

/// A triangle wave of full scale and given period; whole numbers only.
inline int Triangle(std::size_t i, int period)
{
    const int place = static_cast<int>(i % static_cast<std::size_t>(period));
    const int up = 4 * 32767 * place / period;
    if (up <= 32767) return up;
    return up <= 3 * 32767 ? 2 * 32767 - up : up - 4 * 32767;
}

/// Two triangles a little out of tune and some noise: jumps are hard to choose, as in music.
inline Shorts16 Music(Generator& generator, std::size_t count, int rate_hz)
{
    const int low = rate_hz / Between(generator, 90, 250) + 2;
    const int high = rate_hz / Between(generator, 400, 900) + 2;
    Shorts16 sound(count);
    for (std::size_t i = 0; i < count; ++i)
        sound[i] = static_cast<std::int16_t>(Triangle(i, low) / 2 + Triangle(i, high) / 3 +
                                             Between(generator, -900, 900));
    return sound;
}

/// Runs of full scale up and down, now and then with noise between.
inline Shorts16 ClippedRuns(Generator& generator, std::size_t count, std::size_t longest)
{
    Shorts16 sound;
    while (sound.size() < count) {
        const int kind = Between(generator, 0, 4);
        const int run = Between(generator, 1, static_cast<int>(longest));
        for (int i = 0; i < run; ++i)
            sound.push_back(static_cast<std::int16_t>(kind <= 1 ? -32768
                                                      : kind <= 3
                                                          ? 32767
                                                          : Between(generator, -32768, 32767)));
    }
    sound.resize(count);
    return sound;
}

inline Shorts16 SquareWave(std::size_t count, std::size_t half_period)
{
    Shorts16 sound(count);
    for (std::size_t i = 0; i < count; ++i)
        sound[i] = i / half_period % 2 == 0 ? std::int16_t{-32768} : std::int16_t{32767};
    return sound;
}

/// A short random pattern over and over: many shifts correlate exactly alike.
inline Shorts16 Periodic(Generator& generator, std::size_t count, std::size_t period)
{
    const Shorts16 pattern = Noise(generator, period);
    Shorts16 sound(count);
    for (std::size_t i = 0; i < count; ++i)
        sound[i] = pattern[i % period];
    return sound;
}

/// What an 8-bit file holds, times 256.
inline Shorts16 EightBits(Generator& generator, std::size_t count)
{
    Shorts16 sound = Noise(generator, count, -128, 127);
    for (std::int16_t& sample : sound)
        sample = static_cast<std::int16_t>(sample * 256);
    return sound;
}

/// Lone steps of the last bit: products of variances on both sides of the bound for silence.
inline Shorts16 AlmostSilent(Generator& generator, std::size_t count)
{
    Shorts16 sound(count);
    for (std::int16_t& sample : sound)
        if (Between(generator, 0, 40) == 0)
            sample = static_cast<std::int16_t>(Between(generator, -1, 1));
    return sound;
}

} // namespace lumora::test
