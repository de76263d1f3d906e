#pragma once

#include "cli/files/FilesRequest.h"
#include "cli/pitch/PitchSetting.h"

namespace lumora {

/// `lumora pitch`, as it was given.
struct PitchRequest {
    FilesRequest files;
    PitchSetting setting;
};

/// `lumora pitch`: answers the exit status. UsageError, before anything is touched, for arguments
/// that contradict each other.
int RunPitchCommand(const PitchRequest& request);

} // namespace lumora
