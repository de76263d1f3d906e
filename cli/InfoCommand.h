#pragma once

#include "cli/CommandLine.h"

namespace lumora {

/// `lumora info`: answers the exit status, 1 if there was a file that nothing could read.
int RunInfoCommand(const InfoRequest& request);

} // namespace lumora
