#pragma once

#include "cli/arr/ArrCommand.h"
#include "cli/declip/DeclipCommand.h"
#include "cli/info/InfoCommand.h"
#include "cli/pitch/PitchCommand.h"

#include <string>
#include <variant>
#include <vector>

namespace lumora {

/// Text that was asked for instead of work.
struct HelpRequest {
    std::string text;
};

using Request = std::variant<PitchRequest, DeclipRequest, InfoRequest, ArrRequest, HelpRequest>;

/// What the words behind the command's name ask for. UsageError if that cannot be told.
Request ReadCommandLine(std::vector<std::string> words);

} // namespace lumora
