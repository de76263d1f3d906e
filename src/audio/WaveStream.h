#pragma once

#include "audio/WaveRecords.h"
#include "base/Array.h"

#include <cstdint>
#include <optional>
#include <string>

/// Streaming access to WAVE files: the header once into a record, any range of samples into plain
/// arrays, a 16-bit file made from one chunk and grown by more. Each call opens and closes the
/// file. Mono arrays have one dimension (1..count), others two (channel by sample), which is the
/// order of the file.
namespace lumora {

/// The header of a file. Required: "RIFF", "WAVE", "fmt" ahead of "data"; "fact" is optional and
/// not trusted. A chunk of another kind ahead of the data ends in the message and error 63 of
/// fseek. On any other fault the message is shown and stands in the record's Message; a file that
/// is not there gives an empty record. Errors: 6, 11 (sizes or channels that make no count of
/// samples), 63.
WaveInfo ReadWaveInfo(const std::string& FileName);

/// Samples First..Last as doubles: 16 bits value / 32768, 8 bits (value - 128) / 128. First is 1
/// and Last the end unless given; both are held within 1..TotalSamples and exchanged if Last is
/// the smaller. Other widths, and a file without samples, leave Samples as it was; of more than two
/// channels only the first two are converted, the others are zero. Bytes that the file promises
/// but does not hold read as zero; promising more than a chunk's worth (1.45 seconds) of
/// them within one call is error 7. Other errors: those of ReadWaveInfo.
void ReadWaveSamples(const std::string& FileName, Array<double>& Samples,
                     std::optional<std::int64_t> First = {}, std::optional<std::int64_t> Last = {});

/// The same range of an 8-bit file as raw bytes, all channels. Other widths leave Bytes as it was.
void ReadWaveBytes(const std::string& FileName, Array<std::uint8_t>& Bytes,
                   std::optional<std::int64_t> First = {}, std::optional<std::int64_t> Last = {});
/// The same range of a 16-bit file as raw numbers, all channels. Other widths leave Shorts as it
/// was.
void ReadWaveShorts(const std::string& FileName, Array<std::int16_t>& Shorts,
                    std::optional<std::int64_t> First = {}, std::optional<std::int64_t> Last = {});

/// Reads frames from a file already open into an array that has its shape already: one dimension
/// (mono) or channel by frame, any lower bound. First is the file position of the first byte, Count
/// the frames wanted. Answers the frames read: no more than Count, than the array has room for,
/// and than the file holds whole. Errors 9 (array without shape), 52, 63.
std::int64_t ReadOpenBytes(FileNumber File, Array<std::uint8_t>& Bytes, std::int64_t First,
                           std::int64_t Count);
std::int64_t ReadOpenShorts(FileNumber File, Array<std::int16_t>& Shorts, std::int64_t First,
                            std::int64_t Count);

/// Makes a 16-bit PCM file with its 58-byte header: data first, header last. One dimension is
/// mono, two are channel (1 or 2) by sample. Rate in Hz. An existing file is replaced. A failed
/// open shows " Cannot open  WAV file for output." under "Error using fopen." and returns. Errors:
/// 9 (array without shape), 5 (more than two channels), 6 (data beyond 2 GiB), 61, 70, 75.
void WriteNewWave(const Array<std::int16_t>& Samples, const std::int32_t& Rate,
                  const std::string& FileName);

/// Puts samples behind a file that WriteNewWave made and mends its three sizes. Shapes, message and
/// errors as WriteNewWave.
void AppendWave(const Array<std::int16_t>& Samples, const std::string& FileName);

} // namespace lumora
