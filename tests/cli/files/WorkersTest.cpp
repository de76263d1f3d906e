#include "cli/files/Workers.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace lumora::test {
namespace {

constexpr std::size_t kJobs = 20;

void Allow(__rlimit_resource what, rlim_t most)
{
    const rlimit limit = {most, most};
    setrlimit(what, &limit);
}

/// What becomes of twenty jobs that are wanted side by side in a process of its own: the status
/// that it makes of their errors, once `prepare` has been called in it.
int StatusOfJobs(const std::function<void()>& prepare,
                 const std::function<int(const std::vector<std::string>&)>& status_of)
{
    const pid_t process = fork();
    if (process == 0) {
        prepare();
        std::vector<std::string> errors;
        std::size_t done = 0;
        Workers workers;
        workers.work = [](std::size_t, JobLink& link) {
            usleep(20000); // so that they would be side by side
            link.Done({"done", JsonValue::Object()});
        };
        workers.on_end = [&](std::size_t, const JobOutcome& outcome) {
            errors.push_back(outcome.error);
            if (outcome.summary) ++done;
        };
        const StopSignals signals;
        const int signal = workers.Run(kJobs, kJobs, signals);
        const auto ended = errors.size();
        std::erase(errors, "");
        const bool all_ended = signal == 0 && ended == kJobs && done + errors.size() == kJobs;
        _exit(all_ended ? status_of(errors) : 100);
    }
    int status = -1;
    waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 101;
}

int HowMany(const std::vector<std::string>& errors)
{
    return static_cast<int>(errors.size());
}

/// 0 if all jobs failed with this.
std::function<int(const std::vector<std::string>&)> AllAre(const std::string& error)
{
    return [=](const auto& errors) {
        for (const std::string& each : errors)
            if (each != error) return 1;
        return errors.size() == kJobs ? 0 : 2;
    };
}

TEST(Workers, RunAllJobsWhereThereIsPlenty)
{
    EXPECT_EQ(StatusOfJobs([] {}, HowMany), 0);
}

TEST(Workers, AJobThatHasNoDescriptorsWaitsForAnotherToEnd)
{
    EXPECT_EQ(StatusOfJobs([] { Allow(RLIMIT_NOFILE, 30); }, HowMany), 0);
}

TEST(Workers, WithoutDescriptorsForASingleJobTheAdviceIsTold)
{
    EXPECT_EQ(StatusOfJobs([] { Allow(RLIMIT_NOFILE, 10); },
                           AllAre("no process could be started for it (too many open files); work "
                                  "on fewer files side by side, or raise the limit on open files "
                                  "(ulimit -n)")),
              0);
}

// Nothing limits the superuser's processes, so he becomes a user who has no others.
constexpr uid_t kLonelyUser = 54399;

TEST(Workers, AJobThatGetsNoProcessWaitsForAnotherToEnd)
{
    if (geteuid() != 0) GTEST_SKIP() << "only the superuser can become another user";
    EXPECT_EQ(StatusOfJobs(
                  [] {
                      Allow(RLIMIT_NPROC, 4);
                      if (setresuid(kLonelyUser, kLonelyUser, kLonelyUser) != 0) _exit(102);
                  },
                  HowMany),
              0);
}

TEST(Workers, WithoutASingleProcessTheAdviceIsTold)
{
    if (geteuid() != 0) GTEST_SKIP() << "only the superuser can become another user";
    EXPECT_EQ(StatusOfJobs(
                  [] {
                      Allow(RLIMIT_NPROC, 1);
                      if (setresuid(kLonelyUser, kLonelyUser, kLonelyUser) != 0) _exit(102);
                  },
                  AllAre("no process could be started for it (resource temporarily unavailable); "
                         "too many processes are running: end some, or raise the limit on them "
                         "(ulimit -u), and run it again")),
              0);
}

} // namespace
} // namespace lumora::test
