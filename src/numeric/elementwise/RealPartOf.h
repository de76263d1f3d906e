#pragma once

#include "base/Ref.h"
#include "base/Variant.h"

namespace lumora {

/// The real parts as a new matrix. Error 9 without elements.
Ref<clsMatrix> RealPartOf(const clsComplexMatrix& m);

} // namespace lumora
