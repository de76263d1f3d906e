#pragma once

#include "cli/terminal/JsonValue.h"

#include <optional>
#include <string>
#include <vector>

namespace lumora {

/// What is told of a file that was done.
struct JobSummary {
    std::string line; ///< what stands behind the names
    JsonValue fields; ///< an object
};

/// What became of one file.
struct JobOutcome {
    std::vector<std::string> notes;    ///< what the user should know besides the result
    std::optional<JobSummary> summary; ///< present if it was done
    std::string error;                 ///< what is wrong and what to do if not
};

} // namespace lumora
