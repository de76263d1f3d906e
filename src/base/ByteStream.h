#pragma once

#include "base/Array.h"
#include "base/RunTimeError.h"
#include "base/Variant.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <span>
#include <string>
#include <string_view>

/// The one binary file layer. Files go by number, positions are 1-based byte positions, values are
/// little endian, types are named by strings. What goes wrong is shown at once by ShowFileError
/// and returned as a code; failures of the file system itself are run-time errors.
namespace lumora {

/// Number of an open file, 1 to 511; kNoFile says that the open failed.
using FileNumber = std::int16_t;
inline constexpr FileNumber kNoFile = -1;

/// Opens a file of bytes.
///
///   mode   | the file                                    | title "Error using fopen."
///   "rb"   | must exist; read and write (read where the  | " Cannot open specifid file for input
///          | file is write-protected)                    |   because file not exist."
///   "wb"   | deleted if it exists, made anew; write only |
///   "wb+"  | must exist; write only, contents kept       | " Cannot open specifid file for Add
///          |                                             |   because file not exist."
///   "wr"   | read and write, made if missing             |
///   other  | not opened                                  | "mode must be 'rb', or 'wr' or  'wb' ,
///          |                                             |   or 'wb+'"
///
/// Answers kNoFile where a message is listed, and without a message where "wb" or "wr" cannot make
/// or open the file. Errors 70, 75: an existing file that "rb" or "wb+" may not open or "wb" may
/// not delete; 67: no free number. A folder is no file. A device or pipe in the way of "wb" is
/// opened, never deleted.
FileNumber fopen(const std::string& FileName, std::string_view Mode);

/// The same under the title "Error using fopen_Rudo.", but "wb" keeps an existing file: it opens
/// it write only with its contents in place. Growing a file chunk by chunk relies on this.
FileNumber fopen_Rudo(const std::string& FileName, std::string_view Mode);

/// Opens an existing file for reading only. Errors 53, 70, 75, 67.
FileNumber OpenForReading(const std::string& FileName);

/// Closes the file and frees its number. Errors 52 (not open) and 61 (what was written did not
/// fit).
void fclose(FileNumber File);

/// Length in bytes, as the file had it when it was opened and as this number's writes have made it
/// since. Error 52.
std::int64_t FileLength(FileNumber File);
/// The length at this moment, whoever changed it. A call to the system. Error 52.
std::int64_t FileLengthNow(FileNumber File);
/// The position at which the next byte is read or written. Error 52.
std::int64_t FilePosition(FileNumber File);
/// Moves to any position from 1 up, beyond the end too. Error 63 below 1, 52.
void SeekTo(FileNumber File, std::int64_t Position);

struct FseekResult {
    int Status = 0;            ///< 0 success, -1 failure
    std::int64_t Position = 1; ///< where the file stands now
};

/// Moves to Offset by Origin, letter case ignored: "seek_set" from 0 (so Offset is the position),
/// "seek_cur" from the current position, "seek_end" from the length + 1. Outside 1..length + 1 the
/// status is -1, the file stays where it was, and no message is shown. Any other origin shows "The
/// third operand must be SEEK_SET or SEEK_CUR or SEEK_END " under "Error using fseek" and goes on
/// to position 0, which is error 63.
FseekResult fseek(FileNumber File, std::int64_t Offset, std::string_view Origin);

struct FreadResult {
    std::int32_t Count = 0; ///< elements read; -1: the position lay beyond the file
    Variant Value;          ///< a scalar for one element, an array from index 1 for more
    std::string TypeCode;   ///< "b", "i", "L", "r", "single", "currency" or "data"
};

/// Reads up to Count elements at the current position, no more than whole ones are left.
///
///   TypeName   | bytes | Value                                  | TypeCode
///   "uchar"    | 1     | unsigned byte                          | "b"
///   "char"     | 1     | signed, 16 bits                        | "b" for one, "i" for more
///   "short"    | 2     | signed, 16 bits                        | "i"
///   "ushort"   | 2     | 32 bits, a negative one plus 65536; a  | "L"
///              |       | single negative one: 65536 less it     |
///   "long"     | 4     | signed, 32 bits                        | "L"
///   "ulong"    | 4     | double, a negative one plus 2^32       | "r"
///   "single"   | 4     | float                                  | "single"
///   "double"   | 8     | double                                 | "r"
///   "currency" | 8     | Currency                               | "currency"
///   "data"     | 8     | Date                                   | "data"
///
/// At the end of the file, or with no whole element left: Count 0 and Value -999, or -999.999 for
/// "single", "double", "currency" and "data". Beyond it: Count -1 and "Empty matrix: out of file
/// size" under "Error using fread". Another TypeName gives an empty result without a message.
/// Never allocates more than the file holds. Errors 52, 75 (opened write only), 57.
FreadResult fread(FileNumber File, std::int64_t Count, std::string_view TypeName);

/// Writes at the current position; answers the number of elements (bytes for a text) written.
/// TypeName ignores letter case. "_string" writes a text's bytes and nothing more. A number goes
/// as "uchar", "short", "long" or "double"; an array of numbers, or of texts that spell numbers,
/// also as "single". Anything else writes nothing and answers 0. Errors: 6 (element out of the
/// type's range, nothing written), 13 (a text that spells no number), 52, 61, 75 (opened read
/// only).
std::int32_t fwrite(FileNumber File, const Variant& Value, std::string_view TypeName);

/// A matrix object with elements that are texts ("s"), doubles ("r") or 32-bit numbers ("L").
template <class M>
concept WritableMatrix = requires(const M& matrix)
{
    {matrix.TypeOfMatrix == "r"};
    matrix.size1;
    matrix.size2;
    Variant(matrix.GetRealAll());
};

/// Writes all elements of a matrix object as fwrite does an array. Another kind of matrix, or one
/// without elements, writes nothing and answers 0.
template <WritableMatrix M>
std::int32_t fwrite(FileNumber File, const M& Matrix, std::string_view TypeName)
{
    const bool writable =
        Matrix.TypeOfMatrix == "s" || Matrix.TypeOfMatrix == "r" || Matrix.TypeOfMatrix == "L";
    if (!writable || Matrix.size1 < 1 || Matrix.size2 < 1) return 0;
    return fwrite(File, Variant(Matrix.GetRealAll()), TypeName);
}

/// A value from fread as text: a number is one character code, an array one code an element; with
/// TypeCode "r" each code is floored first. Blanks at both ends are trimmed. A code outside 0..255
/// shows "Out of range" under "Error using deblank" and gives an empty text.
std::string deblank(const Variant& Value, std::string_view TypeCode);
/// The same under the title "Error using deblank1".
std::string deblank1(const Variant& Value, std::string_view TypeCode);

/// Reads whole elements into `values` until it is full or the file ends; answers how many.
/// Errors 52, 75 (opened write only), 57.
template <class T> std::size_t ReadValues(FileNumber File, std::span<T> values);
/// Writes all of `values`. Errors 52, 75 (opened read only), 61, 57.
template <class T> void WriteValues(FileNumber File, std::span<const T> values);

/// Closes its file when it leaves the scope, so that an error on the way leaves nothing open.
class OpenFile {
public:
    explicit OpenFile(FileNumber file) : file_(file) {}
    ~OpenFile();
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    FileNumber Number() const { return file_; }
    bool Failed() const { return file_ == kNoFile; }
    /// Closes now and, unlike the destructor, raises what goes wrong at it.
    void Close();

private:
    FileNumber file_;
};

/// Bytes in, bytes out: what ReadValues and WriteValues stand on.
std::size_t ReadBytes(FileNumber File, std::span<std::byte> bytes);
void WriteBytes(FileNumber File, std::span<const std::byte> bytes);

template <class T> std::size_t ReadValues(FileNumber File, std::span<T> values)
{
    return ReadBytes(File, std::as_writable_bytes(values)) / sizeof(T);
}

template <class T> void WriteValues(FileNumber File, std::span<const T> values)
{
    WriteBytes(File, std::as_bytes(values));
}

} // namespace lumora
