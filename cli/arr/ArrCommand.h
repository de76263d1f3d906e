#pragma once

#include "cli/grammar/Grammar.h"

namespace lumora {

/// `lumora arr`.
Command ArrCommand();

} // namespace lumora
