#pragma once

#include "cli/grammar/Grammar.h"

namespace lumora {

/// `lumora pitch`.
Command PitchCommand();

} // namespace lumora
