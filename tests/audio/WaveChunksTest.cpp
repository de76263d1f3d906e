#include "audio/WaveChunks.h"

#include "support/Arrays.h"
#include "support/Limits.h"
#include "support/MessageRecorder.h"
#include "support/Raised.h"
#include "support/TempFolder.h"
#include "support/WaveBuilder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace lumora {
namespace {

using namespace test;

const std::string kNotThere = " Cannot open specifid WAV file for input, because file not exist.";
const std::string kHeadCutText = "Truncated chunk header found -possibly not a WAV file";
const std::string kSizeCutText = "Truncated chunk data found- possibly not a WAV file";
const std::string kRiffCutText = "Truncated RIFF data found- possibly not a WAV file";

class WaveChunks : public testing::Test {
protected:
    /// The number of a file of these bytes; it is closed with the test.
    FileNumber Open(const std::string& bytes)
    {
        file = std::make_unique<OpenFile>(fopen(folder.Write("f.wav", bytes), "rb"));
        return file->Number();
    }
    Shown Titled(const std::string& title, const std::string& text)
    {
        return {FileError(title, text)};
    }

    TempFolder folder;
    MessageRecorder messages;
    std::unique_ptr<OpenFile> file;
};

TEST_F(WaveChunks, OpenWavOpensReadOnly)
{
    const OpenFile wave(open_wav(folder.Write("a.wav", "abc")));
    ASSERT_FALSE(wave.Failed());
    EXPECT_EQ(FilePosition(wave.Number()), 1);
    EXPECT_EQ(Raised([&] { fwrite(wave.Number(), 1.0, "uchar"); }), 75);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(WaveChunks, OpenWavAddsItsExtensionToANameWithoutADot)
{
    folder.Write("phrase.wav", "longer");
    folder.Write("phrase", "short");
    folder.Write("take.2", "dotted");
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    EXPECT_EQ(FileLength(OpenFile(open_wav("phrase")).Number()), 6);
    EXPECT_EQ(FileLength(OpenFile(open_wav("./phrase")).Number()), 5); // this name has a dot
    EXPECT_EQ(FileLength(OpenFile(open_wav("take.2")).Number()), 6);
    std::filesystem::current_path(before);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(WaveChunks, OpenWavOfAMissingFileShowsItsMessage)
{
    for (const std::string& name : {folder / "missing.wav", folder.MakeFolder("folder.wav")}) {
        EXPECT_EQ(open_wav(name), kNoFile);
        EXPECT_EQ(messages.Take(), Titled("Error using open_wav.", kNotThere));
    }
}

TEST_F(WaveChunks, OpenWavOfASecretFileIsARunTimeError)
{
    const std::string name = folder.Write("a.wav", "abc");
    chmod(name.c_str(), 0);
    const PermissionsCount strict;
    EXPECT_EQ(Raised([&] { open_wav(name); }), 70);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(WaveChunks, ReadCkinfoGivesIdAndSize)
{
    const FileNumber number = Open("fmt " + Le32(0x01020304) + "x");
    const ChunkHeader chunk = read_ckinfo(number);
    EXPECT_EQ(chunk.File, number);
    EXPECT_EQ(chunk.ID, "fmt"); // trimmed
    EXPECT_EQ(chunk.Data, Variant(Row<std::uint8_t>({'f', 'm', 't', ' '})));
    EXPECT_EQ(chunk.Size, 0x01020304);
    EXPECT_EQ(chunk.Message, "");
    EXPECT_EQ(FilePosition(number), 9);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(WaveChunks, ReadCkinfoTakesANegativeSizeAsItStands)
{
    EXPECT_EQ(read_ckinfo(Open("data" + Le32(-5))).Size, -5);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(WaveChunks, ReadCkinfoShowsWhatIsCutOff)
{
    const std::string whole = "data" + Le32(5);
    for (std::size_t length = 0; length < 8; ++length) {
        const std::string& text = length < 4 ? kHeadCutText : kSizeCutText;
        EXPECT_EQ(read_ckinfo(Open(whole.substr(0, length))).Message, text) << length;
        EXPECT_EQ(messages.Take(), Titled("Error using read_ckinfo", text)) << length;
    }
}

TEST_F(WaveChunks, ReadCkinfoBeyondTheEndLetsFreadSpeakFirst)
{
    const FileNumber number = Open("abc");
    SeekTo(number, 5);
    EXPECT_EQ(read_ckinfo(number).Message, kHeadCutText);
    EXPECT_EQ(messages.Take(),
              (Shown{FileError("Error using fread", "Empty matrix: out of file size"),
                     FileError("Error using read_ckinfo", kHeadCutText)}));
}

TEST_F(WaveChunks, ReadCktypeIgnoresLetterCase)
{
    for (const char* id : {"RIFF", "riff", "Riff"}) {
        const ChunkHeader chunk = read_cktype(Open(id + Le32(9)), "RIFF");
        EXPECT_EQ(chunk.Message, "");
        EXPECT_EQ(chunk.ID, id);
        EXPECT_EQ(chunk.Size, 9);
    }
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(WaveChunks, ReadCktypeTakesAnyIdWhenNoneIsExpected)
{
    EXPECT_EQ(read_cktype(Open("LIST" + Le32(9)), "").ID, "LIST");
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(WaveChunks, ReadCktypeShowsWhatDidNotAppear)
{
    for (const char* id : {"RIFX", "LIST", "RIF "}) {
        const std::string text = "<RIFF-ck> did not appear as expected";
        EXPECT_EQ(read_cktype(Open(id + Le32(9)), "RIFF").Message, text);
        EXPECT_EQ(messages.Take(), Titled("Error using read_cktype", text));
    }
}

TEST_F(WaveChunks, ReadCktypeLeavesACutHeadToReadCkinfo)
{
    EXPECT_EQ(read_cktype(Open("RI"), "RIFF").Message, kHeadCutText);
    EXPECT_EQ(messages.Take(), Titled("Error using read_ckinfo", kHeadCutText));
}

TEST_F(WaveChunks, FindRefftypeIgnoresLetterCase)
{
    for (const char* id : {"WAVE", "wave", "WaVe"}) {
        const RiffType type = find_refftype(Open(id), "WAVE");
        EXPECT_EQ(type.ID, id);
        EXPECT_EQ(type.Message, "");
    }
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(WaveChunks, FindRefftypeShowsWhatIsWrong)
{
    const std::string title = "Error using find_refftype";
    for (const char* cut : {"", "W", "WA", "WAV"}) {
        EXPECT_EQ(find_refftype(Open(cut), "WAVE").Message, kRiffCutText) << cut;
        EXPECT_EQ(messages.Take(), Titled(title, kRiffCutText)) << cut;
    }
    for (const char* other : {"AVI ", "WAV ", "\xFF\xFE\xFD\xFC"}) {
        EXPECT_EQ(find_refftype(Open(other), "WAVE").Message, "Not a WAV file") << other;
        EXPECT_EQ(messages.Take(), Titled(title, "Not a WAV file")) << other;
    }
}

} // namespace
} // namespace lumora
