#include "cli/CommandRun.h"
#include "cli/Sounds.h"
#include "support/SameBytes.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <sys/stat.h>

namespace lumora::test {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

/// A refused call, what it ends with, and words of the line that says why.
struct Refused {
    Names words;
    int status;
    std::string why;
};

void PrintTo(const Refused& refused, std::ostream* out)
{
    for (const std::string& word : refused.words)
        *out << word << ' ';
}

/// A folder with a good file, and things that are none.
class Refusal : public testing::TestWithParam<Refused> {
protected:
    Refusal()
    {
        folder_.Write("good.wav", TuneWave(5000));
        folder_.Write("copy.flac", TuneWave(5000));
        folder_.Write("old.wav", "old");
        folder_.Write("empty.wav", "");
        folder_.Write("text.wav", "This is no sound at all, whatever its name may say.\n");
        folder_.Write("short.wav", TuneWave(219));
        folder_.Write("slow.wav", TuneWave(5000, 1, 2205));
        folder_.Write("fast.wav", TuneWave(5000, 1, 820511));
        folder_.Write("slowest.wav", TuneWave(5000, 1, 918));
        folder_.Write("fastest.wav", TuneWave(5000, 1, 2463136));
        folder_.Write("none.wav", PlainWave({}, ""));
        folder_.Write("many.wav", TuneWave(5000, 6));
        folder_.Write("drawn.png", TuneWave(5000));
        folder_.MakeFolder("folder.svg");
        folder_.MakeFolder("folder");
        folder_.MakeFolder("other");
        fs::create_hard_link(folder_ / "good.wav", folder_ / "twin.wav");
        fs::create_symlink("good.wav", folder_ / "link.wav");
        mkfifo((folder_ / "pipe").c_str(), 0600);
    }

    CommandResult Run(const Names& words) const { return Lumora(words, {folder_.Path().string()}); }

