#pragma once

#include "audio/WaveChunks.h"
#include "audio/WaveRecords.h"

namespace lumora {

/// The header of an open file from its first byte on, as ReadWaveInfo tells it, but TotalSamples
/// is what a fact chunk states, or 0. Without a Message the file stands at its first data byte.
/// Errors 6 (the data would end beyond 2 GiB), 63.
WaveInfo ReadHeader(FileNumber File, MessageForm Form);

} // namespace lumora
