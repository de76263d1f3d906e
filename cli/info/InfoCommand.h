#pragma once

#include "cli/grammar/Grammar.h"

namespace lumora {

/// `lumora info`. Its status is 1 if there was a file that nothing could read.
Command InfoCommand();

} // namespace lumora
