#include "numeric/order/LineFold.h"

namespace lumora {

std::optional<Lines> LinesAlong(const Variant& dimention, std::int32_t rows)
{
    if (dimention.IsEmpty()) return rows == 1 ? Lines::Rows : Lines::Columns;
    const std::int16_t told = CInt(dimention.Number());
    if (told == 1) return Lines::Columns;
    if (told == 2) return Lines::Rows;
    return std::nullopt;
}

} // namespace lumora
