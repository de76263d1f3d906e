#include "cli/CommandRun.h"
#include "cli/Sounds.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <functional>
#include <thread>

namespace lumora::test {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

constexpr char kRunAgain[] = "; run it again when nothing changes it any more\n";

/// Sounds that are changed while the command holds still in the middle of reading them.
class ChangedInput : public testing::Test {
protected:
    ChangedInput() : in_(folder_ / "in.wav")
    {
        folder_.Write("in.wav", PlainWave({.channels = 2}, "", kBytes));
        fs::resize_file(in_, kHead + kBytes); // silence that takes no room on the disk
    }

    std::uintmax_t BytesOfWork() const
    {
        std::uintmax_t bytes = 0;
        for (const auto& entry : fs::directory_iterator(folder_.Path())) {
            std::error_code gone;
            if (entry.path().filename().string().front() != '.') continue;
            const std::uintmax_t size = fs::file_size(entry, gone);
            if (!gone) bytes += size;
        }
        return bytes;
    }

    std::string ErrorWhile(Names words, const std::function<void()>& change) const
    {
        words.insert(words.begin() + 1, {in_, folder_ / "out.wav"});
        RunningCommand command(LumoraWords(words));
        while (BytesOfWork() < 100000)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        const int worker = std::stoi(command.Child());
        kill(worker, SIGSTOP);
        change();
        EXPECT_LT(BytesOfWork(), std::uintmax_t{kBytes}) << "it had read all by then";
        kill(worker, SIGCONT);
        const CommandResult result = command.Wait();
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(NamesIn(folder_.Path()), fs::exists(in_) ? Names{"in.wav"} : Names{});
        return result.err;
    }

    static constexpr std::int64_t kHead = 44;
    static constexpr std::int64_t kBytes = 40000000;
    TempFolder folder_;
    std::string in_;
};

TEST_F(ChangedInput, ThatLosesItsLastSamplesIsNoSilenceAtTheEndButAFailure)
{
    for (const Names& words : {Names{"pitch", "--tones", "1"}, Names{"declip"}}) {
        fs::resize_file(in_, kHead + kBytes);
        EXPECT_EQ(ErrorWhile(words, [&] { fs::resize_file(in_, kHead + kBytes - 400); }),
                  "lumora: " + in_ +
                      ": it became shorter while it was read (from 40000044 to 39999644 bytes)" +
                      kRunAgain);
    }
}

TEST_F(ChangedInput, ThatLosesNearlyAllOfItIsNoWantOfMemory)
{
    for (const Names& words : {Names{"pitch", "--tones", "1"}, Names{"declip"}}) {
        fs::resize_file(in_, kHead + kBytes);
        EXPECT_EQ(ErrorWhile(words, [&] { fs::resize_file(in_, kHead); }),
                  "lumora: " + in_ +
                      ": it became shorter while it was read (from 40000044 to 44 bytes)" +
                      kRunAgain);
    }
}

TEST_F(ChangedInput, ThatIsReplacedByAnotherSoundIsToldInPlainWords)
{
    EXPECT_EQ(ErrorWhile({"pitch", "--tones", "1"},
                         [&] {
                             const std::string other = folder_.Write("b.wav", TuneWave(5000));
                             fs::rename(other, in_);
                         }),
              "lumora: " + in_ + ": another file took its place while it was read" + kRunAgain);
}

TEST_F(ChangedInput, ThatIsRemovedIsToldInPlainWords)
{
    for (const Names& words : {Names{"pitch", "--tones", "1"}, Names{"declip"}}) {
        folder_.Write("in.wav", PlainWave({.channels = 2}, "", kBytes));
        fs::resize_file(in_, kHead + kBytes);
        EXPECT_EQ(ErrorWhile(words, [&] { fs::remove(in_); }),
                  "lumora: " + in_ +
                      ": it was removed or renamed while it was read; put it back and run it "
                      "again\n");
    }
}

TEST_F(ChangedInput, ThatIsBeingConvertedIsToldToo)
{
    const std::string head =
        Wave(Chunk("LIST", "INFO") + FormatChunk({.channels = 2}) + Chunk("data", "", kBytes));
    folder_.Write("in.wav", head);
    const auto whole = static_cast<std::int64_t>(head.size()) + kBytes;
    fs::resize_file(in_, static_cast<std::uintmax_t>(whole));
    const std::string error = ErrorWhile({"pitch", "--tones", "1"}, [&] {
        fs::resize_file(in_, static_cast<std::uintmax_t>(whole - 400));
    });
    EXPECT_NE(error.find(": it became shorter while it was read ("), std::string::npos) << error;
    EXPECT_EQ(error.find("cut short"), std::string::npos) << error;
}

} // namespace
} // namespace lumora::test
