#pragma once

#include "base/Variant.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"

#include <cstdint>

namespace lumora {

/// FoundIndexesExstremumInVector_Max, ExstremumValueAndIndexMax and SortExstremumMax.
Ref<clsLong> PlacesOfMaxima(const clsMatrix& m, const Variant& level);
Ref<clsMatrix> MaximaInOrder(const clsMatrix& m, const Variant& level);
Ref<clsMatrix> LargestMaxima(const clsMatrix& m, std::int32_t& count, const Variant& level);

} // namespace lumora
