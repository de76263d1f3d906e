#pragma once

#include <cstdint>

namespace lumora {

/// Uniform random numbers in 0..1 (1 excluded), the same ones from the same seed on every machine:
/// the upper 53 bits of the generator SplitMix64 (Steele, Lea and Flood, OOPSLA 2014).
class DitherNoise {
public:
    explicit DitherNoise(std::uint64_t seed = 1) : state_(seed) {}

    double operator()();

private:
    std::uint64_t state_;
};

} // namespace lumora
