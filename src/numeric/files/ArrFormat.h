#pragma once

#include "base/Variant.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

/// What the writer and the reader of matrix files agree on. Private to them.
namespace lumora {

/// The first 12 bytes, as they lie in the file.
struct ArrHeader {
    std::int32_t size1 = 0;
    std::int32_t size2 = 0;
    std::int32_t tag = 0;
};
static_assert(sizeof(ArrHeader) == 12);

// clang-format off
inline constexpr std::int32_t kArrMatrix  = 3;
inline constexpr std::int32_t kArrComplex = 4;
inline constexpr std::int32_t kArrString  = 5;
inline constexpr std::int32_t kArrLong    = 7;
inline constexpr std::int32_t kArrPlain   = 100;

/// An element kind of plain arrays: the letter that names it in the last byte of a file, and its
/// names on the writing and on the reading side, which differ for dates.
struct ArrKind {
    char letter;
    const char* written;
    const char* read;
};
inline constexpr ArrKind kArrKinds[] = {
    {'r', "double",   "double"},
    {'5', "string",   "string"},
    {'c', "currency", "currency"},
    {'d', "data",     "date"},
    {'l', "long",     "long"},
    {'s', "single",   "single"},
    {'i', "integer",  "integer"},
    {'b', "byte",     "byte"},
};
// clang-format on

/// The first kind for which `question` holds, or null.
template <class Question> const ArrKind* FindArrKind(Question question)
{
    const auto kind = std::find_if(std::begin(kArrKinds), std::end(kArrKinds), question);
    return kind == std::end(kArrKinds) ? nullptr : kind;
}

/// use.operator()<T>() for the element type T of a kind.
template <class Use> auto WithElementType(const ArrKind& kind, Use use)
{
    // clang-format off
    switch (kind.letter) {
    case '5': return use.template operator()<std::string>();
    case 'c': return use.template operator()<Currency>();
    case 'd': return use.template operator()<Date>();
    case 'l': return use.template operator()<std::int32_t>();
    case 's': return use.template operator()<float>();
    case 'i': return use.template operator()<std::int16_t>();
    case 'b': return use.template operator()<std::uint8_t>();
    default:  return use.template operator()<double>();
    }
    // clang-format on
}

} // namespace lumora
