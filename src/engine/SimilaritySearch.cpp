#include "engine/SimilaritySearch.h"

#include <algorithm>

namespace lumora {

namespace {

double SampleOf(double sample)
{
    return sample;
}
double SampleOf(std::int16_t value)
{
    return value / 32768.0;
}

} // namespace

SimilaritySearch::SimilaritySearch(VectorWidth width)
    : kernels_(&EngineKernelsFor(width)), short_kernels_(ShortKernelsFor(width))
{
}

void SimilaritySearch::SetUp(std::size_t most_shifts)
{
    for (std::vector<double>* scratch : {&cross_, &sum_xx_, &mean_x_})
        scratch->assign(PaddedShifts(most_shifts), 0.0);
}

void SimilaritySearch::Release()
{
    cross_ = sum_xx_ = mean_x_ = {};
}

std::size_t SimilaritySearch::BestShift(const double* x, const double* y, std::size_t count,
                                        std::size_t shifts, EnergyWindow energy_window)
{
    WindowSums sums;
    kernels_->correlate(x, y, count, shifts, cross_.data(), sums);
    return Best(x, count, shifts, energy_window, sums);
}

std::size_t SimilaritySearch::BestShift(const std::int16_t* x, const std::int16_t* y,
                                        std::size_t count, std::size_t shifts,
                                        EnergyWindow energy_window)
{
    WindowSums sums;
    short_kernels_->correlate(x, y, count, shifts, cross_.data(), sums);
    return Best(x, count, shifts, energy_window, sums);
}

template <class T>
std::size_t SimilaritySearch::Best(const T* x, std::size_t count, std::size_t shifts,
                                   EnergyWindow energy_window, const WindowSums& sums)
{
    TargetMoments target;
    target.points = static_cast<double>(count);
    target.mean = sums.y / target.points;
    target.variance = sums.yy - target.points * (target.mean * target.mean);

    double sum_xx = sums.xx;
    double mean_x = sums.x / target.points;
    const T* leaving = x + static_cast<std::size_t>(energy_window);
    for (std::size_t k = 0;; ++leaving) {
        sum_xx_[k] = sum_xx;
        mean_x_[k] = mean_x;
        if (++k == shifts) break;
        const double lost = SampleOf(leaving[0]);
        const double gained = SampleOf(leaving[count]);
        sum_xx = sum_xx - lost * lost + gained * gained;
        mean_x += (gained - lost) / target.points;
    }

    kernels_->coefficients(sum_xx_.data(), mean_x_.data(), cross_.data(), shifts, target);
    const auto end = cross_.begin() + static_cast<std::ptrdiff_t>(shifts);
    return static_cast<std::size_t>(std::max_element(cross_.begin(), end) - cross_.begin());
}

} // namespace lumora
