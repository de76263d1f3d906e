#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>

namespace lumora::test {

/// The low `size` bytes of `value`, lowest first.
inline std::string LittleEndian(std::uint64_t value, std::size_t size)
{
    std::string bytes;
    for (std::size_t k = 0; k < size; ++k)
        bytes += static_cast<char>(value >> (8 * k) & 0xFF);
    return bytes;
}

inline std::string Le16(std::int64_t value)
{
    return LittleEndian(static_cast<std::uint64_t>(value), 2);
}
inline std::string Le32(std::int64_t value)
{
    return LittleEndian(static_cast<std::uint64_t>(value), 4);
}
inline std::string Le64(std::int64_t value)
{
    return LittleEndian(static_cast<std::uint64_t>(value), 8);
}
inline std::string LeSingle(float value)
{
    return LittleEndian(std::bit_cast<std::uint32_t>(value), 4);
}
inline std::string LeDouble(double value)
{
    return LittleEndian(std::bit_cast<std::uint64_t>(value), 8);
}

/// Any bytes, written as numbers.
inline std::string Raw(std::initializer_list<int> values)
{
    std::string bytes;
    for (int value : values)
        bytes += static_cast<char>(value);
    return bytes;
}
/// 16-bit samples as they stand in a file.
inline std::string Shorts(std::initializer_list<int> values)
{
    std::string bytes;
    for (int value : values)
        bytes += Le16(value);
    return bytes;
}

} // namespace lumora::test
