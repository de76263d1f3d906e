#include "platform/OutputFile.h"
#include "support/SameBytes.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace lumora::test {
namespace {

namespace fs = std::filesystem;

void Put(const std::string& path, const std::string& text)
{
    std::ofstream(path, std::ios::binary) << text;
}

TEST(OutputFile, TheResultGetsItsNameWhenItIsCommitted)
{
    const TempFolder folder;
    const OutputFile output(folder / "out.wav", Existing::Keep, Folder::MustExist);
    EXPECT_EQ(output.Fault(), "");
    EXPECT_EQ(output.Prepare(), "");
    Put(output.Result(), "new");
    EXPECT_FALSE(fs::exists(folder / "out.wav"));
    EXPECT_EQ(output.Commit(), "");
    EXPECT_TRUE(HoldsBytes(folder / "out.wav", "new"));
    EXPECT_FALSE(fs::exists(output.Result()));
}

TEST(OutputFile, AFileThatAppearsMeanwhileIsKept)
{
    const TempFolder folder;
    const OutputFile output(folder / "out.wav", Existing::Keep, Folder::MustExist);
    EXPECT_EQ(output.Prepare(), "");
    folder.Write("out.wav", "mine");
    EXPECT_NE(output.Commit(), "");
    output.Discard();
    EXPECT_TRUE(HoldsBytes(folder / "out.wav", "mine"));
    EXPECT_FALSE(fs::exists(output.Result()));
}

TEST(OutputFile, AFileThatMayBeReplacedIsReplaced)
{
    const TempFolder folder;
    folder.Write("out.wav", "old");
    const OutputFile output(folder / "out.wav", Existing::Replace, Folder::MustExist);
    EXPECT_EQ(output.Fault(), "");
    EXPECT_EQ(output.Prepare(), "");
    Put(output.Result(), "new");
    EXPECT_EQ(output.Commit(), "");
    EXPECT_TRUE(HoldsBytes(folder / "out.wav", "new"));
}

TEST(OutputFile, AFolderThatAppearsMeanwhileIsReported)
{
    const TempFolder folder;
    const OutputFile output(folder / "out.wav", Existing::Replace, Folder::MustExist);
    EXPECT_EQ(output.Prepare(), "");
    folder.MakeFolder("out.wav");
    EXPECT_NE(output.Commit(), "");
}

TEST(OutputFile, TemporariesAreHiddenWavesOfTheirOwnBesideTheTarget)
{
    const TempFolder folder;
    const OutputFile one(folder / "out.wav", Existing::Keep, Folder::MustExist);
    const OutputFile two(folder / "out.wav", Existing::Keep, Folder::MustExist);
    for (const std::string& name : {one.Result(), one.Converted()}) {
        EXPECT_EQ(fs::path(name).parent_path(), folder.Path());
        EXPECT_EQ(fs::path(name).filename().string().front(), '.');
        EXPECT_EQ(fs::path(name).extension(), ".wav");
    }
    EXPECT_NE(one.Result(), one.Converted());
    EXPECT_NE(one.Result(), two.Result());
}

TEST(OutputFile, DiscardRemovesBothTemporariesAndNothingElse)
{
    const TempFolder folder;
    const OutputFile output(folder / "out.wav", Existing::Replace, Folder::MustExist);
    folder.Write("out.wav", "old");
    EXPECT_EQ(output.Prepare(), "");
    Put(output.Converted(), "input");
    output.Discard();
    EXPECT_FALSE(fs::exists(output.Result()) || fs::exists(output.Converted()));
    EXPECT_TRUE(HoldsBytes(folder / "out.wav", "old"));
}

TEST(OutputFile, LinksThatGoRoundInACircleAreAFault)
{
    const TempFolder folder;
    fs::create_symlink("b.wav", folder / "a.wav");
    fs::create_symlink("a.wav", folder / "b.wav");
    const OutputFile output(folder / "a.wav", Existing::Replace, Folder::MustExist);
    EXPECT_NE(output.Fault(), "");
}

} // namespace
} // namespace lumora::test
