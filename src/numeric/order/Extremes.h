#pragma once

#include "base/Numbers.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/order/Comparers.h"
#include "numeric/order/LineFold.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace lumora {

/// An extreme element and its place in its line, from 0.
template <class T> struct Standing {
    T value;
    std::size_t place;
};
template <class S>
using StandingOf =
    Standing<std::remove_cvref_t<decltype(ValueOf(std::declval<const S&>()[std::size_t{}]))>>;

/// One line whose elements are neighbours. It looks for the next winner without touching what
/// stands, so that no element waits for the one before it.
template <class S, class Wins>
StandingOf<S> ExtremeOfLine(StandingOf<S> standing, const S& sheet, std::size_t from,
                            std::size_t length, Wins wins)
{
    for (std::size_t k = 0; k < length; ++k) {
        while (k < length && !wins(ValueOf(sheet[from + k]), standing.value))
            ++k;
        if (k < length) standing = {ValueOf(sheet[from + k]), k};
    }
    return standing;
}

template <class S, class Start, class Wins>
std::vector<StandingOf<S>> ExtremesOfLines(Lines lines, const S& sheet, Start start, Wins wins)
{
    const LineLayout layout = LayoutOf(lines, {sheet.rows, sheet.columns});
    if (layout.next_element != 1)
        return FoldLines<StandingOf<S>>(
            lines, sheet, start, [wins](StandingOf<S>& standing, const auto& x, std::size_t k) {
                if (wins(x, standing.value)) standing = {x, k};
            });
    std::vector<StandingOf<S>> standings;
    standings.reserve(layout.count);
    for (std::size_t line = 0; line < layout.count; ++line)
        standings.push_back(
            ExtremeOfLine(start(line), sheet, layout.At(line, 0), layout.length, wins));
    return standings;
}

/// The extreme of each line, from its first element on.
template <class S, class Wins>
std::vector<StandingOf<S>> ExtremesOfLines(Lines lines, const S& sheet, Wins wins)
{
    const LineLayout layout = LayoutOf(lines, {sheet.rows, sheet.columns});
    const auto first = [&](std::size_t line) {
        return StandingOf<S>{ValueOf(sheet[layout.At(line, 0)]), 0};
    };
    return ExtremesOfLines(lines, sheet, first, wins);
}

/// An extreme element of a whole matrix and its place, from 0.
template <class T> struct Found {
    T value;
    std::size_t row;
    std::size_t column;
};

/// The first extreme in scanning order, rows outer and columns inner; not before the first element
/// of all, so that a NaN there stands. Error 9 without elements.
template <class S, class Wins> auto FirstExtreme(const S& sheet, Wins wins)
{
    if (sheet.Size() == 0) Raise(ErrorNumber::Subscript);
    // The store is read from front to back, by the fewer lines; of equal ones the place decides.
    const Lines lines = sheet.rows < sheet.columns ? Lines::Rows : Lines::Columns;
    const StandingOf<S> first{ValueOf(sheet[0]), 0};
    const auto start = [&first](std::size_t) -> const StandingOf<S>& { return first; };
    using Extreme = Found<decltype(first.value)>;
    Extreme found{first.value, 0, 0};
    std::size_t line = 0;
    for (const auto& [value, place] : ExtremesOfLines(lines, sheet, start, wins)) {
        const Extreme next =
            lines == Lines::Rows ? Extreme{value, line, place} : Extreme{value, place, line};
        const bool earlier = std::pair(next.row, next.column) < std::pair(found.row, found.column);
        if (wins(value, found.value) || (earlier && !wins(found.value, value))) found = next;
        ++line;
    }
    return found;
}

/// The extreme of each line; empty for another dimention.
template <class M, class Wins> Ref<M> ExtremesAlong(const M& m, const Variant& dimention, Wins wins)
{
    const auto sheet = SheetOf(m);
    const std::optional<Lines> lines = LinesAlong(dimention, sheet.rows);
    if (!lines) return {};
    return OneOfEachLine<M>(*lines, ExtremesOfLines(*lines, sheet, wins),
                            [](const auto& standing) { return standing.value; });
}

/// The same of a complex class: a clsMatrix if no imaginary part is left.
template <ComplexClass M, class Wins>
Variant ExtremesAlong(const M& m, const Variant& dimention, Wins wins)
{
    const auto sheet = SheetOf(m);
    const std::optional<Lines> lines = LinesAlong(dimention, sheet.rows);
    if (!lines) return {};
    const auto standings = ExtremesOfLines(*lines, sheet, wins);
    const bool is_real = std::all_of(standings.begin(), standings.end(),
                                     [](const auto& standing) { return standing.value.im == 0.0; });
    if (is_real)
        return OneOfEachLine<clsMatrix>(*lines, standings,
                                        [](const auto& standing) { return standing.value.re; });
    return OneOfEachLine<M>(*lines, standings, [](const auto& standing) { return standing.value; });
}

/// Where in its line the extreme of each stands, from 1.
template <class M, class Wins>
Ref<clsLong> PlacesAlong(const M& m, const Variant& dimention, Wins wins)
{
    const auto sheet = SheetOf(m);
    const std::optional<Lines> lines = LinesAlong(dimention, sheet.rows);
    if (!lines) return {};
    return OneOfEachLine<clsLong>(*lines, ExtremesOfLines(*lines, sheet, wins),
                                  [](const auto& standing) { return CLng(standing.place + 1); });
}

/// The minimum and the maximum as class R: values, rows, columns; the minimum first.
template <class R, class T> Ref<R> MinmaxRow(const Found<T>& min, const Found<T>& max)
{
    Draft<R> row(Sizes{1, 6});
    row.Put(0, min.value);
    row.Put(1, max.value);
    row.Put(2, CLng(min.row + 1));
    row.Put(3, CLng(max.row + 1));
    row.Put(4, CLng(min.column + 1));
    row.Put(5, CLng(max.column + 1));
    return row.Take();
}

// What the members ask for. A tolerance asks for the complex rule.

template <class M, class... Tolerance> auto SmallestOf(const M& m, Tolerance... tolerance)
{
    return FirstExtreme(SheetOf(m), SmallerBy(tolerance...)).value;
}
template <class M, class... Tolerance> auto LargestOf(const M& m, Tolerance... tolerance)
{
    return FirstExtreme(SheetOf(m), LargerBy(tolerance...)).value;
}
template <class R, class M, class... Tolerance> Ref<R> MinmaxOf(const M& m, Tolerance... tolerance)
{
    const auto sheet = SheetOf(m);
    return MinmaxRow<R>(FirstExtreme(sheet, SmallerBy(tolerance...)),
                        FirstExtreme(sheet, LargerBy(tolerance...)));
}

template <class M, class... Tolerance>
auto SmallestAlong(const M& m, const Variant& dimention, Tolerance... tolerance)
{
    return ExtremesAlong(m, dimention, SmallerBy(tolerance...));
}
template <class M, class... Tolerance>
auto LargestAlong(const M& m, const Variant& dimention, Tolerance... tolerance)
{
    return ExtremesAlong(m, dimention, LargerBy(tolerance...));
}

template <class M, class... Tolerance>
Ref<clsLong> SmallestPlaces(const M& m, const Variant& dimention, Tolerance... tolerance)
{
    return PlacesAlong(m, dimention, SmallerBy(tolerance...));
}
template <class M, class... Tolerance>
Ref<clsLong> LargestPlaces(const M& m, const Variant& dimention, Tolerance... tolerance)
{
    return PlacesAlong(m, dimention, LargerBy(tolerance...));
}

} // namespace lumora
