#include "cli/CommandRun.h"
#include "cli/Sounds.h"
#include "cli/terminal/ProgressLine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <poll.h>
#include <pty.h>
#include <regex>
#include <sys/wait.h>
#include <unistd.h>

namespace lumora::test {
namespace {

/// A terminal of 60 columns; what is drawn on it can be read back.
class Terminal {
public:
    Terminal()
    {
        const winsize size = {24, 60, 0, 0};
        if (openpty(&reader_, &screen_, nullptr, nullptr, &size) != 0)
            throw std::runtime_error("no terminal");
    }
    ~Terminal()
    {
        close(reader_);
        if (screen_ >= 0) close(screen_);
    }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    int Screen() const { return screen_; }
    /// What was drawn since the last time; waits for it. Empty once nothing is drawn any more.
    std::string Next() const
    {
        constexpr int kLongMs = 20000;
        pollfd file = {reader_, POLLIN, 0};
        if (poll(&file, 1, kLongMs) < 1) return {};
        char piece[1024];
        const ssize_t count = read(reader_, piece, sizeof piece);
        return {piece, static_cast<std::size_t>(std::max<ssize_t>(count, 0))};
    }
    /// All that was drawn, once nobody draws any more.
    std::string Drawn()
    {
        close(std::exchange(screen_, -1));
        std::string text;
        for (std::string more; !(more = Next()).empty();)
            text += more;
        return text;
    }

private:
    int reader_ = -1, screen_ = -1;
};

/// What a process of its own draws whose standard error is a terminal.
std::string DrawnBy(const std::function<void()>& draw)
{
    Terminal terminal;
    const pid_t process = fork();
    if (process == 0) {
        dup2(terminal.Screen(), STDERR_FILENO);
        setenv("TERM", "xterm", 1);
        draw();
        _exit(EXIT_SUCCESS);
    }
    int status = -1;
    waitpid(process, &status, 0);
    EXPECT_EQ(status, 0);
    return terminal.Drawn();
}

class Progress : public testing::Test {
protected:
    Progress() : in_(folder_.Write("in.wav", TuneWave(2000000, 1, 8000))) {}

    std::vector<std::string> Words(const std::vector<std::string>& more = {}) const
    {
        std::vector<std::string> words = {"pitch",   in_, folder_ / "out.wav",
                                          "--tones", "1", "--force"};
        words.insert(words.end(), more.begin(), more.end());
        return words;
    }

    /// What a terminal of this kind shows while the command runs.
    std::string Drawn(const char* kind, const std::vector<std::string>& more = {})
    {
        Terminal terminal;
        const auto set_kind = [=] { setenv("TERM", kind, 1); };
        const CommandResult result =
            Lumora(Words(more), {.before = set_kind, .standard_error = terminal.Screen()});
        EXPECT_EQ(result.status, 0);
        return terminal.Drawn();
    }

    TempFolder folder_;
    std::string in_;
};

TEST_F(Progress, ATerminalShowsABarWithTheTimeLeftAndIsLeftClean)
{
    const std::string drawn = Drawn("xterm");
    const std::regex bar("\r\\[#* *\\] +[0-9]+ %  (-:--|[0-9]+:[0-9][0-9]) left\x1b\\[K");
    EXPECT_TRUE(std::regex_search(drawn, bar)) << drawn;
    EXPECT_TRUE(std::regex_replace(drawn, bar, "") == "\r\x1b[K") << drawn;
}

TEST(ProgressLine, DrawsWhileAFileIsLeftAndNotOnceAllHaveEnded)
{
    const std::string one_ended = DrawnBy([] {
        ProgressLine line({5, 15});
        line.End(0);
        line.Draw();
    });
    const std::regex bar("\r\\[#{6} {20}\\]  25 %  [0-9]+:[0-9][0-9] left  1 of 2 files\x1b\\[K");
    EXPECT_TRUE(std::regex_match(one_ended, bar)) << one_ended;
    const std::string all_ended = DrawnBy([] {
        ProgressLine line({5, 15});
        line.End(0);
        line.End(1);
        line.Draw();
        line.Clear();
    });
    EXPECT_EQ(all_ended, "");
}

TEST_F(Progress, GoesOnWhileStretchesAreRebuiltToo)
{
    constexpr std::int64_t kBytes = 0x7F000000; // hours of silence, which take no room
    folder_.Write("in.wav", PlainWave({.channels = 2}, "", kBytes));
    std::filesystem::resize_file(in_, 44 + kBytes);
    Terminal terminal;
    RunningCommand command(
        LumoraWords({"declip", in_, folder_ / "out.wav"}),
        {.before = [] { setenv("TERM", "xterm", 1); }, .standard_error = terminal.Screen()});
    const std::regex part_done(" +[1-9][0-9]? %  ");
    std::string drawn;
    for (std::string more; !(more = terminal.Next()).empty();) {
        drawn += more;
        if (std::regex_search(drawn, part_done)) break;
    }
    EXPECT_TRUE(std::regex_search(drawn, part_done)) << drawn;
    command.Signal(SIGINT);
    EXPECT_EQ(command.Wait().status, 128 + SIGINT);
}

TEST_F(Progress, IsDrawnWithJsonToo)
{
    EXPECT_NE(Drawn("xterm", {"--json"}).find(" left"), std::string::npos);
}

TEST_F(Progress, IsNeverDrawnOnAPipeOrADumbTerminal)
{
    const CommandResult piped = Lumora(Words());
    EXPECT_EQ(piped.status, 0);
    EXPECT_EQ(piped.err, "");
    EXPECT_EQ(Drawn("dumb"), "");
}

TEST(ProgressText, ShowsPartTimeLeftAndFiles)
{
    EXPECT_EQ(ProgressText(0.0, 0.0, 0, 1, 40), "[                    ]   0 %  -:-- left");
    EXPECT_EQ(ProgressText(0.5, 30.0, 0, 1, 40), "[##########          ]  50 %  0:30 left");
    EXPECT_EQ(ProgressText(0.25, 1800.0, 0, 1, 40), "[####             ]  25 %  1:30:00 left");
    EXPECT_EQ(ProgressText(1.0, 9.0, 2, 3, 200),
              "[########################################] 100 %  0:00 left  2 of 3 files");
}

TEST(ProgressText, NeverFillsTheLineHoweverNarrow)
{
    for (int width = 0; width < 120; ++width)
        for (const double fraction : {0.0, 0.3, 1.0})
            EXPECT_LT(ProgressText(fraction, 5000.0, 12, 345, width).size(),
                      static_cast<std::size_t>(std::max(width, 1)))
                << width;
}

} // namespace
} // namespace lumora::test
