#pragma once

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
inline constexpr char kFopen[] = "Error using fopen.";

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

} // namespace lumora::wave_messages
