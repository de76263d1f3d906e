#pragma once

#include "base/Variant.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"

namespace lumora {

/// Gt.
Ref<clsLong> Greater(const clsMatrix& m, const Variant& a);

} // namespace lumora
