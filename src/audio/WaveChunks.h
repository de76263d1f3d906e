#pragma once

#include "audio/WaveRecords.h"

#include <string>
#include <string_view>

/// The steps of reading a WAVE header, one routine a chunk. Each shows its message at once and
/// leaves the text in the Message of its record, on which the caller stops.
namespace lumora {

/// Titled for the streams, under "Error using" and the routine's name; plain for whole files.
enum class MessageForm { Titled, Plain };

/// Shows a fault in its form; answers `text`, for the record.
std::string ShowWaveFault(MessageForm Form, const char* title, const std::string& text);

/// The name with ".wav" behind it if it has no ".".
std::string WaveFileName(const std::string& FileName);

/// Opens WaveFileName read only. A missing file gives kNoFile and " Cannot open specifid WAV file
/// for input, because file not exist.".
FileNumber open_wav(const std::string& FileName, MessageForm Form = MessageForm::Titled);

/// The id and size of the next chunk. "Truncated chunk header found -possibly not a WAV file",
/// "Truncated chunk data found- possibly not a WAV file".
ChunkHeader read_ckinfo(FileNumber File, MessageForm Form = MessageForm::Titled);

/// read_ckinfo, and the id must be Expected (letter case ignored) unless Expected is empty:
/// "<" Expected "-ck> did not appear as expected".
ChunkHeader read_cktype(FileNumber File, std::string_view Expected,
                        MessageForm Form = MessageForm::Titled);

struct RiffType {
    std::string ID;
    std::string Message;
};
/// The four bytes behind the RIFF head must be Type, letter case ignored. "Truncated RIFF data
/// found- possibly not a WAV file", "Not a WAV file".
RiffType find_refftype(FileNumber File, std::string_view Type,
                       MessageForm Form = MessageForm::Titled);

struct FactFields {
    std::int32_t Samples = 0; ///< what the chunk states; nobody trusts it
    std::string Message;
};
/// The body of a "fact" chunk. "Error reading <fact-ck> chunc." (short), "Error reading <fact-ck>
/// chunk" (its end lies beyond the file).
void read_factck(FileNumber File, const ChunkHeader& Chunk, FactFields& Result,
                 MessageForm Form = MessageForm::Titled);

/// The body of a "fmt" chunk, whatever its size. "Error reading <wave_fmt> chunk." (short), "Error
/// reading <wave-fmt> chunk" (its end lies beyond the file); for tag 1 also "error reading
/// <wave-fmt> chunk" (under 16 bytes), "Error reading PCM <wave-fmt> chunk" (no bits), "Error
/// reading PCM <wave-fmt> chunc." (no extra word), "Error reading pcm <wave-fmt> chunk" (end
/// beyond the file).
void read_waveformat(FileNumber File, const ChunkHeader& Chunk, WaveFormatFields& Format,
                     MessageForm Form = MessageForm::Titled);

} // namespace lumora
