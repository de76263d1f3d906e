#pragma once

#include "audio/WaveRecords.h"
#include "base/Ref.h"
#include "base/Variant.h"
#include "numeric/clsMatrix.h"

#include <cstdint>
#include <string>

namespace lumora {

/// What wavread tells about a file.
struct WavreadResult {
    /// The header; its Message is empty, or the text of the message that was shown (for a missing
    /// file empty too). TotalSamples are the frames that the data size makes.
    WaveInfo Info;
    std::int32_t Rate = 0;  ///< frames a second
    std::int32_t Bits = -1; ///< the read status: bits a sample, or -1 for a failure
    /// A row per frame and a column per channel, from -1 to 1; no elements if the file has no
    /// frames. For "size" the row [frames, channels]. Empty after a failure.
    Ref<clsMatrix> Samples;
    /// The bytes behind the data chunk and its pad byte; not read for "size".
    std::string Trailing;
};

/// A whole WAVE file of plain samples of up to 16 or of 25 to 32 bits, or a part of it.
///
///   Arg1            | Arg2    | what is read
///   missing         | missing | all samples
///   "size"          | missing | sizes only; letter case ignored
///   number          | number  | samples Arg1 to Arg2, from 1 on, exchanged if Arg2 is the smaller
///   anything else             | nothing: Bits is -1, without a message
///
/// ".wav" is added to a name without "."; a text that spells a number is one. Samples of one byte
/// are (value - 128) / 128, of two value / 32768, of four value / 2147483648. Messages are those of
/// the chunk routines without their titles, and, all without title: a name of the format and "data
/// compression format is not supported" (not for "size"), "Cannot read PCM file formats with more
/// than 32 bits per samle", "Sample limits out of range.", "Error reading PCM file format." (a
/// negative size, or data that the file does not hold: nothing is made up, and no more memory is
/// taken than the file fills). Frames are counted to the nearest: a last frame that lies at least
/// half in the data chunk counts, and its missing bytes are zero. For "size" they are data bytes
/// over block align. Errors: 6 (data beyond 2 GiB), 11 (no channels, no block align), 63 (another
/// chunk ahead of the data, after fseek's message), 7, 70, 75.
WavreadResult wavread(const std::string& FileName, const Variant& Arg1 = {},
                      const Variant& Arg2 = {});

} // namespace lumora
