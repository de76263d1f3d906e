#include "cli/files/Workers.h"

#include "cli/terminal/Wording.h"

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

} // namespace

int Workers::Run(std::size_t count, std::size_t at_once, const StopSignals& signals)
{
    std::size_t next = 0;
    while (next < count || !running_.empty()) {
        if (const int signal = signals.Take()) {
            KillAll();
            return signal;
        }
        if (next < count && running_.size() < at_once)
            Start(next++);
        else
            Wait(signals);
    }
    return 0;
}

void Workers::Start(std::size_t job)
{
    const auto failed = [&](int error_code) {
        JobOutcome outcome;
        outcome.error = "no process could be started for it (" + SystemText(error_code) + ")";
        on_end(job, outcome);
    };
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) return failed(errno);
    const pid_t parent = getpid();
    const pid_t process = fork();
    if (process == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() != parent) _exit(EXIT_FAILURE); // it died before it could take us along
        JobLink link(ends[1], on_progress ? ProgressWanted::Yes : ProgressWanted::No);
        work(job, link);
        _exit(EXIT_SUCCESS);
    }
    const int error_code = errno;
    close(ends[1]);
    if (process < 0) {
        close(ends[0]);
        return failed(error_code);
    }
    running_.push_back({job, process, JobListener(ends[0])});
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
