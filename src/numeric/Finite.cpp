#include "numeric/Finite.h"

#include "base/VectorWidth.h"

#include <bit>

namespace lumora {

namespace {

/// Adding one to the exponent carries into the sign exactly when the exponent is all ones: a vector
/// does that faster than it compares.
[[gnu::always_inline]] inline bool Look(const double* x, std::size_t count)
{
    constexpr std::uint64_t kMagnitude = 0x7fff'ffff'ffff'ffff;
    constexpr std::uint64_t kOneExponent = 0x0010'0000'0000'0000;
    std::uint64_t carries = 0;
    for (std::size_t k = 0; k < count; ++k)
        carries |= (std::bit_cast<std::uint64_t>(x[k]) & kMagnitude) + kOneExponent;
    return carries >> 63 == 0;
}

bool LookBaseline(const double* x, std::size_t count)
{
    return Look(x, count);
}
#if defined(__x86_64__)
[[gnu::target("avx2")]] bool LookAvx2(const double* x, std::size_t count)
{
    return Look(x, count);
}
#endif

} // namespace

bool AllFinite(std::span<const double> x)
{
#if defined(__x86_64__)
    static const auto look = WidestVectors() == VectorWidth::Baseline ? LookBaseline : LookAvx2;
    return look(x.data(), x.size());
#else
    return LookBaseline(x.data(), x.size());
#endif
}

} // namespace lumora
