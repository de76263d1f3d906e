#pragma once

#include "base/ByteStream.h"

#include <cstdint>
#include <string>

namespace lumora {

/// One chunk's head as read from a file.
struct ChunkHeader {
    FileNumber File = kNoFile;
    Variant Data;          ///< the four id bytes as read
    std::string ID;        ///< the id, blanks at the ends trimmed: "fmt " arrives as "fmt"
    std::int32_t Size = 0; ///< the size the file states, in bytes
    std::string Message;   ///< empty, or the text of an error
};

/// The format tag of plain samples, the only ones that are read and written.
inline constexpr std::int16_t kPcmTag = 1;

/// The fields of a format chunk.
struct WaveFormatFields {
    std::int16_t wFormatTag = 0;
    std::int16_t nChannels = 0;
    std::int32_t nSamplesPerSec = 0;
    std::int32_t nAvgBytesPerSec = 0;
    std::int16_t nBlockAlign = 0;
    std::int16_t nBitsPerSample = 0; ///< 0 when absent: only tag 1 has it read
    std::int16_t cbExtra = 0;        ///< the word behind the bits, when the chunk has it
    std::string Message;             ///< empty, or the text of an error
};

/// The header of a WAVE file. Ids are as found, "" for an absent chunk.
struct WaveInfo {
    std::string RiffID, WaveID, FmtID, FactID, DataID;
    std::int32_t RiffSize = 0;
    std::int32_t FmtSize = 0;
    std::int16_t wFormatTag = 0;
    std::int16_t nChannels = 0;
    std::int32_t nSamplesPerSec = 0;
    std::int32_t nAvgBytesPerSec = 0;
    std::int16_t nBlockAlign = 0;
    std::int16_t nBitsPerSample = 0;
    std::int16_t cbExtra = 0;
    std::int32_t FactSize = 0;
    std::int32_t TotalSamples = 0; ///< samples per channel, from the data size
    std::int32_t DataSize = 0;     ///< bytes that the data chunk states
    std::int32_t DataStart = 0;    ///< file position of the first data byte, from 1
    std::int32_t DataEnd = 0;      ///< file position of the last data byte
    std::string Message;           ///< empty, or the text of an error
};

} // namespace lumora
