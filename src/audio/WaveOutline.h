#pragma once

#include "audio/WaveRecords.h"

#include <cstdint>
#include <string>
#include <vector>

namespace lumora {

struct WaveChunk {
    std::string id;
    std::int64_t bytes = 0; ///< as stated, without a sign: up to 4 GiB
    std::int64_t start = 0; ///< file position of its first byte behind the head, from 1
};

/// What a RIFF WAVE file holds up to its data, passing over what the engine's reader stops at. It
/// serves to explain a file; nothing is read by it.
struct WaveOutline {
    WaveInfo header; ///< TotalSamples and DataEnd stay 0; RiffID and WaveID empty: no WAVE file
    std::vector<WaveChunk> chunks; ///< in order, at most kMostChunks; the data chunk is the last
    std::int64_t file_bytes = 0;

    bool IsWave() const { return !header.WaveID.empty(); }
    /// The data chunk, null where none was found.
    const WaveChunk* Data() const;
    /// The first chunk ahead of the data that the engine's reader does not know where it stands, or
    /// null.
    const WaveChunk* Stranger() const;
    /// Bytes of the data chunk that are in the file.
    std::int64_t DataBytesThere() const;
    /// The data size was left open, as by a recorder that was cut off or wrote into a pipe.
    bool NeverCompleted() const;
    /// The data chunk is complete in its size, and the file ends before it does.
    bool IsCutShort() const;

    static constexpr std::size_t kMostChunks = 100;
};

/// Never fails: what cannot be read stays empty. Shows no message.
WaveOutline ReadWaveOutline(const std::string& path);

} // namespace lumora
