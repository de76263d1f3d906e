#include "audio/WaveFields.h"

#include "audio/WaveRecords.h"
#include "base/Numbers.h"

#include <string>

namespace lumora {

void PutId(FileNumber file, const char* id)
{
    fwrite(file, std::string(id), "_string");
}

void PutLong(FileNumber file, std::int32_t value)
{
    fwrite(file, value, "long");
}

void PutShort(FileNumber file, std::int32_t value)
{
    fwrite(file, value, "short");
}

void PutPcmFields(FileNumber file, const PcmFields& fields)
{
    PutShort(file, kPcmTag);
    PutShort(file, fields.channels);
    PutLong(file, fields.rate_hz);
    PutLong(file, fields.bytes_per_second);
    PutShort(file, fields.frame_bytes);
    PutShort(file, fields.bits);
}

PlainHeader PlainHeaderFor(std::int64_t values, std::int32_t channels, std::int32_t rate_hz,
                           std::int16_t bits)
{
    const std::int64_t sample_bytes = (bits + 7) / 8;
    const std::int64_t data_bytes = values * sample_bytes;
    const bool padded = data_bytes % 2 != 0;
    const std::int16_t frame_bytes = CInt(channels * sample_bytes);
    return {CLng(data_bytes + kPlainHeaderBytes - 8 + (padded ? 1 : 0)),
            {CInt(channels), rate_hz, CLng(std::int64_t{rate_hz} * frame_bytes), frame_bytes, bits},
            CLng(data_bytes),
            padded};
}

void PutPlainHeader(FileNumber file, const PlainHeader& header)
{
    PutId(file, "RIFF");
    PutLong(file, header.riff_bytes);
    PutId(file, "WAVE");
    PutId(file, "fmt ");
    PutLong(file, 16);
    PutPcmFields(file, header.format);
    PutId(file, "data");
    PutLong(file, header.data_bytes);
}

} // namespace lumora
