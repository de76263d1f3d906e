#include "numeric/speech/BinSearch.h"

#include "base/Numbers.h"
#include "numeric/speech/Samples.h"

#include <cmath>
#include <cstddef>
#include <span>

namespace lumora {

namespace {

/// How close is equal, once the bounds have been narrowed.
constexpr double kTolerance = 1e-8;

} // namespace

std::int32_t FirstNotBelow(const clsMatrix& rising, std::int32_t& Left, std::int32_t& Right,
                           double number, double tolerance)
{
    if (Left > Right) return 0;
    const std::span<const double> samples = SamplesOf(rising);
    const auto x = [samples](std::int32_t place) {
        if (place < 1 || static_cast<std::size_t>(place) > samples.size())
            Raise(ErrorNumber::Subscript);
        return samples[static_cast<std::size_t>(place) - 1];
    };
    for (;; tolerance = kTolerance) {
        if (number < x(Left) || std::abs(number - x(Left)) < tolerance) return Left;
        if (!(number < x(Right))) return Right;
        if (x(Left) < number && !(x(Left + 1) < number)) return Left + 1;
        // Two neighbours that do not decide it now, a NaN or an infinity, never will.
        if (Right - Left < 2 && tolerance == kTolerance) Raise(ErrorNumber::InvalidCall);
        const std::int32_t middle = CLng((static_cast<double>(Left) + Right) / 2.0);
        (x(middle) > number ? Right : Left) = middle;
    }
}

} // namespace lumora
