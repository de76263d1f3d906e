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

    /// Makes room for searches of up to `most_shifts` shifts of up to `most_points` points.
    void SetUp(std::size_t most_shifts, std::size_t most_points);
    void Release();

    /// The shift k in 0..shifts-1 at which the window x[k .. k + count - 1] is most like the target
    /// y[0 .. count - 1], by Pearson's correlation coefficient on the samples as they are; the
    /// earliest of equals. A window or target without variance correlates 0.0.
    ///
    /// x must be readable as EngineKernels::correlate says. With OneAhead, x[shifts - 1 + count] is
    /// read as well.
    std::size_t BestShift(const double* x, const double* y, std::size_t count, std::size_t shifts,
                          EnergyWindow energy_window);

private:
    void Correlate(const double* x, const double* y, std::size_t count, std::size_t shifts,
                   WindowSums& sums);

    const EngineKernels* kernels_;
    const ShortKernels* short_kernels_; ///< null: none here
    std::vector<std::int16_t> short_x_; ///< the windows and the target of a search whose samples
    std::vector<std::int16_t> short_y_; ///< are exact in 16 bits
    std::vector<double> cross_;         ///< of each shift: sum of products, then the coefficient
    std::vector<double> sum_xx_;        ///< of each shift: sum of squares of the window
    std::vector<double> mean_x_;        ///< of each shift: mean of the window
};

} // namespace lumora
