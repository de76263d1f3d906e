#pragma once

#include "cli/grammar/Grammar.h"

#include <vector>

namespace lumora {

/// The table of commands, in the order in which help lists them: each knows its name, its options
/// and its work itself. Their fields are made anew with every call.
std::vector<Command> AllCommands();

} // namespace lumora
