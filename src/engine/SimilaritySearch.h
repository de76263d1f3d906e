#pragma once

#include "engine/EngineKernels.h"
#include "engine/ShortKernels.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace lumora {

/// How the running energy and mean of the search follow the window. The fine search's run one
/// sample ahead of it. That is a fixed property of the engine: the places it jumps to depend on
/// it, so the two must not be aligned.
enum class EnergyWindow : std::size_t { Exact = 0, OneAhead = 1 };

/// Finds where in a signal a target fits best.
class SimilaritySearch {
public:
    explicit SimilaritySearch(VectorWidth width);

    /// Makes room for searches of up to `most_shifts` shifts.
    void SetUp(std::size_t most_shifts);
    void Release();

    /// The shift k in 0..shifts-1 at which the window x[k .. k + count - 1] is most like the target
    /// y[0 .. count - 1], by Pearson's correlation coefficient on the samples as they are; the
    /// earliest of equals. A window or target without variance correlates 0.0.
    ///
    /// x must be readable as EngineKernels::correlate says. With OneAhead, x[shifts - 1 + count] is
    /// read as well.
    std::size_t BestShift(const double* x, const double* y, std::size_t count, std::size_t shifts,
                          EnergyWindow energy_window);

    /// True where the second form is to be had.
    bool TakesShorts() const { return short_kernels_ != nullptr; }
    /// The same, bit for bit, on samples times 32768; x and y as ShortKernels::correlate says.
    std::size_t BestShift(const std::int16_t* x, const std::int16_t* y, std::size_t count,
                          std::size_t shifts, EnergyWindow energy_window);

private:
    template <class T>
    std::size_t Best(const T* x, std::size_t count, std::size_t shifts, EnergyWindow energy_window,
                     const WindowSums& sums);

    const EngineKernels* kernels_;
    const ShortKernels* short_kernels_;
    std::vector<double> cross_;  ///< of each shift: sum of products, then the coefficient
    std::vector<double> sum_xx_; ///< of each shift: sum of squares of the window
    std::vector<double> mean_x_; ///< of each shift: mean of the window
};

} // namespace lumora
