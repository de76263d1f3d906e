#pragma once

#include "support/TempFolder.h"
#include "support/WaveBuilder.h"

#include <cstdint>
#include <string>
#include <vector>

namespace lumora::test {

/// `frames` frames of something with a pitch, a beat and some noise, different in each channel; at
/// most half of full scale. The same every time.
std::vector<std::int16_t> Tune(std::int64_t frames, int channels = 1);

/// The samples as they stand in a file.
std::string BytesOfSamples(const std::vector<std::int16_t>& samples);

/// A plain 16-bit file of the tune.
std::string TuneWave(std::int64_t frames, int channels = 1, std::int32_t rate_hz = 22050);

/// Writes the samples, channels interleaved, in any format of libsndfile (SF_FORMAT_...), scaled by
/// `gain` where the format holds fractions.
void WriteWithLibrary(const std::string& path, int format, const std::vector<std::int16_t>& samples,
                      int channels, int rate_hz, double gain = 1.0);

/// What the engine makes of a plain file, called directly in this process: the whole result.
std::string EngineResult(const std::string& path, double quotient, int channels = 1);

} // namespace lumora::test
