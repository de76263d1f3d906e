#include "numeric/Finite.h"

#include "base/PerWidth.h"

#include <bit>

namespace lumora {

namespace {

/// Adding one to the exponent carries into the sign exactly when the exponent is all ones: a vector
/// does that faster than it compares.
struct Look {
    template <class V> [[gnu::always_inline]] static bool Run(const double* x, std::size_t count)
    {
        constexpr std::uint64_t kMagnitude = 0x7fff'ffff'ffff'ffff;
        constexpr std::uint64_t kOneExponent = 0x0010'0000'0000'0000;
        std::uint64_t carries = 0;
        for (std::size_t k = 0; k < count; ++k)
            carries |= (std::bit_cast<std::uint64_t>(x[k]) & kMagnitude) + kOneExponent;
        return carries >> 63 == 0;
    }
};

} // namespace

bool AllFinite(std::span<const double> x)
{
    static const auto look = PerWidth<Look>::For(WidestVectors());
    return look(x.data(), x.size());
}

} // namespace lumora
