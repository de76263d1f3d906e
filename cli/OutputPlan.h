#pragma once

#include "cli/CommandLine.h"
#include "cli/OutputFile.h"

#include <vector>

namespace lumora {

/// The output of each input, in their order. With a folder it is the input's name with ".wav" in
/// place of its ending. UsageError if two outputs are one file, or one of them is an input: by the
/// file itself, whatever names lead to it.
std::vector<OutputFile> PlanOutputs(const PitchRequest& request);

} // namespace lumora
