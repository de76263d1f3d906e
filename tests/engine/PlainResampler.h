#pragma once

#include <cmath>
#include <cstddef>
#include <vector>

namespace lumora::test {

/// Linear resampling of successive blocks as plainly as it can be said. One sample survives from
/// block to block, whatever channel the block belongs to.
struct PlainResampler {
    double last = 0.0;

    std::vector<double> Resample(const std::vector<double>& source, double rate)
    {
        const auto S = [&](int i) { return source.at(static_cast<std::size_t>(i - 1)); };
        const int n = static_cast<int>(source.size());
        const int m = static_cast<int>(std::nearbyint(n * rate));
        const double step = 1 / rate;
        std::vector<double> dest(static_cast<std::size_t>(m));
        const auto D = [&](int i) -> double& { return dest.at(static_cast<std::size_t>(i - 1)); };
        int start = 1;
        if (rate > 1.0) {
            const int whole = static_cast<int>(std::floor(rate));
            for (int i = 1; i <= whole; ++i)
                D(i) = (S(1) - last) * (i * step) + last;
            start = whole + 1;
        }
        for (int i = start; i <= m - 1; ++i) {
            const double P = i * step;
            const int k = static_cast<int>(std::floor(P));
            D(i) = (S(k + 1) - S(k)) * (P - k) + S(k);
        }
        D(m) = S(n);
        last = S(n);
        return dest;
    }
};

} // namespace lumora::test
