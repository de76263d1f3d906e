#pragma once

#include "cli/JobOutcome.h"
#include "cli/PitchSetting.h"

#include <nlohmann/json_fwd.hpp>

#include <string>

namespace lumora {

/// One file of a run and what became of it.
struct PitchReport {
    std::string file;
    std::string output;
    PitchSetting setting;
    JobOutcome outcome;

    /// The line for a file that was done: names, length, what was asked, what was made of it.
    std::string Line() const;
    /// All of it; the fields are described in the man page.
    nlohmann::ordered_json Json() const;
};

} // namespace lumora
