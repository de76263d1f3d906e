#pragma once

#include "numeric/Lines.h"
#include "numeric/Sheets.h"
#include "numeric/Stores.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>

namespace lumora {

/// An array as kernels see a matrix. Error 9 for an array without dimension.
template <class T> Sheet<T> SheetOf(const Array<T>& array)
{
    const Sizes sizes = SizesOf(array);
    return {sizes.rows, sizes.columns, array.Span()};
}

/// Element (j, i) is `convert` of element (i, j). Error 9 for a sheet without elements.
template <class T, class Convert = std::identity>
Array<T> Transposed(const Sheet<T>& from, Convert convert = {})
{
    // A band of columns at a time: no more streams to read than the cache can follow, and each
    // write continues where the last one ended.
    constexpr std::size_t kBand = 16;
    const auto rows = static_cast<std::size_t>(from.rows);
    const auto columns = static_cast<std::size_t>(from.columns);
    Array<T> to = UnwrittenStore<T>({from.columns, from.rows});
    const auto out = to.Span();
    for (std::size_t band = 0; band < columns; band += kBand) {
        const std::size_t end = std::min(band + kBand, columns);
        for (std::size_t i = 0; i < rows; ++i)
            for (std::size_t j = band; j < end; ++j)
                out[i * columns + j] = convert(from[j * rows + i]);
    }
    return to;
}

/// The same elements in the same places, each by `convert`.
template <class T, class Convert = std::identity>
Array<T> Same(const Sheet<T>& from, Convert convert = {})
{
    Array<T> to = UnwrittenStore<T>({from.rows, from.columns});
    std::transform(from.values.begin(), from.values.end(), to.Span().begin(), convert);
    return to;
}

/// Lines X and Y, counted from 1, exchange their places. What comes to Y is `moved` on its way.
/// Error 9 outside the sheet.
template <class T, class Moved>
Array<T> Exchanged(const Sheet<T>& from, Lines lines, std::int32_t X, std::int32_t Y, Moved moved)
{
    const LineLayout layout = LayoutOf(lines, {from.rows, from.columns});
    const auto index = [&layout](std::int32_t line) {
        if (line < 1 || static_cast<std::size_t>(line) > layout.count)
            Raise(ErrorNumber::Subscript);
        return static_cast<std::size_t>(line) - 1;
    };
    const std::size_t x = index(X);
    const std::size_t y = index(Y);
    Array<T> to = Same(from);
    const auto out = to.Span();
    for (std::size_t k = 0; k < layout.length; ++k) {
        out[layout.At(x, k)] = from[layout.At(y, k)];
        out[layout.At(y, k)] = moved(from[layout.At(x, k)]);
    }
    return to;
}

/// Hands on, in column-major order, the elements of a matrix that has the rows of b below those of
/// a (Lines::Rows), or the columns of b to the right of those of a: put(k, element). The caller
/// sees to it that the sizes fit.
template <class A, class B, class Put> void Join(Lines lines, const A& a, const B& b, Put put)
{
    // To the right, all of b follows all of a. Below, it does so column by column.
    const std::size_t runs = lines == Lines::Rows ? static_cast<std::size_t>(a.columns) : 1;
    const std::size_t run_a = a.Size() / runs;
    const std::size_t run_b = b.Size() / runs;
    std::size_t k = 0;
    for (std::size_t run = 0; run < runs; ++run) {
        for (std::size_t m = run * run_a; m < (run + 1) * run_a; ++m)
            put(k++, a[m]);
        for (std::size_t m = run * run_b; m < (run + 1) * run_b; ++m)
            put(k++, b[m]);
    }
}

} // namespace lumora
