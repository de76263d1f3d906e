#pragma once

#include "base/Variant.h"
#include "numeric/clsMatrix.h"

#include <cstdint>

namespace lumora {

/// What may be analysed as one frame without framing.
enum class LoneFrame { Row, RowOrColumn };

/// Parcor_Burg (a lone frame is a row: error 9 for a column) and Parcor_Burg1.
Variant ParcorTable(const clsMatrix& sound, std::int32_t Npred, std::int32_t& Window,
                    std::int32_t& Shift, LoneFrame lone);

} // namespace lumora
