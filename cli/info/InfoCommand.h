#pragma once

#include <string>
#include <vector>

namespace lumora {

/// `lumora info`, as it was given.
struct InfoRequest {
    std::vector<std::string> files; ///< at least one
    bool json = false;
};

/// `lumora info`: answers the exit status, 1 if there was a file that nothing could read.
int RunInfoCommand(const InfoRequest& request);

} // namespace lumora
