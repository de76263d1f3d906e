#pragma once

#include "overfilter/OverFilterRequest.h"

#include <cstdint>
#include <string>

namespace lumora {

enum class OverFilterLength {
    /// As the filter runs: BufferLen - 1 interleaved zeros first, and as many samples of the source
    /// never come out.
    Delayed,
    /// Without these zeros and with silence fed at the end: aligned with the source.
    Kept,
};

struct OverFilterReport {
    enum class End {
        Complete,
        Cancelled,
        Failed, ///< a message has told why
    };
    End end = End::Failed;
    std::int16_t QualityGood = 0;
    std::int16_t BufferLen = 0; ///< in interleaved samples; the delay is one less
    OverFilterFigures figures;
    /// Regions in the last BufferLen - 1 samples of the source, which do not come out where it is
    /// Delayed.
    std::int64_t regions_behind = 0;
    /// The source was cut down while the run read it: bytes behind its new end may count as zeros.
    bool source_has_shrunk = false;
};

/// RemoveOverFile with memory that does not grow with the length: each second of sound is written
/// when it has left the filter, the header last, when all its sizes are true. The target gets the
/// bytes of RemoveOverFile's result; only a stereo sound of one frame differs, which has here the
/// channels of its source. An ordinary file of the target's name is replaced. A fault of
/// the source leaves it as it was; once the target is open, a cancel or an error leaves none.
///
/// Messages: those of ReadWaveInfo, and " Cannot open  WAV file for output." under "Error using
/// fopen.". Errors: 75 where the target is the source; those of OverFilterRun; 61, 70, 75 while
/// writing.
OverFilterReport RemoveOverStream(const std::string& SourcePath, const std::string& TargetPath,
                                  OverFilterLength Length = OverFilterLength::Delayed,
                                  const OverFilterRequest& Request = {});

} // namespace lumora