    TempFolder folder_;
};

TEST_P(Refusal, SaysWhyAndLeavesNothingBehind)
{
    const auto [words, status, why] = GetParam();
    const Names before = NamesIn(folder_.Path());
    const CommandResult result = Run(words);
    EXPECT_EQ(result.status, status);
    EXPECT_EQ(result.out, "");
    EXPECT_NE(result.err.find(why), std::string::npos) << result.err;
    EXPECT_EQ(NamesIn(folder_.Path()), before);
    EXPECT_EQ(NamesIn(folder_ / "other"), Names{});
    EXPECT_TRUE(HoldsBytes(folder_ / "old.wav", "old"));
    EXPECT_TRUE(HoldsBytes(folder_ / "good.wav", TuneWave(5000)));
}

Refused Usage(Names words, const std::string& why)
{
    return {std::move(words), 2, why};
}
Refused BadFile(const std::string& name, const std::string& why)
{
    return {{"pitch", name, "out.wav", "--tones", "1"}, 1, "lumora: " + name + ": " + why};
}
Refused BadSource(const std::string& name, const std::string& why)
{
    return {{"declip", name, "out.wav", "--plot", "out.png"}, 1, "lumora: " + name + ": " + why};
}
Refused BadPicture(const std::string& name, const std::string& why)
{
    return {{"declip", "good.wav", "out.wav", "--plot", name}, 1, name + " " + why};
}
Refused BadOutput(const std::string& name, const std::string& why)
{
    return {{"pitch", "good.wav", name, "--tones", "1"}, 1, name + " " + why};
}

INSTANTIATE_TEST_SUITE_P(
    WrongUsage, Refusal,
    testing::Values(
        Usage({}, "say what to do"), Usage({"sing"}, "say what to do"),
        Usage({"help", "sing"}, "no command sing"),
        Usage({"pitch"}, "exactly one of --tones, --octaves, --cents and --q-p"),
        Usage({"pitch", "good.wav", "out.wav"}, "exactly one of"),
        Usage({"pitch", "good.wav", "out.wav", "--tones", "1", "--cents", "5"}, "exactly one of"),
        Usage({"pitch", "good.wav", "out.wav", "--tones", "1", "--tones", "2"}, "--tones"),
        Usage({"pitch", "good.wav", "out.wav", "--tones"}, "--tones"),
        Usage({"pitch", "good.wav", "out.wav", "--tones", "1/3"}, "--tones 1/3"),
        Usage({"pitch", "good.wav", "out.wav", "--tones", "-6-1/64"}, "-6 to 6"),
        Usage({"pitch", "good.wav", "out.wav", "--octaves", "1.5"}, "-1 to 1"),
        Usage({"pitch", "good.wav", "out.wav", "--cents", "nan"}, "-1200 to 1200"),
        Usage({"pitch", "good.wav", "out.wav", "--q-p", "0"}, "0.5 to 2.0"),
        Usage({"pitch", "good.wav", "--tones", "1"}, "an input and an output"),
        Usage({"pitch", "good.wav", "copy.flac", "out.wav", "--tones", "1"}, "--out-dir"),
        Usage({"pitch", "--out-dir", "other", "--tones", "1"}, "name the files"),
        Usage({"pitch", "good.wav", "--out-dir", "", "--tones", "1"}, "--out-dir"),
        Usage({"pitch", "good.wav", "out.wav", "--tones", "1", "--jobs", "0"}, "--jobs"),
        Usage({"pitch", "good.wav", "out.wav", "--tones", "1", "--jobs", "257"}, "--jobs"),
        Usage({"pitch", "good.wav", "out.wav", "--tones", "1", "--jobs", "two"}, "--jobs"),
        Usage({"pitch", "good.wav", "out.wav", "--tones", "1", "--loud"}, "--loud"),
        Usage({"pitch", "good.wav", "--out-dir", "other", "--tones", "1", "--", "--loud",
               "good.wav"},
              "good.wav"),
        Usage({"pitch", "good.wav", "folder/../good.flac", "--out-dir", "other", "--tones", "1"},
              "would both be"),
        Usage({"pitch", "good.wav", "good.wav", "--out-dir", "other", "--tones", "1"},
              "would both be"),
        Usage({"pitch", "good.wav", "good.wav", "--tones", "1", "--force"}, "is an input as well"),
        Usage({"pitch", "good.wav", "folder/../good.wav", "--tones", "1", "--force"},
              "is an input as well"),
        Usage({"pitch", "good.wav", "twin.wav", "--tones", "1", "--force"}, "is an input as well"),
        Usage({"pitch", "good.wav", "link.wav", "--tones", "1", "--force"}, "is an input as well"),
        Usage({"pitch", "copy.flac", "good.wav", "--out-dir", ".", "--tones", "1", "--force"},
              "is an input as well"),
        Usage({"declip"}, "an input and an output"),
        Usage({"declip", "good.wav"}, "an input and an output"),
        Usage({"declip", "good.wav", "copy.flac", "out.wav"}, "--out-dir"),
        Usage({"declip", "good.wav", "out.wav", "--tones", "1"}, "--tones"),
        Usage({"declip", "good.wav", "good.wav", "--force"}, "is an input as well"),
        Usage({"declip", "good.wav", "out.wav", "--plot"}, "--plot"),
        Usage({"declip", "good.wav", "out.wav", "--plot", "out.jpg"}, "end in .png or .svg"),
        Usage({"declip", "good.wav", "out.wav", "--plot", ""}, "end in .png or .svg"),
        Usage({"declip", "good.wav", "copy.flac", "--out-dir", "other", "--plot", "out.png"},
              "--plot draws one input"),
        Usage({"declip", "good.wav", "out.png", "--plot", "folder/../out.png"},
              "the result and the picture would both be"),
        Usage({"declip", "drawn.png", "out.wav", "--plot", "./drawn.png", "--force"},
              "is an input as well"),
        Usage({"info"}, "name the files"), Usage({"info", "--tones", "1", "good.wav"}, "--tones")));

INSTANTIATE_TEST_SUITE_P(
    BadInput, Refusal,
    testing::Values(
        BadFile("missing.wav", "there is no such file"),
        BadFile("good.wav/x", "cannot be reached (not a directory)"),
        BadFile("folder", "is a folder"), BadFile("pipe", "is a pipe or a device"),
        BadFile("/dev/zero", "is a pipe or a device"), BadFile("empty.wav", "is empty"),
        BadFile("text.wav", "cannot be read as sound"),
        BadFile("short.wav", "it is too short: 219 samples (9.93 ms), and at least 220 samples "
                             "(9.98 ms), one block, are needed"),
        BadFile("slow.wav", "its rate is 2205 Hz, and 2206 to 820510 Hz can be worked on"),
        BadFile("fast.wav", "its rate is 820511 Hz, and 2206 to 820510 Hz can be worked on"),
        BadFile("many.wav", "it has 6 channels, and 1 or 2 can be worked on"),
        BadSource("missing.wav", "there is no such file"), BadSource("folder", "is a folder"),
        BadSource("empty.wav", "is empty"), BadSource("text.wav", "cannot be read as sound"),
        BadSource("none.wav", "there is not a single sample in it"),
        BadSource("slowest.wav", "its rate is 918 Hz, and 919 to 2463135 Hz can be worked on"),
        BadSource("fastest.wav", "its rate is 2463136 Hz, and 919 to 2463135 Hz can be worked on"),
        BadSource("many.wav", "it has 6 channels, and 1 or 2 can be worked on")));

INSTANTIATE_TEST_SUITE_P(
    BadOutput, Refusal,
    testing::Values(
        BadOutput("old.wav", "exists already; give another name, or --force"),
        BadOutput("folder", "is a folder"), BadOutput("pipe", "is a pipe or a device"),
        BadOutput("/dev/full", "is a pipe or a device"),
        BadOutput("/dev/null", "is a pipe or a device"),
        BadOutput("/dev/stdin", "is a pipe or a device"),
        BadOutput("nowhere/out.wav", "cannot be written: there is no folder nowhere"),
        BadOutput("good.wav/out.wav", "cannot be written (not a directory)"),
        BadOutput("newname/", "is not the name of a file"),
        BadPicture("drawn.png", "exists already; give another name, or --force"),
        BadPicture("folder.svg", "is a folder"),
        BadPicture("nowhere/out.png", "cannot be written: there is no folder nowhere"),
        Refused{{"declip", "good.wav", "old.wav"}, 1, "old.wav exists already"},
        Refused{{"pitch", "good.wav", "folder", "--tones", "1", "--force"}, 1, "is a folder"},
        Refused{
            {"pitch", "good.wav", "--out-dir", "old.wav", "--tones", "1"}, 1, "not a directory"}));

using RefusalInJson = Refusal;

TEST_F(RefusalInJson, AFailedFileHasAnErrorFieldAndNothingElseIsPrinted)
{
    const CommandResult result = Run({"pitch", "short.wav", "out.wav", "--tones", "1", "--json"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, "");
    const auto json = nlohmann::json::parse(result.out).at("results").at(0);
    EXPECT_EQ(json.at("ok"), false);
    EXPECT_NE(json.at("error").get<std::string>().find("too short"), std::string::npos);
    EXPECT_FALSE(json.contains("samples"));
}

TEST_F(RefusalInJson, BytesThatAreNoTextAreReplaced)
{
    const CommandResult result = Run({"pitch", "\xff.wav", "out\n.wav", "--json", "--tones", "1"});
    EXPECT_EQ(result.status, 1);
    const auto json = nlohmann::json::parse(result.out).at("results").at(0);
    EXPECT_EQ(json.at("file"), "\xEF\xBF\xBD.wav");
    EXPECT_EQ(json.at("output"), "out\n.wav");
}

} // namespace
} // namespace lumora::test
