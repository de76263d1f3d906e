#include "cli/CommandRun.h"
#include "cli/Sounds.h"
#include "support/SameBytes.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <poll.h>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace lumora::test {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;
using namespace std::chrono_literals;

/// A run that takes seconds at the least: hours of silence that take no room on the disk.
class Stop : public testing::Test {
protected:
    Stop() : in_(folder_ / "in.wav")
    {
        constexpr std::int64_t kBytes = 0x7F000000;
        folder_.Write("in.wav", PlainWave({.channels = 2}, "", kBytes));
        fs::resize_file(in_, 44 + kBytes);
    }

    /// Temporaries in which there is something already.
    int FilesUnderWay() const
    {
        int count = 0;
        for (const auto& entry : fs::recursive_directory_iterator(folder_.Path())) {
            std::error_code gone;
            const bool hidden = entry.path().filename().string().front() == '.';
            if (hidden && fs::file_size(entry, gone) > 100000 && !gone) ++count;
        }
        return count;
    }

    /// Waits until so many files are worked on.
    void AwaitWork(int files = 1) const
    {
        for (const auto end = std::chrono::steady_clock::now() + 60s;
             std::chrono::steady_clock::now() < end; std::this_thread::sleep_for(1ms))
            if (FilesUnderWay() >= files) return;
        FAIL() << "no work was seen";
    }

    std::vector<std::string> Words() const
    {
        return LumoraWords({"pitch", in_, folder_ / "out.wav", "--tones", "1", "--force"});
    }
    std::vector<std::string> DeclipWords() const
    {
        return LumoraWords({"declip", in_, folder_ / "out.wav", "--plot", folder_ / "out.png"});
    }

    TempFolder folder_;
    std::string in_;
};

TEST_F(Stop, ASignalLeavesNoPartialFileAndTheStatusNamesIt)
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT}) {
        folder_.Write("out.wav", "old");
        RunningCommand command(Words());
        AwaitWork();
        command.Signal(signal);
        const CommandResult result = command.Wait();
        EXPECT_EQ(result.status, 128 + signal);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, "lumora: stopped; 0 of 1 files had ended\n");
        EXPECT_EQ(NamesIn(folder_.Path()), (Names{"in.wav", "out.wav"}));
        EXPECT_TRUE(HoldsBytes(folder_ / "out.wav", "old"));
    }
}

TEST_F(Stop, ControlCReachesTheWholeGroupAndLeavesNoPartialFile)
{
    RunningCommand command(Words(), {.before = [] { setpgid(0, 0); }});
    AwaitWork();
    command.SignalGroup(SIGINT);
    EXPECT_EQ(command.Wait().status, 128 + SIGINT);
    EXPECT_EQ(NamesIn(folder_.Path()), Names{"in.wav"});
}

TEST_F(Stop, ControlCLeavesNeitherAResultNorAPicture)
{
    RunningCommand command(DeclipWords());
    AwaitWork();
    command.Signal(SIGINT);
    EXPECT_EQ(command.Wait().status, 128 + SIGINT);
    EXPECT_EQ(NamesIn(folder_.Path()), Names{"in.wav"});
}

TEST_F(Stop, JobsSaysHowManyFilesAreWorkedOnSideBySide)
{
    for (const char* twin : {"b.wav", "c.wav"})
        fs::create_hard_link(in_, folder_ / twin);
    for (const int jobs : {1, 2}) {
        RunningCommand command(
            LumoraWords({"pitch", in_, folder_ / "b.wav", folder_ / "c.wav", "--out-dir",
                         folder_ / "out", "--tones", "1", "--jobs", std::to_string(jobs)}));
        AwaitWork(jobs);
        std::this_thread::sleep_for(20ms);
        EXPECT_EQ(FilesUnderWay(), jobs);
        command.Signal(SIGINT);
        EXPECT_EQ(command.Wait().status, 130);
    }
}

TEST_F(Stop, OutputsThatWereCompleteStay)
{
    const std::string good = folder_.Write("good.wav", TuneWave(5000));
    RunningCommand command(
        LumoraWords({"pitch", good, in_, "--out-dir", folder_ / "out", "--tones", "1"}));
    while (!fs::exists(folder_ / "out/good.wav"))
        std::this_thread::sleep_for(1ms);
    command.Signal(SIGINT);
    const CommandResult result = command.Wait();
    EXPECT_EQ(result.status, 130);
    EXPECT_EQ(result.err, "lumora: stopped; 1 of 2 files had ended\n");
    EXPECT_EQ(NamesIn(folder_ / "out"), Names{"good.wav"});
    EXPECT_TRUE(HoldsBytes(folder_ / "out/good.wav", EngineResult(good, std::exp2(-1.0 / 6.0))));
}

