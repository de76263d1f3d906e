#pragma once

#include "cli/CommandLine.h"

namespace lumora {

/// `lumora arr`: answers the exit status, 1 if the file could not be done. UsageError where the
/// result would be the input.
int RunArrCommand(const ArrRequest& request);

} // namespace lumora
