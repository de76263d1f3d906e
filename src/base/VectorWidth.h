#pragma once

#include <span>

namespace lumora {

/// How wide the vectors of a kernel are. Every width gives the same bits: lanes hold independent
/// results, and each result is summed in the order its formula states.
enum class VectorWidth { Baseline, Avx2, Avx512 };

/// What this processor and this build can run, narrowest first; never empty.
std::span<const VectorWidth> VectorWidths();

/// The widest of them.
VectorWidth WidestVectors();

} // namespace lumora
