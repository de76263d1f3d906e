#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace lumora {

/// The numbers of a run that came to its end. Goes through a pipe as it lies in memory.
struct PitchFigures {
    std::int64_t samples = 0;        ///< per channel, of the sound that was read
    std::int64_t output_samples = 0; ///< per channel, of the result
    double elapsed_seconds = 0.0;    ///< from opening the input to the complete result
    std::int32_t rate_hz = 0;
    std::int16_t channels = 0;
    std::int16_t block_samples = 0;
};

/// What became of one file.
struct JobOutcome {
    std::vector<std::string> notes;      ///< what the user should know besides the result
    std::optional<PitchFigures> figures; ///< present if it was done
    std::string error;                   ///< what is wrong and what to do if not
};

} // namespace lumora
