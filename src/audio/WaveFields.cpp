#include "audio/WaveFields.h"

#include "audio/WaveRecords.h"

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

} // namespace lumora
