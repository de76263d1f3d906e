#include "cli/CommandRun.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace lumora::test {

namespace {

std::string Contents(int file)
{
    std::string text;
    char piece[4096];
    lseek(file, 0, SEEK_SET);
    for (ssize_t n = 0; (n = read(file, piece, sizeof piece)) > 0;)
        text.append(piece, static_cast<std::size_t>(n));
    return text;
}

[[noreturn]] void BecomeProgram(std::vector<std::string>& words, const Surroundings& around,
                                int out, int err)
{
    // Whoever runs the tests may ignore some, as nohup does.
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGPIPE, SIGXFSZ})
        std::signal(signal, SIG_DFL);
    const int nothing = open("/dev/null", O_RDONLY);
    dup2(nothing, STDIN_FILENO);
    dup2(around.standard_output >= 0 ? around.standard_output : out, STDOUT_FILENO);
    dup2(around.standard_error >= 0 ? around.standard_error : err, STDERR_FILENO);
    if (!around.folder.empty() && chdir(around.folder.c_str()) != 0) _exit(126);
    around.before();
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    execvp(arguments.front(), arguments.data());
    _exit(127);
}

} // namespace

RunningCommand::RunningCommand(std::vector<std::string> words, const Surroundings& around)
    : out_(memfd_create("out", MFD_CLOEXEC)), err_(memfd_create("err", MFD_CLOEXEC))
{
    process_ = fork();
    if (process_ < 0) throw std::runtime_error("no process");
    if (process_ == 0) BecomeProgram(words, around, out_, err_);
}

RunningCommand::~RunningCommand()
{
    if (process_ > 0) {
        Signal(SIGKILL);
        Wait();
    }
    close(out_);
    close(err_);
}

void RunningCommand::Signal(int signal) const
{
    kill(process_, signal);
}

void RunningCommand::SignalGroup(int signal) const
{
    kill(-process_, signal);
}

std::string RunningCommand::Child() const
{
    const std::string self = std::to_string(process_);
    std::ifstream children("/proc/" + self + "/task/" + self + "/children");
    std::string child;
    children >> child;
    return child;
}

CommandResult RunningCommand::Wait()
{
    int status = 0;
    waitpid(std::exchange(process_, 0), &status, 0);
    const int code = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
    return {code, Contents(out_), Contents(err_)};
}

std::vector<std::string> LumoraWords(const std::vector<std::string>& arguments)
{
    std::vector<std::string> words{LUMORA_COMMAND};
    words.insert(words.end(), arguments.begin(), arguments.end());
    return words;
}

CommandResult Lumora(std::vector<std::string> arguments, const Surroundings& around)
{
    return RunningCommand(LumoraWords(std::move(arguments)), around).Wait();
}

std::vector<std::string> NamesIn(const std::string& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace lumora::test
