#pragma once

#include <functional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace lumora::test {

/// How a command ended and what it printed.
struct CommandResult {
    int status = 0; ///< exit status, or 128 + n where a signal ended it
    std::string out;
    std::string err;
};

/// What a command finds around it. It never reads from the terminal.
struct Surroundings {
    std::string folder = {};                       ///< where it stands; empty: where the test does
    std::function<void()> before = [] {};          ///< called in its process, ahead of its program
    int standard_output = -1, standard_error = -1; ///< in place of what is kept for the result
};

/// A program under way. Ends it, if need be, when it leaves the scope.
class RunningCommand {
public:
    /// `words`: the program's path and its arguments.
    explicit RunningCommand(std::vector<std::string> words, const Surroundings& around = {});
    ~RunningCommand();
    RunningCommand(const RunningCommand&) = delete;
    RunningCommand& operator=(const RunningCommand&) = delete;

    void Signal(int signal) const;
    /// To its whole process group, of which it must be the leader.
    void SignalGroup(int signal) const;
    /// The number of a process that it has started, empty if there is none now.
    std::string Child() const;
    CommandResult Wait();

private:
    pid_t process_;
    int out_, err_;
};

/// Starts the real command `lumora` with these arguments.
std::vector<std::string> LumoraWords(const std::vector<std::string>& arguments);
/// Runs it to its end.
CommandResult Lumora(std::vector<std::string> arguments, const Surroundings& around = {});

/// The names in a folder, hidden ones too, in order.
std::vector<std::string> NamesIn(const std::string& folder);

} // namespace lumora::test
