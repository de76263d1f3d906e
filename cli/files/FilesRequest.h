#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace lumora {

/// What the commands that make sound files of sound files have in common, as it was given.
struct FilesRequest {
    std::vector<std::string> inputs;   ///< at least one
    std::string output;                ///< of the one input, unless there is a folder
    std::optional<std::string> folder; ///< for the results of all inputs
    std::string picture;               ///< of the one input; empty: not wanted
    std::size_t jobs = 1;
    bool force = false;
    bool json = false;
};

} // namespace lumora
