#pragma once

#include "cli/files/FilesRequest.h"
#include "platform/OutputFile.h"

#include <optional>
#include <vector>

namespace lumora {

/// All that a run makes.
struct OutputPlan {
    std::vector<OutputFile> results; ///< one for each input, in their order
    std::optional<OutputFile> picture;
};

/// With a folder a result has the input's name with ".wav" in place of its ending. UsageError if
/// two outputs are one file, or one of them is an input: by the file itself, whatever names lead to
/// it.
OutputPlan PlanOutputs(const FilesRequest& request);

} // namespace lumora
