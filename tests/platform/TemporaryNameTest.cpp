#include "platform/TemporaryName.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

namespace lumora::test {
namespace {

namespace fs = std::filesystem;

/// A name taken apart at its hyphens.
std::vector<std::string> PartsOf(const std::string& path)
{
    std::vector<std::string> parts(1);
    for (const char c : fs::path(path).filename().string()) {
        if (c == '-')
            parts.emplace_back();
        else
            parts.back() += c;
    }
    return parts;
}

class Temporary : public testing::Test {
protected:
    std::string Mine(const char* ending = ".wav") const
    {
        return TemporaryBeside(folder_ / "out.wav", ending);
    }

    /// The name that a process had which has ended since.
    std::string OfTheDead(const char* ending = ".wav") const
    {
        int ends[2];
        EXPECT_EQ(pipe(ends), 0);
        const pid_t process = fork();
        if (process == 0) {
            const std::string name = Mine(ending);
            _exit(write(ends[1], name.data(), name.size()) > 0 ? 0 : 1);
        }
        char name[4096];
        const ssize_t length = read(ends[0], name, sizeof name);
        waitpid(process, nullptr, 0);
        close(ends[0]);
        close(ends[1]);
        return {name, static_cast<std::size_t>(std::max<ssize_t>(length, 0))};
    }

    /// Mine, with one part replaced.
    std::string With(std::size_t part, const std::string& text) const
    {
        std::vector<std::string> parts = PartsOf(Mine());
        parts.at(part) = text;
        std::string name;
        for (const std::string& each : parts)
            name += (name.empty() ? "" : "-") + each;
        return folder_ / name;
    }

    bool StaysWhenSwept(const std::string& path) const
    {
        std::ofstream(path) << "work";
        RemoveAbandoned(folder_.Path().string());
        return fs::exists(path);
    }

    TempFolder folder_;
};

TEST_F(Temporary, IsHiddenBesideItsTargetAndNobodyElseHasIt)
{
    std::set<std::string> names;
    for (int k = 0; k < 1000; ++k)
        names.insert(Mine(".in.wav"));
    EXPECT_EQ(names.size(), 1000U);
    EXPECT_EQ(fs::path(*names.begin()).parent_path(), folder_.Path());
    EXPECT_EQ(fs::path(*names.begin()).filename().string().rfind(".lumora-", 0), 0U);
    EXPECT_TRUE(names.begin()->ends_with(".in.wav"));
}

TEST_F(Temporary, OfAProcessThatHasEndedIsRemoved)
{
    EXPECT_FALSE(StaysWhenSwept(OfTheDead()));
    EXPECT_FALSE(StaysWhenSwept(OfTheDead(".in.wav")));
}

TEST_F(Temporary, OfAProcessThatLivesStays)
{
    EXPECT_TRUE(StaysWhenSwept(Mine()));
    const pid_t process = fork();
    if (process == 0) {
        RemoveAbandoned(folder_.Path().string());
        _exit(0);
    }
    waitpid(process, nullptr, 0);
    EXPECT_FALSE(fs::is_empty(folder_.Path()));
}

TEST_F(Temporary, WhoseProcessNumberWentToAnotherOneIsRemoved)
{
    const std::uint64_t start = std::stoull(PartsOf(Mine()).at(3));
    EXPECT_FALSE(StaysWhenSwept(With(3, std::to_string(start - 1))));
    EXPECT_FALSE(StaysWhenSwept(With(3, std::to_string(start + 1))));
}

TEST_F(Temporary, FromAnotherMachineOrAnotherStartOfThisOneStays)
{
    std::string place = PartsOf(OfTheDead()).at(1);
    ASSERT_NE(place, "0000000000000000");
    std::vector<std::string> parts = PartsOf(OfTheDead());
    place.front() = place.front() == '0' ? '1' : '0';
    for (const std::string& other : {place, std::string("0000000000000000")})
        EXPECT_TRUE(StaysWhenSwept(
            folder_ / (parts[0] + "-" + other + "-" + parts[2] + "-" + parts[3] + "-" + parts[4])));
}

TEST_F(Temporary, WithAnyOtherNameStays)
{
    const std::string name = fs::path(OfTheDead()).filename().string();
    for (const std::string& other :
         {std::string(".lumora-0123456789abcdef.wav"), std::string(".lumora-mine.wav"),
          std::string("out.wav"), name.substr(1), name.substr(0, name.find('.', 1)),
          name.substr(0, name.find('.', 1)) + "x.wav", "x" + name})
        EXPECT_TRUE(StaysWhenSwept(folder_ / other)) << other;
}

TEST_F(Temporary, ThatIsNoFileOrALinkStays)
{
    const std::string inner = OfTheDead();
    fs::create_directory(inner);
    const std::string link = OfTheDead();
    fs::create_symlink(folder_.Write("mine.wav", "mine"), link);
    RemoveAbandoned(folder_.Path().string());
    EXPECT_TRUE(fs::exists(inner));
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_TRUE(fs::exists(folder_ / "mine.wav"));
}

TEST_F(Temporary, OfAnotherUserStays)
{
    if (geteuid() != 0) GTEST_SKIP() << "files are given away only by the superuser";
    const std::string name = OfTheDead();
    std::ofstream(name) << "work";
    ASSERT_EQ(chown(name.c_str(), 54321, 54321), 0);
    RemoveAbandoned(folder_.Path().string());
    EXPECT_TRUE(fs::exists(name));
}

TEST_F(Temporary, AFolderThatIsNotThereIsLeftAlone)
{
    RemoveAbandoned(folder_ / "nowhere");
    RemoveAbandoned("");
    EXPECT_TRUE(fs::is_empty(folder_.Path()));
}

} // namespace
} // namespace lumora::test
