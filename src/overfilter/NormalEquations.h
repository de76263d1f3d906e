#pragma once

#include <cstddef>
#include <vector>

namespace lumora {

/// P equations in P unknowns with their right-hand side, row by row.
class NormalEquations {
public:
    explicit NormalEquations(std::size_t order = 0)
        : order_(order), elements_(order * (order + 1), 0.0)
    {
    }

    std::size_t Order() const { return order_; }
    /// Element of row r and column c, from 0; column P is the right-hand side.
    double& operator()(std::size_t r, std::size_t c) { return elements_[r * (order_ + 1) + c]; }

    enum class Outcome {
        Solved,
        ZeroPivot, ///< before the last column
        Singular,  ///< the last pivot is 0
    };
    /// Gaussian elimination with partial pivoting: of the rows not yet done the first one with the
    /// largest magnitude in the column in hand is next, divided by its pivot and taken from the
    /// rows below it. A pivot counts as zero only when it is exactly 0. Back substitution takes the
    /// known unknowns off the right-hand side in rising order. The elements are used up;
    /// `solution` has P values, or none unless the system was solved.
    Outcome Solve(std::vector<double>& solution);

private:
    double* Row(std::size_t r) { return elements_.data() + r * (order_ + 1); }
    void BringPivot(std::size_t k);
    void EliminateBelow(std::size_t k);
    void SubstituteBack(std::vector<double>& solution);

    std::size_t order_;
    std::vector<double> elements_;
};

} // namespace lumora
