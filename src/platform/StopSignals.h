#pragma once

#include <csignal>

namespace lumora {

/// While it lives, the signals by which a user or the system ends a program (SIGINT, SIGTERM,
/// SIGHUP, SIGQUIT) do not end this one but can be waited for and read, so that nothing half done
/// is left behind. A signal that was ignored at the start stays ignored. Processes forked meanwhile
/// do not see these signals either. SIGPIPE and SIGXFSZ are ignored from then on: a closed pipe and
/// a limit on file sizes come back as errors of the write.
class StopSignals {
public:
    StopSignals();
    ~StopSignals();
    StopSignals(const StopSignals&) = delete;
    StopSignals& operator=(const StopSignals&) = delete;

    /// Readable, in the sense of poll, when a signal has come; -1 if there is no such thing.
    int File() const { return file_; }
    /// The signal that has come, 0 if none.
    int Take() const;

private:
    sigset_t before_;
    int file_;
};

} // namespace lumora
