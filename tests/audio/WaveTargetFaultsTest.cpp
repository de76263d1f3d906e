#include "audio/WaveStream.h"

#include "support/Arrays.h"
#include "support/Limits.h"
#include "support/MessageRecorder.h"
#include "support/Raised.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace lumora {
namespace {

using namespace test;

class WaveTarget : public testing::Test {
protected:
    void TearDown() override { EXPECT_EQ(OpenFileCount(), open_before); }

    TempFolder folder;
    MessageRecorder messages;
    const Array<std::int16_t> second{22050};
    const std::ptrdiff_t open_before = OpenFileCount();
    const Shown no_output = {FileError("Error using fopen.", " Cannot open  WAV file for output.")};
};

TEST_F(WaveTarget, ThatCannotBeMadeShowsItsMessageAndTheCallReturns)
{
    for (const std::string& name : {folder.MakeFolder("folder.wav"), folder / "no/folder/f.wav"}) {
        WriteNewWave(second, 22050, name);
        EXPECT_EQ(messages.Take(), no_output) << name;
        AppendWave(second, name);
        EXPECT_EQ(messages.Take(), no_output) << name;
    }
}

TEST_F(WaveTarget, ThatIsFullIsError61AndStaysADevice)
{
    EXPECT_EQ(Raised([&] { WriteNewWave(second, 22050, "/dev/full"); }), 61);
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
    EXPECT_EQ(Raised([&] { WriteNewWave(Array<std::int16_t>(1), 22050, "/dev/full"); }), 61);
    EXPECT_EQ(Raised([&] { AppendWave(second, "/dev/full"); }), 61);
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(WaveTarget, ThatMayNotGrowIsError61)
{
    const FileSizeLimit limit(20000);
    EXPECT_EQ(Raised([&] { WriteNewWave(second, 22050, folder / "f.wav"); }), 61);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(WaveTarget, ThatMayNotGrowKeepsItsOldHeader)
{
    const std::string name = folder / "f.wav";
    WriteNewWave(second, 22050, name);
    const std::string header = BytesOf(name).substr(0, 58);
    {
        const FileSizeLimit limit(50000);
        EXPECT_EQ(Raised([&] { AppendWave(second, name); }), 61);
    }
    EXPECT_EQ(BytesOf(name).substr(0, 58), header);
    EXPECT_EQ(ReadWaveInfo(name).TotalSamples, 22050);
}

TEST_F(WaveTarget, ThatMayNotBeDeletedIsARunTimeErrorAndElseAFailedOpen)
{
    const std::string locked = folder.MakeFolder("locked");
    const std::string name = folder.Write("locked/f.wav", "precious");
    chmod(name.c_str(), 0444);
    chmod(locked.c_str(), 0555);
    {
        const PermissionsCount strict;
        EXPECT_EQ(Raised([&] { WriteNewWave(second, 22050, name); }), 70);
        EXPECT_TRUE(messages.Take().empty());
        AppendWave(second, name);
        EXPECT_EQ(messages.Take(), no_output);
        WriteNewWave(second, 22050, locked + "/new.wav");
        EXPECT_EQ(messages.Take(), no_output);
    }
    chmod(locked.c_str(), 0755);
    EXPECT_EQ(BytesOf(name), "precious");
}

} // namespace
} // namespace lumora
