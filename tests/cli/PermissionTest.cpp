#include "cli/CommandRun.h"
#include "cli/Sounds.h"
#include "support/SameBytes.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <linux/securebits.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <unistd.h>

namespace lumora::test {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

/// From the next program on, file permissions count for the superuser as for anybody else.
void BeNobodySpecial()
{
    if (geteuid() == 0 && prctl(PR_SET_SECUREBITS, SECBIT_NOROOT) != 0) _exit(125);
}

class Permission : public testing::Test {
protected:
    Permission() : in_(folder_.Write("in.wav", TuneWave(5000))) {}

    std::string Refusal(const Names& words) const
    {
        const CommandResult result = Lumora(words, {.before = BeNobodySpecial});
        EXPECT_EQ(result.status, 1) << result.out << result.err;
        EXPECT_EQ(result.out, "");
        return result.err;
    }

    TempFolder folder_;
    std::string in_;
};

TEST_F(Permission, AnInputThatMayNotBeReadIsNamed)
{
    fs::permissions(in_, fs::perms::none);
    const std::string line =
        "lumora: " + in_ + ": cannot be read (permission denied); check its permissions\n";
    EXPECT_EQ(Refusal({"pitch", in_, folder_ / "out.wav", "--tones", "1"}), line);
    EXPECT_EQ(Refusal({"info", in_}), line);
    EXPECT_EQ(NamesIn(folder_.Path()), Names{"in.wav"});
}

TEST_F(Permission, AnInputThatMayOnlyBeReadIsEnough)
{
    fs::permissions(in_, fs::perms::owner_read);
    const CommandResult result =
        Lumora({"pitch", in_, folder_ / "out.wav", "--tones", "0"}, {.before = BeNobodySpecial});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_TRUE(HoldsBytes(folder_ / "out.wav", EngineResult(in_, 1.0)));
}

TEST_F(Permission, AFolderThatMayNotBeWrittenIsNamed)
{
    const std::string locked = folder_.MakeFolder("locked");
    fs::permissions(locked, fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_EQ(Refusal({"pitch", in_, locked + "/out.wav", "--tones", "1"}),
              "lumora: " + in_ + ": nothing can be written in the folder " + locked +
                  " (permission denied)\n");
    EXPECT_EQ(Refusal({"pitch", in_, "--out-dir", locked + "/new", "--tones", "1"}),
              "lumora: " + in_ + ": the folder " + locked +
                  "/new cannot be made (permission denied)\n");
    EXPECT_EQ(NamesIn(locked), Names{});
}

} // namespace
} // namespace lumora::test
