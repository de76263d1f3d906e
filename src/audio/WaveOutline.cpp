#include "audio/WaveOutline.h"

#include "audio/EnginePath.h"
#include "audio/WaveChunks.h"
#include "audio/WaveHeader.h"
#include "base/QuietMessages.h"
#include "base/RunTimeError.h"
#include "base/Text.h"

#include <algorithm>

namespace lumora {

namespace {

std::int64_t Unsigned(std::int32_t size)
{
    return static_cast<std::uint32_t>(size);
}

void TakeChunk(FileNumber file, const ChunkHeader& chunk, WaveInfo& header)
{
    if (chunk.ID == "fmt") {
        header.FmtID = chunk.ID;
        header.FmtSize = chunk.Size;
        WaveFormatFields format;
        read_waveformat(file, chunk, format);
        TakeFormat(format, header);
    } else if (chunk.ID == "fact") {
        header.FactID = chunk.ID;
        header.FactSize = chunk.Size;
    } else if (chunk.ID == "data") {
        header.DataID = chunk.ID;
        header.DataSize = chunk.Size;
        header.DataStart = static_cast<std::int32_t>(FilePosition(file));
    }
}

void Walk(FileNumber file, WaveOutline& outline)
{
    const ChunkHeader riff = read_ckinfo(file);
    if (!EqualIgnoringCase(riff.ID, "RIFF")) return;
    outline.header.RiffID = riff.ID;
    outline.header.RiffSize = riff.Size;
    const RiffType wave = find_refftype(file, "WAVE");
    if (wave.Message.empty()) outline.header.WaveID = wave.ID;
    while (outline.IsWave() && outline.chunks.size() < WaveOutline::kMostChunks) {
        const ChunkHeader chunk = read_ckinfo(file);
        if (!chunk.Message.empty()) return;
        const std::int64_t start = FilePosition(file);
        outline.chunks.push_back({chunk.ID, Unsigned(chunk.Size), start});
        TakeChunk(file, chunk, outline.header);
        if (chunk.ID == "data") return;
        const std::int64_t pad = chunk.Size % 2 != 0 ? 1 : 0; // chunks start at even bytes
        SeekTo(file, start + Unsigned(chunk.Size) + pad);
    }
}

} // namespace

const WaveChunk* WaveOutline::Data() const
{
    return chunks.empty() || chunks.back().id != "data" ? nullptr : &chunks.back();
}

const WaveChunk* WaveOutline::Stranger() const
{
    bool behind_info = false;
    for (const WaveChunk& chunk : chunks) {
        // An INFO chunk is passed over without its pad byte, and only fact and data count behind
        // it.
        const bool is_info = chunk.id == "INFO" && chunk.bytes % 2 == 0;
        const bool known = chunk.id == "fact" || chunk.id == "data" ||
                           (!behind_info && (chunk.id == "fmt" || is_info));
        if (!known) return &chunk;
        behind_info = behind_info || is_info;
    }
    return nullptr;
}

std::int64_t WaveOutline::DataBytesThere() const
{
    if (!Data()) return 0;
    return std::clamp<std::int64_t>(file_bytes - Data()->start + 1, 0, Data()->bytes);
}

bool WaveOutline::NeverCompleted() const
{
    // Writers into pipes state a size near the greatest that 31 or 32 bits hold.
    constexpr std::int64_t kPlaceholder = 0x7FFF0000;
    if (!Data()) return false;
    const bool more_behind = file_bytes >= Data()->start;
    return (Data()->bytes == 0 && more_behind) ||
           (Data()->bytes >= kPlaceholder && DataBytesThere() < Data()->bytes);
}

bool WaveOutline::IsCutShort() const
{
    return Data() && !NeverCompleted() && DataBytesThere() < Data()->bytes;
}

WaveOutline ReadWaveOutline(const std::string& path)
{
    const QuietMessages unheard;
    WaveOutline outline;
    try {
        OpenFile file(open_wav(EnginePath(path)));
        if (file.Failed()) return outline;
        outline.file_bytes = FileLength(file.Number());
        Walk(file.Number(), outline);
    } catch (const RunTimeError&) {
        // A damaged head: what was read of it so far is what there is to tell.
    }
    return outline;
}

} // namespace lumora