TEST_F(Stop, ASignalThatWasIgnoredAtTheStartStaysIgnored)
{
    RunningCommand command(Words(), {.before = [] { std::signal(SIGHUP, SIG_IGN); }});
    AwaitWork();
    command.Signal(SIGHUP);
    std::this_thread::sleep_for(50ms);
    command.Signal(SIGTERM);
    EXPECT_EQ(command.Wait().status, 128 + SIGTERM);
}

TEST_F(Stop, WhenTheCommandIsKilledItsWorkDiesToo)
{
    // Every process of the command holds the pipe's other end: it closes with the last of them.
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    fcntl(ends[0], F_SETFD, FD_CLOEXEC);
    RunningCommand command(Words());
    close(ends[1]);
    AwaitWork();
    command.Signal(SIGKILL);
    EXPECT_EQ(command.Wait().status, 128 + SIGKILL);
    pollfd other_end = {ends[0], POLLIN, 0};
    EXPECT_EQ(poll(&other_end, 1, 10000), 1);
    close(ends[0]);
    EXPECT_FALSE(fs::exists(folder_ / "out.wav"));
}

TEST_F(Stop, WhatAKilledCommandLeftGoesWithTheNextRunInThatFolder)
{
    const std::string good = folder_.Write("good.wav", TuneWave(5000));
    const std::string table = folder_.Write("table.csv", "1,2\n");
    for (const Names& words :
         {Names{"pitch", good, folder_ / "new.wav", "--tones", "1", "--force"},
          Names{"declip", good, folder_ / "new.wav", "--force"},
          Names{"arr", "from-csv", table, folder_ / "new.arr", "--as", "long", "--force"}}) {
        RunningCommand command(Words());
        AwaitWork();
        command.Signal(SIGKILL);
        EXPECT_EQ(command.Wait().status, 128 + SIGKILL);
        EXPECT_GE(FilesUnderWay(), 1);
        const CommandResult result = Lumora(words);
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_EQ(result.err, "");
        EXPECT_EQ(FilesUnderWay(), 0);
        EXPECT_NE(NamesIn(folder_.Path()).front().front(), '.');
    }
}

TEST_F(Stop, TwoRunsSideBySideDoNotTouchEachOthersWork)
{
    const std::string good = folder_.Write("good.wav", TuneWave(5000));
    RunningCommand command(Words());
    AwaitWork();
    const std::string name = NamesIn(folder_.Path()).front();
    EXPECT_EQ(Lumora({"pitch", good, folder_ / "new.wav", "--tones", "1"}).status, 0);
    EXPECT_EQ(NamesIn(folder_.Path()), (Names{name, "good.wav", "in.wav", "new.wav"}));
    command.Signal(SIGTERM);
    EXPECT_EQ(command.Wait().status, 128 + SIGTERM);
    EXPECT_EQ(NamesIn(folder_.Path()), (Names{"good.wav", "in.wav", "new.wav"}));
}

TEST_F(Stop, AWorkerThatIsKilledIsReportedAndItsTemporariesGo)
{
    const std::string good = folder_.Write("good.wav", TuneWave(5000));
    RunningCommand command(
        LumoraWords({"pitch", in_, good, "--out-dir", folder_ / "out", "--tones", "1"}));
    folder_.MakeFolder("out");
    std::string worker;
    while (worker.empty())
        worker = command.Child();
    kill(std::stoi(worker), SIGKILL);
    const CommandResult result = command.Wait();
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.err.find("in.wav: the work on it was killed from outside"), std::string::npos)
        << result.err;
    EXPECT_EQ(NamesIn(folder_ / "out"), Names{"good.wav"});
}

TEST_F(Stop, ALimitOnFileSizesIsAClearLine)
{
    const auto limit = [] {
        const rlimit small = {100000, 100000};
        setrlimit(RLIMIT_FSIZE, &small);
    };
    for (const auto& words : {Words(), DeclipWords()}) {
        const CommandResult result = RunningCommand(words, {.before = limit}).Wait();
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.err, "lumora: " + in_ +
                                  ": the result does not fit: the disk is full or a limit on file "
                                  "sizes is reached; make room and run it again\n");
        EXPECT_EQ(NamesIn(folder_.Path()), Names{"in.wav"});
    }
}

} // namespace
} // namespace lumora::test
