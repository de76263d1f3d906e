#pragma once

#include "base/Variant.h"

#include <cstdint>
#include <optional>
#include <string>

/// Matrix files, ".arr": a header of three 32-bit numbers (rows, columns, tag), the elements in
/// column-major order, little endian, and behind a plain array one letter that names its kind.
///
///   tag 3   doubles                              clsMatrix
///   tag 4   doubles: real parts, imaginary parts clsComplexMatrix
///   tag 5   texts                                clsString
///   tag 7   32-bit whole numbers                 clsLong
///   tag 100 a plain array                        "r" double, "5" string, "c" currency, "d" date,
///                                                "l" long, "s" single, "i" integer, "b" byte
///
/// A text is a 16-bit length and so many bytes of Windows-1252; in memory it is UTF-8.
namespace lumora {

/// Writes a matrix object or a plain array; answers the number of bytes of the file.
///
/// FileName: gets ".arr" behind it, here and for the caller, if it holds no "." at all. A file of
/// that name is replaced.
/// Obj: a clsMatrix, clsComplexMatrix, clsString or clsLong; or an array of one or two dimensions.
/// An object of another class leaves its two sizes alone in the file, and anything else a file
/// without a byte; both answer 0.
/// TypeName: the kind as which an array is written, letter case ignored: "long", "double",
/// "string", "byte", "integer", "currency", "data" (dates) or "single". Its elements are converted
/// if they are of another kind. Another word writes no elements, and its first letter behind them.
///
/// Errors before the old file is touched: 5 (a text with a character that Windows-1252 does not
/// have, or an empty TypeName for an array), 6 (a number that its kind cannot hold, a text beyond
/// 65,535 bytes, a file beyond 2 GiB), 9 (no elements, or a store that disagrees with its sizes),
/// 13 (an element that is no such kind; a clsComplex, which has no sizes; a tag that belies its
/// class), 91. After that: 61, 70, 75 and the others of fopen.
std::int32_t WriteArr(std::string& FileName, const Variant& Obj, const std::string& TypeName);

/// Reads what WriteArr wrote: a Ref to an object of one of the four classes, or a plain array with
/// one dimension if there is one row. Empty for an unknown tag or letter, or no tag at all.
///
/// FileName: all behind the first "." of the whole path becomes "arr", here and for the caller;
/// without any "." it gets ".arr".
/// First, Last: the rows to read of a clsMatrix or clsLong, or the columns if it has one row, both
/// from 1. One that is not there means the first or last of all.
/// AskType: if it is not empty no elements are read, and the answer is the name of what the file
/// holds: "clsMatrix", "clsComplexMatrix", "clsString", "clsLong", or of the kind of a plain array,
/// "date" for dates.
///
/// A file that ends before its sizes say gives what is there: numbers of which a byte is missing
/// are 0, a text that is cut has its beginning, and later ones are empty.
///
/// A missing file shows the message of fopen_Rudo and is error 52. Errors: 9 (a size below 1, First
/// above Last), 62 (more than 64 MiB would have to be made up, 32 bytes for a text; nothing is
/// allocated then), and those of fopen_Rudo.
Variant ReadArr(std::string& FileName, std::optional<std::int32_t> First = {},
                std::optional<std::int32_t> Last = {}, const Variant& AskType = {});

/// How far a file keeps what its sizes promise, counted in elements; of complex ones real and
/// imaginary parts count by themselves. All 0 where nothing was read.
struct ArrExtent {
    std::int64_t promised = 0;
    std::int64_t held = 0; ///< with every byte
    bool IsShort() const { return held < promised; }
};

/// The same with a path that is taken as it is. `extent` may be null.
std::int32_t WriteArrTo(const std::string& path, const Variant& Obj, const std::string& TypeName);
Variant ReadArrFrom(const std::string& path, std::optional<std::int32_t> First = {},
                    std::optional<std::int32_t> Last = {}, const Variant& AskType = {},
                    ArrExtent* extent = nullptr);

} // namespace lumora
