#pragma once

#include "base/Variant.h"
#include "numeric/Sheets.h"

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace lumora {

/// What is in a matrix file, seen as a table of cells whatever its class.
struct ArrContents {
    std::string kind; ///< "clsMatrix", or for a plain array "array of double"
    std::int32_t rows = 0;
    std::int32_t columns = 0;
    Variant value;
    std::vector<std::string> notes = {}; ///< what the user should know besides

    /// The place of a cell in the order of the file. Rows and columns count from 0.
    std::size_t Place(std::int32_t row, std::int32_t column) const
    {
        return static_cast<std::size_t>(column) * static_cast<std::size_t>(rows) +
               static_cast<std::size_t>(row);
    }
};

/// Reads exactly the file named. One that is cut short is filled up, and a note says so. JobFailure
/// if it holds nothing that can be shown.
ArrContents ReadArrContents(const std::string& path);

/// Calls `use` with what gives the elements: a std::span, or a ComplexSheet.
template <class Use> void WithElements(const ArrContents& contents, Use use)
{
    contents.value.Visit([&]<class T>(const T& held) {
        if constexpr (std::same_as<T, Ref<clsComplexMatrix>>)
            use(SheetOf(*held));
        else if constexpr (std::same_as<T, Ref<clsMatrix>> || std::same_as<T, Ref<clsLong>> ||
                           std::same_as<T, Ref<clsString>>)
            use(SheetOf(*held).values);
        else if constexpr (requires { NumberOf(held.Span()[0]); })
            use(held.Span());
    });
}

} // namespace lumora
