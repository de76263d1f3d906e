#include "numeric/linear/Elimination.h"

#include "numeric/Finite.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace lumora {

Elimination::Elimination(const Sheet<double>& square, std::size_t right)
    : n_(static_cast<std::size_t>(square.rows)),
      columns_(n_ + right),
      work_(n_ * columns_),
      row_scales_(n_),
      column_scales_(n_),
      multipliers_(n_)
{
    std::copy(square.values.begin(), square.values.end(), work_.begin());
    for (std::size_t j = 0; j < n_; ++j)
        for (std::size_t i = 0; i < n_; ++i)
            row_scales_[i] = std::max(row_scales_[i], std::abs(At(i, j)));
    for (std::size_t j = 0; j < n_; ++j)
        for (std::size_t i = 0; i < n_; ++i)
            if (row_scales_[i] != 0.0)
                column_scales_[j] =
                    std::max(column_scales_[j], std::abs(At(i, j)) / row_scales_[i]);
}

bool Elimination::Run(Reach reach)
{
    for (std::size_t k = 0; k < n_; ++k) {
        if (!BringPivot(k)) return false;
        if (reach == Reach::Others) Subtract(k, 0, k);
        Subtract(k, k + 1, n_);
    }
    return true;
}

bool Elimination::BringPivot(std::size_t k)
{
    std::size_t row = k;
    for (std::size_t i = k + 1; i < n_; ++i)
        if (std::abs(At(i, k)) > std::abs(At(row, k))) row = i;
    if (row != k) {
        std::swap(row_scales_[row], row_scales_[k]);
        for (std::size_t j = k; j < columns_; ++j)
            std::swap(At(row, j), At(k, j));
    }
    const double rounding = 16.0 * static_cast<double>(n_) * std::numeric_limits<double>::epsilon();
    const double zero = rounding * row_scales_[k] * column_scales_[k];
    // An infinity in the data is no measure.
    return !(std::abs(At(k, k)) <= zero && Finite(zero));
}

double Elimination::PivotRowScale(std::size_t k) const
{
    double scale = 0.0;
    for (std::size_t j = k; j < n_; ++j)
        if (column_scales_[j] != 0.0)
            scale = std::max(scale, std::abs(At(k, j)) / column_scales_[j]);
    return scale;
}

/// Rows from..to-1 lose column k, column by column as they lie in memory.
void Elimination::Subtract(std::size_t k, std::size_t from, std::size_t to)
{
    const double pivot = At(k, k);
    const double scale = PivotRowScale(k);
    for (std::size_t i = from; i < to; ++i) {
        multipliers_[i] = At(i, k) / pivot;
        row_scales_[i] = std::max(row_scales_[i], std::abs(multipliers_[i]) * scale);
    }
    for (std::size_t j = k + 1; j < columns_; ++j) {
        const double in_row_k = At(k, j);
        double* const column = &At(0, j);
        for (std::size_t i = from; i < to; ++i)
            column[i] -= multipliers_[i] * in_row_k;
    }
}

} // namespace lumora
