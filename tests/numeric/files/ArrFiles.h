#pragma once

#include "numeric/Matrices.h"
#include "numeric/files/ArrFile.h"
#include "support/LittleEndian.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace lumora::test {

/// The first 12 bytes of a matrix file. Nothing is checked: sizes and tag can lie.
inline std::string ArrHead(std::int64_t rows, std::int64_t columns, std::int64_t tag)
{
    return Le32(rows) + Le32(columns) + Le32(tag);
}

inline std::string Doubles(std::initializer_list<double> values)
{
    std::string bytes;
    for (const double value : values)
        bytes += LeDouble(value);
    return bytes;
}
inline std::string Longs(std::initializer_list<std::int64_t> values)
{
    std::string bytes;
    for (const std::int64_t value : values)
        bytes += Le32(value);
    return bytes;
}
/// Texts as they stand in a file: length and bytes.
inline std::string Texts(std::initializer_list<std::string> texts)
{
    std::string bytes;
    for (const std::string& text : texts)
        bytes += Le16(static_cast<std::int64_t>(text.size())) + text;
    return bytes;
}

/// A folder for matrix files. Its own path must have no dot, which the name rules would meet first.
class ArrFiles : public testing::Test {
protected:
    /// Writes and answers the bytes of the file, whose number must be what WriteArr tells.
    std::string Written(const Variant& obj, const std::string& type_name = {}) const
    {
        std::string name = folder_ / "m.arr";
        const std::int32_t count = WriteArr(name, obj, type_name);
        const std::string bytes = BytesOf(name);
        EXPECT_EQ(count, static_cast<std::int32_t>(bytes.size()));
        return bytes;
    }

    /// What ReadArr makes of these bytes.
    Variant Read(const std::string& bytes, std::optional<std::int32_t> first = {},
                 std::optional<std::int32_t> last = {}, const Variant& ask_type = {}) const
    {
        std::string name = folder_.Write("m.arr", bytes);
        return ReadArr(name, first, last, ask_type);
    }

    TempFolder folder_;
    MessageRecorder messages_;
};

} // namespace lumora::test
