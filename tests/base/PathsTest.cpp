#include "base/Paths.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using test::TempFolder;

TEST(FileExists, HoldsForAnythingButAFolder)
{
    const TempFolder folder;
    EXPECT_TRUE(FileExists(folder.Write("song.wav", "")));
    EXPECT_TRUE(FileExists("/dev/full"));
    EXPECT_FALSE(FileExists(folder.Path().string()));
    EXPECT_FALSE(FileExists(folder / "missing.wav"));
    EXPECT_FALSE(FileExists(folder / "song.wav/below"));
    EXPECT_FALSE(FileExists(""));
}

TEST(FileExists, FollowsALinkToWhatItMeans)
{
    const TempFolder folder;
    std::filesystem::create_symlink(folder.Write("song.wav", ""), folder / "good");
    std::filesystem::create_symlink(folder.Path(), folder / "folder");
    std::filesystem::create_symlink(folder / "missing", folder / "broken");
    EXPECT_TRUE(FileExists(folder / "good"));
    EXPECT_FALSE(FileExists(folder / "folder"));
    EXPECT_FALSE(FileExists(folder / "broken"));
}

TEST(FindIgnoringCase, FindsAnEntryInAnotherCase)
{
    const TempFolder folder;
    folder.Write("Song.wav", "");
    EXPECT_EQ(FindIgnoringCase(folder.Path(), "sONG.WAV"), folder.Path() / "Song.wav");
    EXPECT_EQ(FindIgnoringCase(folder.Path(), "Song.wa"), std::nullopt);
    EXPECT_EQ(FindIgnoringCase(folder.Path(), "Song.wavx"), std::nullopt);
    EXPECT_EQ(FindIgnoringCase(folder.Path(), ""), std::nullopt);
}

TEST(FindIgnoringCase, PrefersTheExactName)
{
    const TempFolder folder;
    for (const char* name : {"SONG.wav", "Song.wav", "song.wav", "song.WAV"})
        folder.Write(name, "");
    for (const char* name : {"SONG.wav", "Song.wav", "song.wav", "song.WAV"})
        EXPECT_EQ(FindIgnoringCase(folder.Path(), name), folder.Path() / name);
    EXPECT_TRUE(FindIgnoringCase(folder.Path(), "SONG.WAV").has_value());
}

TEST(FindIgnoringCase, FindsNothingWhereThereIsNoFolder)
{
    const TempFolder folder;
    EXPECT_EQ(FindIgnoringCase(folder.Path() / "missing", "a"), std::nullopt);
    EXPECT_EQ(FindIgnoringCase(folder.Write("file", ""), "a"), std::nullopt);
}

TEST(ProgramFolder, IsEmptyUntilItIsSet)
{
    EXPECT_EQ(ProgramFolder(), "");
    SetProgramFolder("/opt/lumora");
    EXPECT_EQ(ProgramFolder(), "/opt/lumora");
    SetProgramFolder({});
    EXPECT_EQ(ProgramFolder(), "");
}

} // namespace
} // namespace lumora
