#pragma once

#include "base/Numbers.h"
#include "numeric/Draft.h"
#include "numeric/ElementValues.h"
#include "numeric/Lines.h"
#include "numeric/Sheets.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace lumora {

/// Columns (1) or rows (2) as the argument asks: rows by default on one row, columns otherwise.
/// Nothing for another dimention.
std::optional<Lines> LinesAlong(const Variant& dimention, std::int32_t rows);

/// One state for each line: start(line), and then step(state, element, k) for the elements of the
/// line from the first to the last. The store is read from front to back in every case.
template <class State, class S, class Start, class Step>
std::vector<State> FoldLines(Lines lines, const S& sheet, Start start, Step step)
{
    const LineLayout layout = LayoutOf(lines, {sheet.rows, sheet.columns});
    std::vector<State> states;
    states.reserve(layout.count);
    if (layout.next_element == 1) {
        for (std::size_t line = 0; line < layout.count; ++line) {
            State state = start(line);
            for (std::size_t k = 0; k < layout.length; ++k)
                step(state, ValueOf(sheet[layout.At(line, k)]), k);
            states.push_back(std::move(state));
        }
        return states;
    }
    for (std::size_t line = 0; line < layout.count; ++line)
        states.push_back(start(line));
    for (std::size_t k = 0; k < layout.length; ++k)
        for (std::size_t line = 0; line < layout.count; ++line)
            step(states[line], ValueOf(sheet[layout.At(line, k)]), k);
    return states;
}

/// One element for each line, in a row below the columns or a column beside the rows. Error 9
/// without lines.
template <class M, class State, class Element>
Ref<M> OneOfEachLine(Lines lines, const std::vector<State>& states, Element element)
{
    const std::int32_t count = CLng(states.size());
    Draft<M> result(lines == Lines::Rows ? Sizes{count, 1} : Sizes{1, count});
    for (std::size_t k = 0; k < states.size(); ++k)
        result.Put(k, element(states[k]));
    return result.Take();
}

} // namespace lumora
