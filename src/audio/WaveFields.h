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

} // namespace lumora
