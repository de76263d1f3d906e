#pragma once

#include "cli/CommandLine.h"

namespace lumora {

/// `lumora pitch`: answers the exit status. UsageError, before anything is touched, for arguments
/// that contradict each other.
int RunPitchCommand(const PitchRequest& request);

} // namespace lumora
