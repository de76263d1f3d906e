#pragma once

#include "numeric/Sheets.h"

#include <cstddef>
#include <vector>

namespace lumora {

/// A square matrix beside right-hand columns, while its rows are eliminated with partial pivoting:
/// of the rows not yet done the one with the largest magnitude in the column in hand comes next.
///
/// A pivot counts as zero when its magnitude is at most 16 n * 2^-52 times the largest term that
/// ever entered its row, each beside its column's measure: so much rounding leaves of a zero, with
/// four bits to spare for what the rows before it pass on. The measure of a column is its largest
/// magnitude when the rows of the matrix as given are scaled to 1. So the units of rows and columns
/// make no matrix singular, as a bound relative to the largest element of all would.
class Elimination {
public:
    /// Which rows lose the column in hand: those below the pivot (Gauss), or all others (Jordan).
    enum class Reach { Below, Others };

    /// n by n elements beside `right` columns of zeros.
    Elimination(const Sheet<double>& square, std::size_t right);

    /// Element of row i and column j, from 0; the right-hand columns begin at n.
    double& At(std::size_t i, std::size_t j) { return work_[j * n_ + i]; }
    double At(std::size_t i, std::size_t j) const { return work_[j * n_ + i]; }

    /// False at a pivot that counts as zero; the elements are of no use then.
    bool Run(Reach reach);

private:
    bool BringPivot(std::size_t k);
    double PivotRowScale(std::size_t k) const;
    void Subtract(std::size_t k, std::size_t from, std::size_t to);

    std::size_t n_;
    std::size_t columns_;
    std::vector<double> work_;
    std::vector<double> row_scales_;    // largest term so far, in the columns' measures
    std::vector<double> column_scales_; // the measures
    std::vector<double> multipliers_;
};

} // namespace lumora
