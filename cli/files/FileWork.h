#pragma once

#include "base/QuietMessages.h"
#include "cli/files/JobLink.h"
#include "cli/files/RunLimits.h"
#include "platform/OutputFile.h"

#include <functional>
#include <optional>
#include <string>

namespace lumora {

/// A file that a command can set its engine on.
struct ReadyFile {
    std::string input;  ///< plain, as the engine takes it
    std::string result; ///< where the result goes; there is an empty file already
    /// The same for a picture of it; removed by the work if there is nothing to be seen. Empty:
    /// none is wanted.
    std::string picture;
    SoundShape sound;
    const QuietMessages& messages; ///< what the library has shown
    std::function<void(double)> progress;
    std::function<void(const std::string&)> note;
};

/// What a command makes of its files.
struct FileWork {
    RunLimits limits;
    /// Leaves the complete result; answers what is to be told besides what all commands tell.
    /// JobFailure and RunTimeError for what it cannot do.
    std::function<JobSummary(const ReadyFile&)> work;
};

/// One file's work from end to end.
struct FileJob {
    std::string input;
    OutputFile output;
    std::optional<OutputFile> picture = {};

    /// Gives what was made its final name; an older picture goes where none was made, so that none
    /// stands beside a result that it does not show. Answers what there is to say of that, empty if
    /// nothing. JobFailure if it cannot be done.
    std::string Commit() const;
    /// Removes what is left of the temporaries.
    void Discard() const;
};

/// Checks the input, converts it where the engine cannot read it, and does the work on it, which
/// leaves the complete result in output.Result(). An input that is not at the end of its reading
/// what it was at the door has failed, whatever was made of it. Progress, notes and the end go to
/// `link`; throws nothing.
///
/// Engines keep state from run to run and talk through process-wide ports, so each job has a
/// process of its own: this is to be called once in a process, which then ends by _exit.
void RunFileJob(const FileJob& job, const FileWork& work, JobLink& link);

} // namespace lumora
