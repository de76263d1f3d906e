#pragma once

#include "audio/WaveOutline.h"
#include "cli/files/RunLimits.h"

#include <string>

namespace lumora {

enum class Road {
    Direct,    ///< the engine reads the file as it is
    Converted, ///< to a plain 16-bit PCM WAVE first
    Refused,   ///< cannot be worked on
};

/// What the command knows of a file ahead of working on it, and what it will do with it.
struct InputCheck {
    Road road = Road::Refused;
    std::string reason;  ///< why not Direct: what is in the way and, if Refused, what to do
    bool read = false;   ///< something could read its sound
    WaveOutline outline; ///< its header, as the engine's reader gives it wherever it does
    std::string format;  ///< libsndfile's words; empty where it was not asked or could not read it
    SoundShape sound;    ///< 0 what is not known; samples that are there, not those promised
    std::int64_t samples_promised = 0; ///< by a file that is cut short; else 0
};

/// The name of a chunk on one line: without its blanks, as the reader has it; of one that is
/// nothing else, these in quotes.
std::string ChunkName(const std::string& id);

/// Looks at a file to be worked on within `limits`. Never fails: what is wrong with it stands in
/// the answer.
InputCheck CheckInput(const std::string& path, const RunLimits& limits);

} // namespace lumora
