#include "engine/SimilaritySearch.h"

#include <algorithm>

namespace lumora {

SimilaritySearch::SimilaritySearch(VectorWidth width)
    : kernels_(&EngineKernelsFor(width)), short_kernels_(ShortKernelsFor(width))
{
}

void SimilaritySearch::SetUp(std::size_t most_shifts, std::size_t most_points)
{
    const std::size_t padded_points = most_points + ShortKernels::kGroup;
    short_x_.assign(padded_points + PaddedShifts(most_shifts), 0);
    short_y_.assign(padded_points, 0);
    for (std::vector<double>* scratch : {&cross_, &sum_xx_, &mean_x_})
        scratch->assign(PaddedShifts(most_shifts), 0.0);
}

void SimilaritySearch::Release()
{
    cross_ = sum_xx_ = mean_x_ = {};
    short_x_ = short_y_ = {};
}

void SimilaritySearch::Correlate(const double* x, const double* y, std::size_t count,
                                 std::size_t shifts, WindowSums& sums)
{
    if (short_kernels_ && short_kernels_->to_exact_shorts(y, count, short_y_.data()) &&
        short_kernels_->to_exact_shorts(x, count + shifts - 1, short_x_.data())) {
        std::fill_n(short_y_.begin() + static_cast<std::ptrdiff_t>(count), ShortKernels::kGroup,
                    std::int16_t{0});
        short_kernels_->correlate(short_x_.data(), short_y_.data(), count, shifts, cross_.data(),
                                  sums);
    } else {
        kernels_->correlate(x, y, count, shifts, cross_.data(), sums);
    }
}

std::size_t SimilaritySearch::BestShift(const double* x, const double* y, std::size_t count,
                                        std::size_t shifts, EnergyWindow energy_window)
{
    WindowSums sums;
    Correlate(x, y, count, shifts, sums);

    TargetMoments target;
    target.points = static_cast<double>(count);
    target.mean = sums.y / target.points;
    target.variance = sums.yy - target.points * (target.mean * target.mean);

    sum_xx_[0] = sums.xx;
    mean_x_[0] = sums.x / target.points;
    const double* leaving = x + static_cast<std::size_t>(energy_window);
    for (std::size_t k = 1; k < shifts; ++k, ++leaving) {
        const double lost = leaving[0];
        const double gained = leaving[count];
        sum_xx_[k] = sum_xx_[k - 1] - lost * lost + gained * gained;
        mean_x_[k] = mean_x_[k - 1] + (gained - lost) / target.points;
    }

    kernels_->coefficients(sum_xx_.data(), mean_x_.data(), cross_.data(), shifts, target);
    const auto end = cross_.begin() + static_cast<std::ptrdiff_t>(shifts);
    return static_cast<std::size_t>(std::max_element(cross_.begin(), end) - cross_.begin());
}

} // namespace lumora
