#pragma once

#include "cli/CommandLine.h"

namespace lumora {

/// Rebuilds the over-driven stretches of every input. Answers the exit status, which is 0 for a
/// result of low quality too. UsageError before anything is begun.
int RunDeclipCommand(const DeclipRequest& request);

} // namespace lumora
