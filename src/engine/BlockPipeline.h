#pragma once

#include "base/Progress.h"

#include <string>

namespace lumora {

class BlockResampler;

/// A whole run: what to read, what to write, and the pitch quotient.
struct PitchRun {
    std::string InFileName;
    std::string OutFileName;
    double Q_P = 1.0; ///< old pitch over new pitch, 0.5 and up; 0 runs as 1.0
    int Channels = 1; ///< 1 or 2, what the file is taken for
};

struct PitchReport {
    /// The source was cut down while the run read it: bytes behind its new end may count as zeros.
    bool source_has_shrunk = false;
};

/// Streams the file through stretching and resampling, chunk by chunk; memory does not grow with
/// its length. The source is opened once and closed at the end. The result has the input's rate and
/// channels, 16 bits, and its length rounded down to whole blocks; it lags by BlockLen + 1 samples.
/// Between chunks the file written is valid, and Bar (0..chunks + 1), PumpEvents and PublishPercent
/// are served; a run cannot be cancelled. A missing input ends it silently.
///
/// The resampler's one surviving sample goes from run to run: a run that must not depend on the one
/// before takes a fresh BlockResampler.
///
/// Errors: 5 for Channels other than 1 or 2; 75 where the output is the input, by whatever name; 9
/// for a file shorter than one block (nothing is written), for a faulty header (behind its
/// message), for a width other than 8 or 16 bits, for channels that differ from the file's, and for
/// a scale 1 / Q_P above 2.0; 6 or 11 for a rate outside 2206 to 820,510 Hz; 7 where the file lacks
/// more than 1.45 seconds of what its header promises; those of ReadWaveInfo, WriteNewWave and
/// AppendWave.
PitchReport RunBlockPipeline(const PitchRun& run, BlockResampler& resampler, const RunHooks& hooks);

} // namespace lumora
