#include "audio/WaveChunks.h"

#include "audio/WaveMessages.h"
#include "base/Messages.h"
#include "base/Paths.h"
#include "base/Text.h"

namespace lumora {

using namespace wave_messages;

namespace {

/// Reads one number of the named type into a field. False if the file has no more.
template <class T> bool ReadField(FileNumber file, const char* type_name, T& field)
{
    const FreadResult read = fread(file, 1, type_name);
    if (read.Count < 1) return false;
    field = read.Value.As<T>();
    return true;
}

/// Four id bytes as read; fewer near the end of the file.
FreadResult ReadId(FileNumber file)
{
    return fread(file, 4, "uchar");
}

constexpr std::int32_t kFormatBytes = 14; ///< tag to block align
constexpr std::int32_t kPcmBytes = 16;    ///< and the bits
constexpr std::int32_t kExtraBytes = 18;  ///< and the word behind them

/// Skips what `chunk` has beyond the `used` bytes read of it. False if that leaves the file.
bool SkipRest(FileNumber file, const ChunkHeader& chunk, std::int32_t used)
{
    return fseek(file, std::int64_t{chunk.Size} - used, "SEEK_CUR").Status == 0;
}

/// What tag 1 has behind the common fields.
std::string ReadPcmPart(FileNumber file, const ChunkHeader& chunk, WaveFormatFields& format,
                        MessageForm form)
{
    if (chunk.Size < kPcmBytes) return ShowWaveFault(form, kReadWaveformat, kPcmShortChunk);
    if (!ReadField(file, "short", format.nBitsPerSample))
        return ShowWaveFault(form, kReadWaveformat, kPcmBits);
    const bool extra = chunk.Size >= kExtraBytes;
    if (extra && !ReadField(file, "short", format.cbExtra))
        return ShowWaveFault(form, kReadWaveformat, kPcmExtra);
    if (!SkipRest(file, chunk, extra ? kExtraBytes : kPcmBytes))
        return ShowWaveFault(form, kReadWaveformat, kPcmSeek);
    return {};
}

bool ReadCommonPart(FileNumber file, WaveFormatFields& format)
{
    return ReadField(file, "short", format.wFormatTag) &&
           ReadField(file, "short", format.nChannels) &&
           ReadField(file, "long", format.nSamplesPerSec) &&
           ReadField(file, "long", format.nAvgBytesPerSec) &&
           ReadField(file, "short", format.nBlockAlign);
}

} // namespace

std::string ShowWaveFault(MessageForm Form, const char* title, const std::string& text)
{
    if (Form == MessageForm::Titled)
        ShowFileError(title, text);
    else
        ShowPlainMessage(text);
    return text;
}

std::string WaveFileName(const std::string& FileName)
{
    const bool named_in_full = FileName.find('.') != std::string::npos;
    return named_in_full ? FileName : FileName + ".wav";
}

FileNumber open_wav(const std::string& FileName, MessageForm Form)
{
    const std::string name = WaveFileName(FileName);
    if (FileExists(name)) return OpenForReading(name);
    ShowWaveFault(Form, kOpenWav, kNoWavFile);
    return kNoFile;
}

ChunkHeader read_ckinfo(FileNumber File, MessageForm Form)
{
    ChunkHeader chunk;
    chunk.File = File;
    const FreadResult id = ReadId(File);
    if (id.Count < 4) {
        chunk.Message = ShowWaveFault(Form, kReadCkinfo, kTruncatedHeader);
        return chunk;
    }
    chunk.Data = id.Value;
    chunk.ID = deblank(id.Value, id.TypeCode);
    if (!ReadField(File, "long", chunk.Size))
        chunk.Message = ShowWaveFault(Form, kReadCkinfo, kTruncatedData);
    return chunk;
}

ChunkHeader read_cktype(FileNumber File, std::string_view Expected, MessageForm Form)
{
    ChunkHeader chunk = read_ckinfo(File, Form);
    if (!chunk.Message.empty() || Expected.empty()) return chunk;
    if (!EqualIgnoringCase(chunk.ID, Expected))
        chunk.Message = ShowWaveFault(Form, kReadCktype,
                                      std::string("<").append(Expected).append(kNotExpected));
    return chunk;
}

RiffType find_refftype(FileNumber File, std::string_view Type, MessageForm Form)
{
    const FreadResult id = ReadId(File);
    if (id.Count < 4) return {{}, ShowWaveFault(Form, kFindRefftype, kTruncatedRiff)};
    RiffType type{deblank(id.Value, id.TypeCode), {}};
    if (!EqualIgnoringCase(type.ID, Type))
        type.Message = ShowWaveFault(Form, kFindRefftype, kNotWav);
    return type;
}

void read_factck(FileNumber File, const ChunkHeader& Chunk, FactFields& Result, MessageForm Form)
{
    constexpr std::int32_t kCountBytes = 4;
    if (Chunk.Size < kCountBytes || !ReadField(File, "long", Result.Samples))
        Result.Message = ShowWaveFault(Form, kReadFactck, kFactShort);
    else if (!SkipRest(File, Chunk, kCountBytes))
        Result.Message = ShowWaveFault(Form, kReadFactck, kFactSeek);
}

void read_waveformat(FileNumber File, const ChunkHeader& Chunk, WaveFormatFields& Format,
                     MessageForm Form)
{
    if (Chunk.Size < kFormatBytes || !ReadCommonPart(File, Format)) {
        Format.Message = ShowWaveFault(Form, kReadWaveformat, kFormatShort);
    } else if (Format.wFormatTag == kPcmTag) {
        Format.Message = ReadPcmPart(File, Chunk, Format, Form);
    } else if (!SkipRest(File, Chunk, kFormatBytes)) {
        Format.Message = ShowWaveFault(Form, kReadWaveformat, kFormatSeek);
    }
}

} // namespace lumora
