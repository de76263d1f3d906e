#include "cli/terminal/ProgressLine.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sys/ioctl.h>
#include <unistd.h>

namespace lumora {

namespace {

bool IsGoodTerminal()
{
    const char* kind = std::getenv("TERM");
    return isatty(STDERR_FILENO) == 1 && kind && std::strcmp(kind, "dumb") != 0;
}

int TerminalWidth()
{
    constexpr int kUsual = 80;
    winsize size = {};
    return ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : kUsual;
}

std::string TimeLeft(double fraction, double elapsed_seconds)
{
    constexpr double kEnoughToTell = 0.01;
    if (fraction < kEnoughToTell) return "-:-- left";
    const long seconds = std::lround(elapsed_seconds * (1.0 - fraction) / fraction);
    char text[40];
    if (seconds >= 3600)
        std::snprintf(text, sizeof text, "%ld:%02ld:%02ld left", seconds / 3600, seconds / 60 % 60,
                      seconds % 60);
    else
        std::snprintf(text, sizeof text, "%ld:%02ld left", seconds / 60, seconds % 60);
    return text;
}

} // namespace

std::string ProgressText(double fraction, double elapsed_seconds, std::size_t ended,
                         std::size_t files, int width)
{
    constexpr int kWidestBar = 40;
    char percent[10];
    std::snprintf(percent, sizeof percent, " %3d %%  ", static_cast<int>(100.0 * fraction));
    std::string rest = percent + TimeLeft(fraction, elapsed_seconds);
    if (files > 1) rest += "  " + std::to_string(ended) + " of " + std::to_string(files) + " files";
    const auto room = static_cast<std::size_t>(std::max(width - 1, 0));
    if (rest.size() + 12 > room) return rest.substr(0, room);
    const std::size_t bar = std::min<std::size_t>(kWidestBar, room - rest.size() - 2);
    const auto filled = static_cast<std::size_t>(fraction * static_cast<double>(bar));
    std::string text = "[";
    text.append(filled, '#').append(bar - filled, ' ');
    return text + "]" + rest;
}

ProgressLine::ProgressLine(std::vector<std::uintmax_t> weights)
    : shown_(IsGoodTerminal()), weights_(std::move(weights)), fractions_(weights_.size(), 0.0)
{
}

void ProgressLine::End(std::size_t file)
{
    Set(file, 1.0);
    ++ended_;
}

void ProgressLine::Draw()
{
    constexpr std::chrono::milliseconds kPeriod{100};
    const Clock::time_point now = Clock::now();
    const bool work_is_left = ended_ < weights_.size();
    if (!shown_ || !work_is_left || now - last_ < kPeriod) return;
    last_ = now;
    drawn_ = true;
    const double elapsed = std::chrono::duration<double>(now - start_).count();
    const std::string text =
        ProgressText(Fraction(), elapsed, ended_, weights_.size(), TerminalWidth());
    std::fprintf(stderr, "\r%s\x1b[K", text.c_str());
    std::fflush(stderr);
}

void ProgressLine::Clear()
{
    if (!drawn_) return;
    drawn_ = false;
    std::fputs("\r\x1b[K", stderr);
    std::fflush(stderr);
}

double ProgressLine::Fraction() const
{
    double done = 0.0;
    double all = 0.0;
    for (std::size_t k = 0; k < weights_.size(); ++k) {
        const auto weight = static_cast<double>(std::max<std::uintmax_t>(weights_[k], 1));
        done += weight * fractions_[k];
        all += weight;
    }
    return done / all;
}

} // namespace lumora
