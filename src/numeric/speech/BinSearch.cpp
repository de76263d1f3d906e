#include "base/Numbers.h"
#include "numeric/clsMatrix.h"
#include "numeric/speech/Samples.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>

namespace lumora {

namespace {

/// How close is equal, once the bounds have been narrowed.
constexpr double kTolerance = 1e-8;

} // namespace

std::int32_t clsMatrix::BinSearchInArray(std::int32_t& Left, std::int32_t& Right, double Num,
                                         double Tolerance) const
{
    if (Left > Right) return 0;
    const std::span<const double> samples = SamplesOf(*this);
    const auto x = [samples](std::int32_t place) {
        if (place < 1 || static_cast<std::size_t>(place) > samples.size())
            Raise(ErrorNumber::Subscript);
        return samples[static_cast<std::size_t>(place) - 1];
    };
    for (;; Tolerance = kTolerance) {
        if (Num < x(Left) || std::abs(Num - x(Left)) < Tolerance) return Left;
        if (!(Num < x(Right))) return Right;
        if (x(Left) < Num && !(x(Left + 1) < Num)) return Left + 1;
        // Two neighbours that do not decide it now, a NaN or an infinity, never will.
        if (Right - Left < 2 && Tolerance == kTolerance) Raise(ErrorNumber::InvalidCall);
        const std::int32_t middle = CLng((static_cast<double>(Left) + Right) / 2.0);
        (x(middle) > Num ? Right : Left) = middle;
    }
}

} // namespace lumora
