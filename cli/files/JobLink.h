#pragma once

#include "cli/files/JobOutcome.h"

#include <functional>
#include <string>
#include <string_view>

namespace lumora {

enum class ProgressWanted { No, Yes };

/// What the process that works on a file tells the one that started it, through a pipe.
class JobLink {
public:
    JobLink(int pipe, ProgressWanted progress) : pipe_(pipe), progress_(progress) {}

    /// The part that is done, 0 to 1. Steps too small to be seen are not sent.
    void Progress(double fraction);
    void Note(std::string_view text);
    void Done(const JobSummary& summary);
    void Failed(std::string_view error);

private:
    void Send(char kind, std::string_view bytes);

    int pipe_;
    ProgressWanted progress_;
    double last_progress_ = 0.0;
};

/// The other end: puts together what arrives.
class JobListener {
public:
    explicit JobListener(int pipe) : pipe_(pipe) {}

    int Pipe() const { return pipe_; }
    /// Takes what the pipe holds; false at its end. Waits if there is nothing yet.
    bool Read(const std::function<void(double)>& on_progress);

    JobOutcome outcome;

private:
    void Take(char kind, std::string_view bytes, const std::function<void(double)>& on_progress);

    int pipe_;
    std::string pending_;
};

} // namespace lumora
