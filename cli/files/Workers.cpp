#include "cli/files/Workers.h"

#include "platform/FaultText.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace lumora {

namespace {

int EndOf(pid_t process)
{
    int status = 0;
    while (waitpid(process, &status, 0) < 0 && errno == EINTR) {
    }
    return status;
}

/// The outcome of a job whose process has ended with `status` and without a word.
std::string CrashText(int status)
{
    const std::string report = "; this is a fault of lumora, please report it";
    if (!WIFSIGNALED(status))
        return "the work on it ended early with status " + std::to_string(WEXITSTATUS(status)) +
               report;
    const int signal = WTERMSIG(status);
    if (signal == SIGKILL)
        return "the work on it was killed from outside, perhaps for want of memory; run it again";
    return "the work on it crashed (" + std::string(strsignal(signal)) + ")" + report;
}

JobOutcome NotStarted(int error_code)
{
    JobOutcome outcome;
    outcome.error =
        "no process could be started for it (" + SystemText(error_code) + ")" + Advice(error_code);
    return outcome;
}

/// The error of opening as many files as the work on one input may, beside those open here; 0 if
/// there is room. Found out here, no work is lost by it.
int RoomForWork(int any_descriptor)
{
    std::array<int, 12> taken; // decoders and fonts open some for themselves
    int failure = 0;
    std::size_t count = 0;
    while (count < taken.size() && failure == 0) {
        taken[count] = fcntl(any_descriptor, F_DUPFD_CLOEXEC, 0);
        if (taken[count] < 0)
            failure = errno;
        else
            ++count;
    }
    for (std::size_t k = 0; k < count; ++k)
        close(taken[k]);
    return failure;
}

} // namespace

int Workers::Run(std::size_t count, std::size_t at_once, const StopSignals& signals)
{
    std::size_t next = 0;
    while (next < count || !running_.empty()) {
        if (const int signal = signals.Take()) {
            KillAll();
            return signal;
        }
        if (next == count || running_.size() == at_once || short_of_something_) {
            Wait(signals);
            continue;
        }
        const int failure = Start(next);
        short_of_something_ = IsShortage(failure) && !running_.empty();
        if (short_of_something_) continue;
        if (failure != 0) on_end(next, NotStarted(failure));
        ++next;
    }
    return 0;
}

int Workers::Start(std::size_t job)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) return errno;
    const pid_t parent = getpid();
    int failure = RoomForWork(ends[0]);
    const pid_t process = failure == 0 ? fork() : -1;
    if (process == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() != parent) _exit(EXIT_FAILURE); // it died before it could take us along
        JobLink link(ends[1], on_progress ? ProgressWanted::Yes : ProgressWanted::No);
        work(job, link);
        _exit(EXIT_SUCCESS);
    }
    if (failure == 0 && process < 0) failure = errno;
    close(ends[1]);
    if (failure != 0)
        close(ends[0]);
    else
        running_.push_back({job, process, JobListener(ends[0])});
    return failure;
}

void Workers::Wait(const StopSignals& signals)
{
    std::vector<pollfd> files = {{signals.File(), POLLIN, 0}};
    for (const Worker& worker : running_)
        files.push_back({worker.listener.Pipe(), POLLIN, 0});
    if (poll(files.data(), files.size(), static_cast<int>(tick.count())) >= 0) {
        auto worker = running_.begin();
        for (std::size_t k = 1; k < files.size(); ++k) {
            const auto here = worker++;
            if (files[k].revents != 0) Listen(here);
        }
    }
    on_tick();
}

void Workers::Listen(std::list<Worker>::iterator worker)
{
    const std::size_t job = worker->job;
    if (worker->listener.Read([&](double done) { on_progress(job, done); })) return;
    close(worker->listener.Pipe());
    const int status = EndOf(worker->process);
    JobOutcome outcome = std::move(worker->listener.outcome);
    if (!outcome.summary && outcome.error.empty()) outcome.error = CrashText(status);
    running_.erase(worker);
    short_of_something_ = false;
    on_end(job, outcome);
}

void Workers::KillAll()
{
    for (const Worker& worker : running_)
        kill(worker.process, SIGKILL);
    for (const Worker& worker : running_) {
        EndOf(worker.process);
        close(worker.listener.Pipe());
    }
    running_.clear();
}

} // namespace lumora
