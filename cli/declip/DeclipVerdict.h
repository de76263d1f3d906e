#pragma once

#include "cli/files/JobOutcome.h"
#include "cli/files/RunLimits.h"
#include "overfilter/RemoveOverStream.h"

namespace lumora {

/// What is told of a file that went through the over-range filter: how good the result is, what was
/// rebuilt, what was left and why, and how much quieter the result is.
JobSummary DeclipVerdict(const OverFilterReport& report, const SoundShape& sound,
                         OverFilterLength length);

/// Samples of a stereo file change sides: the filter delays the interleaved stream by an odd number
/// of them.
bool ExchangesChannels(const OverFilterReport& report, const SoundShape& sound,
                       OverFilterLength length);

/// Most regions of a stereo file are single samples of the interleaved stream: only one channel at
/// a time was over a limit, or each over another. Peaks came to lie on it or stay as they were.
bool FlattensOneSide(const OverFilterReport& report, const SoundShape& sound);

} // namespace lumora
