#pragma once

#include "base/Array.h"

#include <cstdint>
#include <initializer_list>
#include <vector>

namespace lumora::test {

/// One dimension, 1..n.
template <class T> Array<T> Row(std::initializer_list<T> values)
{
    Array<T> array(static_cast<std::int64_t>(values.size()));
    std::int64_t k = 0;
    for (const T& value : values)
        array(++k) = value;
    return array;
}

/// Two dimensions, written row by row as one reads them.
template <class T> Array<T> Table(std::initializer_list<std::initializer_list<T>> rows)
{
    Array<T> array(static_cast<std::int64_t>(rows.size()),
                   static_cast<std::int64_t>(rows.begin()->size()));
    std::int64_t i = 0;
    for (const auto& row : rows) {
        ++i;
        std::int64_t j = 0;
        for (const T& value : row)
            array(i, ++j) = value;
    }
    return array;
}

/// The elements in their order in memory, for a comparison that prints well.
template <class T> std::vector<T> Elements(const Array<T>& array)
{
    return {array.Span().begin(), array.Span().end()};
}

} // namespace lumora::test
