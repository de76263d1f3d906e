#pragma once

#include "audio/WaveChunks.h"
#include "audio/WaveRecords.h"

namespace lumora {

/// The fields of a format chunk, to their places in the header.
void TakeFormat(const WaveFormatFields& format, WaveInfo& header);

/// The header of an open file from its first byte on, as ReadWaveInfo tells it, but TotalSamples
/// is what a fact chunk states, or 0. Without a Message the file stands at its first data byte.
/// Errors 6 (the data would end beyond 2 GiB), 63.
WaveInfo ReadHeader(FileNumber File, MessageForm Form);

/// What ReadWaveInfo answers, of an open file from its first byte on: ReadHeader with its messages
/// titled, and TotalSamples counted from the data size. Errors 6, 11, 63.
WaveInfo ReadStreamHeader(FileNumber File);

} // namespace lumora
