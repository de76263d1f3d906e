#pragma once

#include "numeric/clsMatrix.h"

namespace lumora {

/// Compression_Expansion, Compression_ExpansionPrec and Compression_Expansion_Matrix.
Ref<clsMatrix> Interpolated(const clsMatrix& m, double koef);
Ref<clsMatrix> InterpolatedToLength(const clsMatrix& m, double koef);
Ref<clsMatrix> Picked(const clsMatrix& m, double koef);

} // namespace lumora
