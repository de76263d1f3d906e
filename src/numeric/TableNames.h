#pragma once

#include "base/Array.h"
#include "base/Ref.h"
#include "base/Variant.h"

#include <cstdint>

// Short names for sources that are tables of members, so that every row is one line. No header
// includes them.
namespace lumora {

using Reals = clsMatrix;
using Longs = clsLong;
using Complex = clsComplexMatrix;
using Objects = clsMatrixComplex;
using Scalar = clsComplex;
using Texts = clsString;

using Doubles = Array<double>;
using Integers = Array<std::int32_t>;
using Scalars = Array<Ref<clsComplex>>;

} // namespace lumora
