#pragma once

#include "cli/grammar/Grammar.h"

#include <string>
#include <vector>

namespace lumora {

/// What a command line asks for: the work of a command whose fields are filled now, or a text.
struct Asked {
    const Command* command = nullptr; ///< one of those given
    std::string text = {};            ///< help or the version, where there is no command
};

/// Reads the words behind the program's name. UsageError if they cannot be meant so.
Asked ReadCommandLine(const std::vector<Command>& commands, std::vector<std::string> words);

} // namespace lumora
