#include "base/ByteStream.h"
#include "base/FileMessages.h"
#include "base/Messages.h"
#include "base/Numbers.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace lumora {

namespace {

/// What a type name stands for: Raw as it lies in the file, One and Many as they are handed out.
template <class Raw, class One, class Many>
FreadResult ReadAs(FileNumber file, std::int64_t count, const char* code, const char* code_of_many,
                   Variant marker, One (*one)(Raw), Many (*many)(Raw))
{
    const std::int64_t left = FileLength(file) - FilePosition(file) + 1;
    if (left < 0) {
        ShowFileError(file_messages::kFread, file_messages::kBeyondEnd);
        return {-1, {}, code};
    }
    const std::int64_t whole = std::min<std::int64_t>(left / std::int64_t{sizeof(Raw)}, count);
    if (whole <= 0) return {0, std::move(marker), code};

    std::vector<Raw> raw(static_cast<std::size_t>(whole));
    raw.resize(ReadValues(file, std::span<Raw>(raw)));
    if (raw.empty()) return {0, std::move(marker), code};
    const std::int32_t read = CLng(raw.size());
    if (read == 1) return {1, one(raw.front()), code};
    Array<Many> values(read);
    std::transform(raw.begin(), raw.end(), values.Span().begin(), many);
    return {read, std::move(values), code_of_many};
}

template <class T> T Same(T value)
{
    return value;
}
std::int16_t Signed(std::uint8_t value)
{
    return static_cast<std::int16_t>(value > 127 ? value - 256 : value);
}
std::int32_t Unsigned16(std::int16_t value)
{
    return value < 0 ? value + 65536 : value;
}
/// A lone negative value is taken away instead of added; readers of lone values rely on it.
std::int32_t LoneUnsigned16(std::int16_t value)
{
    return value < 0 ? 65536 - value : value;
}
double Unsigned32(std::int32_t value)
{
    return value < 0 ? value + 4294967296.0 : value;
}
Currency ToCurrency(std::int64_t value)
{
    return {value};
}
Date ToDate(double value)
{
    return {value};
}

} // namespace

FreadResult fread(FileNumber File, std::int64_t Count, std::string_view TypeName)
{
    const Variant whole = std::int16_t{-999};
    const Variant broken = -999.999;
    // clang-format off
    if (TypeName == "uchar")    return ReadAs(File, Count, "b", "b", whole, Same<std::uint8_t>, Same<std::uint8_t>);
    if (TypeName == "char")     return ReadAs(File, Count, "b", "i", whole, Signed, Signed);
    if (TypeName == "short")    return ReadAs(File, Count, "i", "i", whole, Same<std::int16_t>, Same<std::int16_t>);
    if (TypeName == "ushort")   return ReadAs(File, Count, "L", "L", whole, LoneUnsigned16, Unsigned16);
    if (TypeName == "long")     return ReadAs(File, Count, "L", "L", whole, Same<std::int32_t>, Same<std::int32_t>);
    if (TypeName == "ulong")    return ReadAs(File, Count, "r", "r", whole, Unsigned32, Unsigned32);
    if (TypeName == "single")   return ReadAs(File, Count, "single", "single", broken, Same<float>, Same<float>);
    if (TypeName == "double")   return ReadAs(File, Count, "r", "r", broken, Same<double>, Same<double>);
    if (TypeName == "currency") return ReadAs(File, Count, "currency", "currency", broken, ToCurrency, ToCurrency);
    if (TypeName == "data")     return ReadAs(File, Count, "data", "data", broken, ToDate, ToDate);
    // clang-format on
    return {};
}

} // namespace lumora
