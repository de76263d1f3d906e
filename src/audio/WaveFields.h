#pragma once

#include "base/ByteStream.h"

#include <cstdint>

/// The fields of a WAVE header, each written where the file stands.
namespace lumora {

void PutId(FileNumber file, const char* id);
void PutLong(FileNumber file, std::int32_t value);
void PutShort(FileNumber file, std::int32_t value);

/// What plain samples state about themselves.
struct PcmFields {
    std::int16_t channels;
    std::int32_t rate_hz;
    std::int32_t bytes_per_second;
    std::int16_t frame_bytes;
    std::int16_t bits;
};
/// The sixteen bytes that begin a format chunk: the tag and the fields in their order.
void PutPcmFields(FileNumber file, const PcmFields& fields);

/// The header of a file with nothing ahead of its data but the format, as wavwrite makes it.
struct PlainHeader {
    std::int32_t riff_bytes;
    PcmFields format;
    std::int32_t data_bytes;
    bool padded; ///< chunks have even lengths: a zero follows odd data, and the RIFF size counts it
};
inline constexpr std::int64_t kPlainHeaderBytes = 44;

/// For `values` numbers in all, of `bits` bits in as few bytes as hold them. Error 6 for a field
/// that does not fit.
PlainHeader PlainHeaderFor(std::int64_t values, std::int32_t channels, std::int32_t rate_hz,
                           std::int16_t bits);
void PutPlainHeader(FileNumber file, const PlainHeader& header);

} // namespace lumora
