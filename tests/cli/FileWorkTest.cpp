#include "cli/files/FileWork.h"
#include "base/RunTimeError.h"
#include "cli/CommandRun.h"
#include "cli/Sounds.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <filesystem>
#include <sndfile.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lumora::test {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

/// Both ends of a worker's pipe.
class Link {
public:
    Link()
    {
        if (pipe(ends_) != 0) throw std::runtime_error("no pipe");
    }
    ~Link()
    {
        CloseWritingEnd();
        close(ends_[0]);
    }
    Link(const Link&) = delete;
    Link& operator=(const Link&) = delete;

    JobLink Sender() const { return {ends_[1], ProgressWanted::No}; }
    void CloseWritingEnd() { close(std::exchange(ends_[1], -1)); }

    /// Whoever sends next waits until the pipe is drained.
    void Fill()
    {
        const int flags = fcntl(ends_[1], F_GETFL);
        fcntl(ends_[1], F_SETFL, flags | O_NONBLOCK);
        while (write(ends_[1], "", 1) == 1)
            ++filled_;
        fcntl(ends_[1], F_SETFL, flags);
    }
    /// What was sent, once nobody sends any more.
    JobOutcome Outcome()
    {
        CloseWritingEnd();
        for (char byte = 0; filled_ > 0 && read(ends_[0], &byte, 1) == 1;)
            --filled_;
        JobListener listener(ends_[0]);
        while (listener.Read([](double) {})) {
        }
        return listener.outcome;
    }

private:
    int ends_[2] = {-1, -1};
    std::size_t filled_ = 0;
};

class Work : public testing::Test {
protected:
    Work() : in_(folder_.Write("in.wav", TuneWave(5000))) {}

    FileJob Job(const std::string& input) const
    {
        return {input, OutputFile(folder_ / "out.wav", Existing::Keep, Folder::MustExist)};
    }

    /// Work that leaves a good result, and does something else as well.
    static FileWork Copying(const std::function<void()>& and_then)
    {
        return {kPitchLimits, [and_then](const ReadyFile& file) {
                    std::ofstream(file.result, std::ios::binary) << BytesOf(file.input);
                    and_then();
                    return JobSummary{"copied", JsonValue::Object()};
                }};
    }

    /// The one line that such a run ends with; nothing but the input is left then.
    std::string FailureWhile(const std::function<void()>& and_then)
    {
        Link link;
        JobLink sender = link.Sender();
        const FileJob job = Job(in_);
        RunFileJob(job, Copying(and_then), sender);
        const JobOutcome outcome = link.Outcome();
        job.Discard();
        EXPECT_FALSE(outcome.summary);
        EXPECT_FALSE(fs::exists(folder_ / "out.wav"));
        return outcome.error;
    }

    TempFolder folder_;
    std::string in_;
};

TEST_F(Work, AnInputThatStaysAsItIsGivesItsResult)
{
    Link link;
    JobLink sender = link.Sender();
    const FileJob job = Job(in_);
    RunFileJob(job, Copying([] {}), sender);
    const JobOutcome outcome = link.Outcome();
    EXPECT_EQ(outcome.error, "");
    ASSERT_TRUE(outcome.summary);
    EXPECT_EQ(job.Commit(), "");
    EXPECT_EQ(NamesIn(folder_.Path()), (Names{"in.wav", "out.wav"}));
}

TEST_F(Work, AnInputThatGrowsShorterHasFailed)
{
    EXPECT_EQ(FailureWhile([&] { fs::resize_file(in_, 10042); }),
              "it became shorter while it was read (from 10044 to 10042 bytes); run it again when "
              "nothing changes it any more");
}

TEST_F(Work, AnInputThatGrowsLongerHasFailed)
{
    EXPECT_EQ(FailureWhile([&] { std::ofstream(in_, std::ios::app) << "more"; }),
              "it became longer while it was read (from 10044 to 10048 bytes); run it again when "
              "nothing changes it any more");
}

TEST_F(Work, AnInputThatIsReplacedHasFailedAndTheErrorThatCameOfItIsNotTold)
{
    EXPECT_EQ(FailureWhile([&] {
                  folder_.Write("new.wav", TuneWave(5000, 2));
                  fs::rename(folder_ / "new.wav", in_);
                  Raise(ErrorNumber::Subscript);
              }),
              "another file took its place while it was read; run it again when nothing changes "
              "it any more");
}

TEST_F(Work, AnErrorOfAnInputThatStaysAsItIsIsTold)
{
    EXPECT_EQ(FailureWhile([] { Raise(ErrorNumber::OutOfMemory); }),
              "there is not enough memory; end other programs and run it again");
}

class Converted : public Work {
protected:
    Converted()
    {
        in_ = folder_ / "in.flac";
        WriteWithLibrary(in_, SF_FORMAT_FLAC | SF_FORMAT_PCM_16, Tune(5000), 1, 22050);
    }

    /// The outcome where something happens between the look at the input and its conversion: the
    /// worker's first word to us, which it says between the two, waits until that is done.
    JobOutcome OutcomeWhile(const std::function<void()>& change, const FileWork& work)
    {
        Link link;
        link.Fill();
        const FileJob job = Job(in_);
        const pid_t worker = fork();
        if (worker == 0) {
            JobLink sender = link.Sender();
            RunFileJob(job, work, sender);
            _exit(0);
        }
        while (!job.output.IsThere())
            usleep(1000);
        change();
        JobOutcome outcome = link.Outcome();
        waitpid(worker, nullptr, 0);
        job.Discard();
        return outcome;
    }
};

TEST_F(Converted, AnInputThatGrowsShorterHasFailedAndIsNotCalledCutShort)
{
    const JobOutcome outcome =
        OutcomeWhile([&] { fs::resize_file(in_, fs::file_size(in_) / 2); }, Copying([] {}));
    EXPECT_FALSE(outcome.summary);
    EXPECT_EQ(outcome.error.rfind("it became shorter while it was read (", 0), 0U) << outcome.error;
    EXPECT_EQ(outcome.notes.size(), 1U); // that it was converted
}

TEST_F(Converted, AnInputThatIsReplacedHasFailed)
{
    const JobOutcome outcome = OutcomeWhile(
        [&] {
            folder_.Write("new.wav", "no sound at all");
            fs::rename(folder_ / "new.wav", in_);
        },
        Copying([] {}));
    EXPECT_FALSE(outcome.summary);
    EXPECT_EQ(outcome.error.rfind("another file took its place while it was read; ", 0), 0U)
        << outcome.error;
}

TEST_F(Converted, AnInputMayChangeOnceItIsConverted)
{
    const JobOutcome outcome = OutcomeWhile([] {}, Copying([&] { fs::remove(in_); }));
    EXPECT_EQ(outcome.error, "");
    EXPECT_TRUE(outcome.summary);
}

} // namespace
} // namespace lumora::test
