#pragma once

#include "cli/files/JobLink.h"
#include "platform/StopSignals.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <list>
#include <sys/types.h>

namespace lumora {

/// Runs jobs in processes of their own, a few at a time. A job sees the memory of this process as
/// it was at its start and can change nothing here; if it crashes, that is its outcome. When this
/// process dies, so do its jobs.
class Workers {
public:
    /// Called in a job's own process, with the job's index from 0.
    std::function<void(std::size_t, JobLink&)> work;
    /// Called here: a job's part done, 0 to 1. Left empty, jobs do not tell.
    std::function<void(std::size_t, double)> on_progress;
    /// Called here, once for each job, in the order in which they end.
    std::function<void(std::size_t, const JobOutcome&)> on_end;
    /// Called here at least this often while jobs run; never where the period is negative.
    std::function<void()> on_tick = [] {};
    std::chrono::milliseconds tick{-1};

    /// Runs the jobs 0..count - 1, `at_once` at a time, or as many as there are descriptors,
    /// processes and memory for: a job that cannot be started for want of these waits for another
    /// to end, and has failed only if none is under way. Answers 0, or the signal that ended it:
    /// the jobs under way are killed then, their ends are not reported, and the rest never start.
    int Run(std::size_t count, std::size_t at_once, const StopSignals& signals);

private:
    struct Worker {
        std::size_t job;
        pid_t process;
        JobListener listener;
    };

    /// The error for which it could not be started, 0 if it was.
    int Start(std::size_t job);
    void Wait(const StopSignals& signals);
    void Listen(std::list<Worker>::iterator worker);
    void KillAll();

    std::list<Worker> running_;
    bool short_of_something_ = false; ///< until one has ended
};

} // namespace lumora
