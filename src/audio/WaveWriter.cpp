#include "audio/WaveFields.h"
#include "audio/WaveMessages.h"
#include "audio/WaveRoom.h"
#include "audio/WaveStream.h"
#include "base/Messages.h"
#include "base/Numbers.h"

namespace lumora {

using namespace wave_messages;

namespace {

/// Header bytes that the RIFF size counts.
constexpr std::int32_t kRiffExtra = kStreamedHeaderBytes - 8;
constexpr std::int64_t kRiffSizeAt = 5;
constexpr std::int64_t kFactValueAt = 47;
constexpr std::int64_t kDataSizeAt = 55;
constexpr std::int32_t kSampleBytes = 2;

std::int32_t ChannelsOf(const Array<std::int16_t>& samples)
{
    if (samples.Dimensions() != 2) return 1;
    const std::int64_t channels = samples.UBound(1) - samples.LBound(1) + 1;
    if (channels > 2) Raise(ErrorNumber::InvalidCall);
    return CLng(channels);
}

/// Bytes of all samples. Error 9 for an array without shape.
std::int64_t BytesOf(const Array<std::int16_t>& samples)
{
    static_cast<void>(samples.UBound());
    return static_cast<std::int64_t>(samples.Span().size()) * kSampleBytes;
}

void PutHeader(FileNumber file, std::int32_t channels, std::int32_t rate, std::int32_t data_bytes)
{
    const std::int32_t frame_bytes = channels * kSampleBytes;
    PutId(file, "RIFF");
    PutLong(file, CLng(std::int64_t{data_bytes} + kRiffExtra));
    PutId(file, "WAVE");
    PutId(file, "fmt ");
    PutLong(file, 18);
    PutPcmFields(file, {CInt(channels), rate, CLng(std::int64_t{rate} * frame_bytes),
                        CInt(frame_bytes), 8 * kSampleBytes});
    PutShort(file, 0); // no extra format bytes
    PutId(file, "fact");
    PutLong(file, 4);
    PutLong(file, data_bytes / frame_bytes);
    PutId(file, "data");
    PutLong(file, data_bytes);
}

/// The most that the signed RIFF size can state.
std::int32_t CheckedDataBytes(std::int64_t bytes)
{
    return CLng(bytes + kRiffExtra) - kRiffExtra;
}

} // namespace

void WriteNewWave(const Array<std::int16_t>& Samples, const std::int32_t& Rate,
                  const std::string& FileName)
{
    const std::int32_t channels = ChannelsOf(Samples);
    const std::int32_t data_bytes = CheckedDataBytes(BytesOf(Samples));
    OpenFile file(fopen(FileName, "wb"));
    if (file.Failed()) {
        ShowFileError(kFopen, kNoOutput);
        return;
    }
    // Data first, header last: a header is never half written.
    SeekTo(file.Number(), kStreamedHeaderBytes + 1);
    WriteValues(file.Number(), Samples.Span());
    SeekTo(file.Number(), 1);
    PutHeader(file.Number(), channels, Rate, data_bytes);
    file.Close();
}

void AppendWave(const Array<std::int16_t>& Samples, const std::string& FileName)
{
    const std::int32_t channels = ChannelsOf(Samples);
    const std::int64_t added = BytesOf(Samples);
    OpenFile file(fopen_Rudo(FileName, "wb"));
    if (file.Failed()) {
        ShowFileError(kFopen, kNoOutput);
        return;
    }
    const std::int64_t old_length = FileLength(file.Number());
    const std::int32_t data_bytes = CheckedDataBytes(old_length + added - kStreamedHeaderBytes);
    SeekTo(file.Number(), old_length + 1);
    WriteValues(file.Number(), Samples.Span());
    SeekTo(file.Number(), kRiffSizeAt);
    PutLong(file.Number(), data_bytes + kRiffExtra);
    SeekTo(file.Number(), kFactValueAt);
    PutLong(file.Number(), data_bytes / (channels * kSampleBytes));
    SeekTo(file.Number(), kDataSizeAt);
    PutLong(file.Number(), data_bytes);
    file.Close();
}

} // namespace lumora
