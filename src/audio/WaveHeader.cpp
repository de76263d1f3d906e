#include "audio/WaveHeader.h"

#include "audio/WaveMessages.h"
#include "audio/WaveStream.h"
#include "base/Numbers.h"

namespace lumora {

using namespace wave_messages;

namespace {

/// Walks the chunks of one file into one record. A step that fails has shown its message and left
/// its text in the record, on which the walk ends.
class HeaderWalk {
public:
    HeaderWalk(FileNumber file, MessageForm form, WaveInfo& info)
        : file_(file), form_(form), info_(info)
    {
    }

    void Run()
    {
        if (!ReadRiff()) return;
        while (info_.DataID.empty() && ReadChunk()) {
        }
    }

private:
    bool ReadRiff()
    {
        const ChunkHeader riff = read_cktype(file_, "RIFF", form_);
        if (Failed(riff.Message)) return false;
        info_.RiffID = riff.ID;
        info_.RiffSize = riff.Size;
        const RiffType wave = find_refftype(file_, "WAVE", form_);
        if (Failed(wave.Message)) return false;
        info_.WaveID = wave.ID;
        return true;
    }

    bool ReadChunk()
    {
        const ChunkHeader chunk = read_cktype(file_, "", form_);
        if (Failed(chunk.Message)) return false;
        if (chunk.ID == "fact") return ReadFact(chunk);
        if (chunk.ID == "data") return NoteData(chunk);
        if (chunk.ID == "fmt" && !behind_info_) return ReadFormat(chunk);
        if (chunk.ID == "INFO" && !behind_info_) return PassInfo(chunk);
        return PassUnknown(chunk);
    }

    bool ReadFact(const ChunkHeader& chunk)
    {
        info_.FactID = chunk.ID;
        info_.FactSize = chunk.Size;
        FactFields fact;
        read_factck(file_, chunk, fact, form_);
        info_.TotalSamples = fact.Samples; // until the data chunk tells the truth
        return !Failed(fact.Message);
    }

    bool ReadFormat(const ChunkHeader& chunk)
    {
        info_.FmtID = chunk.ID;
        info_.FmtSize = chunk.Size;
        WaveFormatFields format;
        read_waveformat(file_, chunk, format, form_);
        if (Failed(format.Message)) return false;
        TakeFormat(format, info_);
        return true;
    }

    /// Behind an INFO chunk only fact and data are known.
    bool PassInfo(const ChunkHeader& chunk)
    {
        behind_info_ = true;
        SeekTo(file_, FilePosition(file_) + chunk.Size);
        return true;
    }

    bool NoteData(const ChunkHeader& chunk)
    {
        info_.DataID = chunk.ID;
        info_.DataSize = chunk.Size;
        if (info_.FmtID.empty()) {
            info_.Message = ShowWaveFault(form_, kWavread, kDataBeforeFormat);
            return false;
        }
        info_.DataStart = CLng(FilePosition(file_));
        info_.DataEnd = CLng(std::int64_t{info_.DataStart} + info_.DataSize - 1);
        return true;
    }

    /// "SET_CUR" is none of fseek's origins: a chunk that nobody knows ends the reading with
    /// fseek's message and error 63, so that no such file gets half read.
    bool PassUnknown(const ChunkHeader& chunk)
    {
        if (fseek(file_, chunk.Size, "SET_CUR").Status == 0) return true;
        info_.Message = ShowWaveFault(form_, kWavread, kBadChunkSize);
        return false;
    }

    bool Failed(const std::string& message)
    {
        info_.Message = message;
        return !message.empty();
    }

    FileNumber file_;
    MessageForm form_;
    WaveInfo& info_;
    bool behind_info_ = false;
};

/// Samples per channel, from the data size: what a fact chunk states is not trusted.
std::int32_t CountedSamples(const WaveInfo& info)
{
    const std::int64_t bits = info.nBitsPerSample == 0 ? 16 : info.nBitsPerSample;
    const std::int64_t bytes = std::int64_t{info.DataEnd} - info.DataStart + 1;
    return CLng(
        Int(Divide(static_cast<double>(bytes * 8), static_cast<double>(bits * info.nChannels))));
}

} // namespace

void TakeFormat(const WaveFormatFields& format, WaveInfo& header)
{
    header.wFormatTag = format.wFormatTag;
    header.nChannels = format.nChannels;
    header.nSamplesPerSec = format.nSamplesPerSec;
    header.nAvgBytesPerSec = format.nAvgBytesPerSec;
    header.nBlockAlign = format.nBlockAlign;
    header.nBitsPerSample = format.nBitsPerSample;
    header.cbExtra = format.cbExtra;
}

WaveInfo ReadHeader(FileNumber File, MessageForm Form)
{
    WaveInfo info;
    HeaderWalk(File, Form, info).Run();
    return info;
}

WaveInfo ReadStreamHeader(FileNumber File)
{
    WaveInfo info = ReadHeader(File, MessageForm::Titled);
    if (info.Message.empty()) info.TotalSamples = CountedSamples(info);
    return info;
}

WaveInfo ReadWaveInfo(const std::string& FileName)
{
    const OpenFile file(open_wav(FileName));
    return file.Failed() ? WaveInfo{} : ReadStreamHeader(file.Number());
}

} // namespace lumora
