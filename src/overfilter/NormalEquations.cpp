#include "overfilter/NormalEquations.h"

#include <algorithm>
#include <cmath>

namespace lumora {

namespace {

void SubtractMultiple(double* __restrict row, double factor, const double* __restrict other,
                      std::size_t count)
{
    for (std::size_t c = 0; c < count; ++c)
        row[c] -= factor * other[c];
}

} // namespace

NormalEquations::Outcome NormalEquations::Solve(std::vector<double>& solution)
{
    solution.clear();
    for (std::size_t k = 0; k + 1 < order_; ++k) {
        BringPivot(k);
        if (Row(k)[k] == 0.0) return Outcome::ZeroPivot;
        EliminateBelow(k);
    }
    if (Row(order_ - 1)[order_ - 1] == 0.0) return Outcome::Singular;
    SubstituteBack(solution);
    return Outcome::Solved;
}

void NormalEquations::BringPivot(std::size_t k)
{
    std::size_t pivot = k;
    for (std::size_t r = k + 1; r < order_; ++r)
        if (std::abs(Row(r)[k]) > std::abs(Row(pivot)[k])) pivot = r;
    // What stands left of the pivot is never looked at again.
    if (pivot != k) std::swap_ranges(Row(k) + k, Row(k) + order_ + 1, Row(pivot) + k);
}

void NormalEquations::EliminateBelow(std::size_t k)
{
    double* pivot_row = Row(k);
    const double pivot = pivot_row[k];
    for (std::size_t c = k + 1; c <= order_; ++c)
        pivot_row[c] /= pivot;
    for (std::size_t r = k + 1; r < order_; ++r)
        SubtractMultiple(Row(r) + k + 1, Row(r)[k], pivot_row + k + 1, order_ - k);
}

void NormalEquations::SubstituteBack(std::vector<double>& solution)
{
    solution.resize(order_);
    const std::size_t last = order_ - 1;
    solution[last] = Row(last)[order_] / Row(last)[last];
    for (std::size_t k = last; k-- > 0;) {
        double value = Row(k)[order_];
        for (std::size_t c = k + 1; c < order_; ++c)
            value -= Row(k)[c] * solution[c];
        solution[k] = value;
    }
}

} // namespace lumora
