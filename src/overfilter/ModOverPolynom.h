#pragma once

#include "overfilter/OverFilterRequest.h"

#include <cstdint>
#include <string>

namespace lumora {

/// Runs a WAVE file of 8 or 16 bits through the over-range filter, stereo as one interleaved
/// stream, into a temporary file beside it: the source's path without its last four characters,
/// and "tmp.wav". A file of that path is deleted first. Answers the path, or an empty text when the
/// run was cancelled, or when a message has told that the source could not be read or the result
/// not be made; nothing is left behind then.
///
/// The result is as long as the source and lags by BufferLen - 1 interleaved samples. Samples of
/// digital silence are replaced by noise of +-5e-10, so that they leave the normal equations
/// solvable. QualityFlag (1 good, 0 poor) follows the filter's flag after every second of sound.
/// The whole output stands in memory until it is written: 8 bytes a sample, and a fixed amount.
///
/// A stereo sound of one or two frames is written as wavwrite takes a matrix of so few columns:
/// with rows and columns exchanged.
///
/// Errors: 5 for a file name of fewer than four characters; 75 where the source is a symbolic link
/// to the temporary file; 70, 75 where an earlier one cannot be deleted; those of OverFilterRun; 7
/// for more samples than memory holds; 61, 70, 75 while writing. A file half written is removed.
std::string RemoveOverFile(const std::string& SourcePath, std::int16_t& QualityFlag,
                           ProgressBar* Progress = nullptr);
/// The same with all that may go with a run.
std::string RemoveOverFile(const std::string& SourcePath, std::int16_t& QualityFlag,
                           const OverFilterRequest& Request);

} // namespace lumora
