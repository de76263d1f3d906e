#pragma once

#include "cli/grammar/Grammar.h"

namespace lumora {

/// `lumora declip` rebuilds the over-driven stretches of every input. Its status is 0 for a result
/// of low quality too.
Command DeclipCommand();

} // namespace lumora
