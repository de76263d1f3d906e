#pragma once

#include "numeric/clsMatrix.h"

#include <cstdint>

namespace lumora {

/// Pred_Lat, Parcor_Resid and Parcor_Direct.
Ref<clsMatrix> PredictorOf(const clsMatrix& reflections);
Ref<clsMatrix> Residual(const clsMatrix& sound, const clsMatrix& parcor, const clsMatrix& start,
                        std::int32_t frame);
Ref<clsMatrix> Synthesis(const clsMatrix& excitation, const clsMatrix& parcor,
                         const clsMatrix& start, double tract, std::int32_t frame);

} // namespace lumora
