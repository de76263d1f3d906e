#include "engine/SimilaritySearch.h"

#include <cmath>

namespace lumora {

namespace {

/// Below this a product of variances is taken for silence.
constexpr double kNoVariance = 1e-16;

/// Correlation of windows of one target, from sums that the search carries on.
struct Correlation {
    double points; ///< in a window
    double mean_y;
    double variance_y;

    Correlation(std::size_t count, const WindowSums& sums)
        : points(static_cast<double>(count)),
          mean_y(sums.y / points),
          variance_y(sums.yy - points * (mean_y * mean_y))
    {
    }

    double operator()(double sum_xx, double mean_x, double sum_xy) const
    {
        const double product = (sum_xx - points * (mean_x * mean_x)) * variance_y;
        if (product <= kNoVariance) return 0.0;
        return (sum_xy - points * mean_x * mean_y) / std::sqrt(product);
    }
};

} // namespace

std::size_t BestShift(const EngineKernels& kernels, const double* x, const double* y,
                      std::size_t count, std::size_t shifts, EnergyWindow energy_window,
                      std::span<double> cross)
{
    WindowSums sums;
    kernels.correlate(x, y, count, shifts, cross.data(), sums);

    const Correlation correlation(count, sums);
    double sum_xx = sums.xx;
    double mean_x = sums.x / correlation.points;
    double best = correlation(sum_xx, mean_x, cross[0]);
    std::size_t best_shift = 0;
    const double* leaving = x + static_cast<std::size_t>(energy_window);
    for (std::size_t k = 1; k < shifts; ++k, ++leaving) {
        const double lost = leaving[0];
        const double gained = leaving[count];
        sum_xx = sum_xx - lost * lost + gained * gained;
        mean_x += (gained - lost) / correlation.points;
        const double here = correlation(sum_xx, mean_x, cross[k]);
        if (best < here) {
            best = here;
            best_shift = k;
        }
    }
    return best_shift;
}

} // namespace lumora
