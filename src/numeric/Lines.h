#pragma once

#include "numeric/Stores.h"

#include <cstddef>

namespace lumora {

/// The two kinds of lines of which a matrix is made.
enum class Lines { Rows, Columns };

/// Where the lines of a column-major store lie, counted from 0.
struct LineLayout {
    std::size_t count;
    std::size_t length;
    std::size_t next_line;
    std::size_t next_element;

    std::size_t At(std::size_t line, std::size_t k) const
    {
        return line * next_line + k * next_element;
    }
};

inline LineLayout LayoutOf(Lines lines, Sizes sizes)
{
    const auto rows = static_cast<std::size_t>(sizes.rows);
    const auto columns = static_cast<std::size_t>(sizes.columns);
    if (lines == Lines::Rows) return {rows, columns, 1, rows};
    return {columns, rows, rows, 1};
}

} // namespace lumora
