#include "overfilter/DitherNoise.h"

namespace lumora {

double DitherNoise::operator()()
{
    state_ += 0x9E3779B97F4A7C15;
    std::uint64_t z = state_;
    z = (z ^ z >> 30) * 0xBF58476D1CE4E5B9;
    z = (z ^ z >> 27) * 0x94D049BB133111EB;
    z ^= z >> 31;
    return static_cast<double>(z >> 11) * 0x1p-53;
}

} // namespace lumora
