#pragma once

#include "base/FileMessages.h"

#include <cstdint>

/// The texts and titles of the WAVE routines, spelled as users know them. Texts that differ in a
/// single letter tell different faults.
namespace lumora::wave_messages {

inline constexpr char kOpenWav[] = "Error using open_wav.";
inline constexpr char kReadCkinfo[] = "Error using read_ckinfo";
inline constexpr char kReadCktype[] = "Error using read_cktype";
inline constexpr char kFindRefftype[] = "Error using find_refftype";
inline constexpr char kReadFactck[] = "Error using read_factck";
inline constexpr char kReadWaveformat[] = "Error using read_waveformat";
inline constexpr char kWavread[] = "Error using wavread";
using file_messages::kFopen;

inline constexpr char kNoWavFile[] =
    " Cannot open specifid WAV file for input, because file not exist.";
inline constexpr char kTruncatedHeader[] = "Truncated chunk header found -possibly not a WAV file";
inline constexpr char kTruncatedData[] = "Truncated chunk data found- possibly not a WAV file";
inline constexpr char kNotExpected[] = "-ck> did not appear as expected"; ///< behind "<" and the id
inline constexpr char kTruncatedRiff[] = "Truncated RIFF data found- possibly not a WAV file";
inline constexpr char kNotWav[] = "Not a WAV file";
inline constexpr char kFactShort[] = "Error reading <fact-ck> chunc.";
inline constexpr char kFactSeek[] = "Error reading <fact-ck> chunk";
inline constexpr char kFormatShort[] = "Error reading <wave_fmt> chunk.";
inline constexpr char kFormatSeek[] = "Error reading <wave-fmt> chunk";
inline constexpr char kPcmShortChunk[] = "error reading <wave-fmt> chunk";
inline constexpr char kPcmBits[] = "Error reading PCM <wave-fmt> chunk";
inline constexpr char kPcmExtra[] = "Error reading PCM <wave-fmt> chunc.";
inline constexpr char kPcmSeek[] = "Error reading pcm <wave-fmt> chunk";
inline constexpr char kDataBeforeFormat[] =
    "Corrupt WAV file : found data before format information.";
inline constexpr char kBadChunkSize[] = "Incorrect chunk size information in RIFF file. ";
inline constexpr char kNoOutput[] = " Cannot open  WAV file for output.";

// The whole-file routines; theirs come without a title.
inline constexpr char kPcmFormat[] = "Error reading PCM file format.";
inline constexpr char kReadTooWide[] =
    "Cannot read PCM file formats with more than 32 bits per samle";
inline constexpr char kOutOfLimits[] = "Sample limits out of range.";
inline constexpr char kNotSupported[] =
    " data compression format is not supported";    ///< behind the name
inline constexpr char kFormatNumber[] = "format #"; ///< in front of a tag that has no name
inline constexpr char kNoSignal[] = "Incorrect First parametr";
inline constexpr char kWriteTooWide[] = "Cannot write WAVE files with more than 16 bits/sample.";

struct FormatName {
    std::int16_t tag;
    const char* name;
};
inline constexpr FormatName kFormatNames[] = {
    {2, "Microsoft ADPCM"},
    {6, "CCITT a-law"},
    {7, "CCITT mu-law"},
    {17, "IMA ADPCM"},
    {34, "DSP Group TrueSpeech TM"},
    {49, "GsM 6.10"},
    {50, "MSN Audio"},
    {257, "IBM Mu-law"},
    {258, "IBM A-law"},
    {259, "IBM AVC Adaptive Diffrential"},
};

} // namespace lumora::wave_messages
