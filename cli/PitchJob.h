#pragma once

#include "cli/JobLink.h"
#include "cli/OutputFile.h"

#include <string>

namespace lumora {

/// One file's work from end to end.
struct PitchJob {
    std::string input;
    OutputFile output;
    double Q_P = 1.0;
};

/// Checks the input, converts it where the engine cannot read it, and leaves the complete result
/// in output.Result(). Progress, notes and the end go to `link`; throws nothing.
///
/// The engine keeps a sample from run to run and talks through process-wide ports, so each job has
/// a process of its own: this is to be called once in a process, which then ends by _exit.
void RunPitchJob(const PitchJob& job, JobLink& link);

} // namespace lumora
