#include "cli/CommandRun.h"
#include "cli/Sounds.h"
#include "support/SameBytes.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <sys/resource.h>

namespace lumora::test {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

/// The tune with `peaks` short peaks over 0.8 of full scale, a tenth of a second from each other.
std::string PeakyWave(int peaks, int channels = 1)
{
    std::vector<std::int16_t> samples = Tune(44100, channels);
    for (int p = 1; p <= peaks; ++p)
        for (int k = 0; k < 7; ++k)
            samples[static_cast<std::size_t>(4410 * p * channels + k)] = 29000;
    return PlainWave({.channels = channels}, BytesOfSamples(samples));
}

std::uint32_t BigEndian(const std::string& bytes, std::size_t place)
{
    std::uint32_t value = 0;
    for (std::size_t k = 0; k < 4; ++k)
        value = value << 8 | static_cast<unsigned char>(bytes[place + k]);
    return value;
}

class DeclipPicture : public testing::Test {
protected:
    CommandResult Draw(const std::string& picture, const Names& more = {}) const
    {
        Names words = {"declip", "in.wav", "out.wav", "--plot", picture};
        words.insert(words.end(), more.begin(), more.end());
        return Lumora(words, {folder_.Path().string()});
    }

    /// Frames of panels in a picture, as a reader of XML sees them: closed boxes of a dark line.
    std::string PanelsIn(const std::string& svg) const
    {
        const std::string script =
            "import sys, xml.etree.ElementTree as tree\n"
            "paths = tree.parse(sys.argv[1]).iter('{http://www.w3.org/2000/svg}path')\n"
            "dark = [p for p in paths if 'stroke:rgb(20%,20%,20%)' in p.get('style', '')]\n"
            "print(sum(p.get('d').count('L') == 4 for p in dark))";
        const CommandResult read = RunningCommand({"python3", "-c", script, svg}).Wait();
        EXPECT_EQ(read.status, 0) << read.err;
        return read.out;
    }

    /// How many curves (lines of more points than a mark has) there are of each colour: the left or
    /// only channel before and after, then the right one. A curve after that lies wholly on the one
    /// before is no curve of its own.
    std::string CurvesIn(const std::string& svg) const
    {
        const std::string script =
            "import sys, xml.etree.ElementTree as tree\n"
            "paths = list(tree.parse(sys.argv[1]).iter('{http://www.w3.org/2000/svg}path'))\n"
            "curves = lambda colour: [p.get('d') for p in paths if p.get('d').count('L') > 20\n"
            "    and 'stroke:rgb(%s)' % colour in p.get('style', '')]\n"
            "sides = [('60%,80%,96%', '0%,36%,64%'), ('99%,76%,55%', '78%,29%,0%')]\n"
            "for before, after in sides:\n"
            "    first, then = curves(before), curves(after)\n"
            "    print(len(first), sum(a != b for a, b in zip(first, then)), end=' ')";
        const CommandResult read = RunningCommand({"python3", "-c", script, svg}).Wait();
        EXPECT_EQ(read.status, 0) << read.err;
        return read.out;
    }

    TempFolder folder_;
};

TEST_F(DeclipPicture, OfPngHasRowsForItsPanels)
{
    for (const auto& [peaks, height] : {std::pair{1, 434U}, {2, 434U}, {3, 764U}, {8, 764U}}) {
        folder_.Write("in.wav", PeakyWave(peaks));
        const CommandResult result = Draw("out.PNG", {"--force"});
        ASSERT_EQ(result.status, 0) << result.err;
        const std::string png = BytesOf(folder_ / "out.PNG");
        EXPECT_EQ(png.substr(0, 8), "\x89PNG\r\n\x1a\n");
        EXPECT_EQ(BigEndian(png, 16), 1200U);
        EXPECT_EQ(BigEndian(png, 20), height);
        EXPECT_EQ(png.substr(png.size() - 8, 4), "IEND");
    }
    EXPECT_EQ(NamesIn(folder_.Path()), (Names{"in.wav", "out.PNG", "out.wav"}));
}

TEST_F(DeclipPicture, OfSvgIsWellFormedAndHasAPanelForEachStretchUpToSix)
{
    for (const int channels : {1, 2}) {
        for (const auto& [peaks, panels] : {std::pair{1, "1\n"}, {4, "4\n"}, {8, "6\n"}}) {
            folder_.Write("in.wav", PeakyWave(peaks, channels));
            ASSERT_EQ(Draw("out.svg", {"--force"}).status, 0);
            EXPECT_EQ(PanelsIn(folder_ / "out.svg"), panels);
        }
    }
}

TEST_F(DeclipPicture, ShowsEachChannelBeforeAndAfterInEveryPanel)
{
    folder_.Write("in.wav", PeakyWave(4));
    ASSERT_EQ(Draw("out.svg").status, 0);
    EXPECT_EQ(CurvesIn(folder_ / "out.svg"), "4 4 0 0 ");
    folder_.Write("in.wav", PeakyWave(2, 2));
    ASSERT_EQ(Draw("out.svg", {"--force"}).status, 0);
    EXPECT_EQ(CurvesIn(folder_ / "out.svg"), "2 2 2 2 ");
}

TEST_F(DeclipPicture, ChangesNothingInTheResult)
{
    folder_.Write("in.wav", PeakyWave(8));
    ASSERT_EQ(Lumora({"declip", folder_ / "in.wav", folder_ / "plain.wav"}).status, 0);
    ASSERT_EQ(Draw("out.png").status, 0);
    EXPECT_TRUE(HoldsBytes(folder_ / "out.wav", BytesOf(folder_ / "plain.wav")));
}

TEST_F(DeclipPicture, IsNamedInTheJson)
{
    folder_.Write("in.wav", PeakyWave(2));
    const CommandResult result = Draw("out.svg", {"--json"});
    EXPECT_EQ(nlohmann::json::parse(result.out).at("results").at(0).at("picture"), "out.svg");
}

TEST_F(DeclipPicture, IsNotMadeWhereNothingWasRebuilt)
{
    folder_.Write("in.wav", TuneWave(30000));
    const CommandResult result = Draw("out.png");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "lumora: in.wav: no region was rebuilt, so there is no picture\n");
    EXPECT_EQ(NamesIn(folder_.Path()), (Names{"in.wav", "out.wav"}));
    const CommandResult in_json = Draw("out.png", {"--json", "--force"});
    EXPECT_TRUE(nlohmann::json::parse(in_json.out).at("results").at(0).at("picture").is_null());
}

TEST_F(DeclipPicture, OfAnEarlierRunDoesNotStayBesideAResultThatHasNone)
{
    folder_.Write("in.wav", TuneWave(30000));
    folder_.Write("out.png", "old");
    const std::string none = "lumora: in.wav: no region was rebuilt, so there is no picture\n";
    const CommandResult result = Draw("out.png", {"--force"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, none + "lumora: in.wav: the older picture out.png was removed\n");
    EXPECT_EQ(NamesIn(folder_.Path()), (Names{"in.wav", "out.wav"}));
    EXPECT_EQ(Draw("out.png", {"--force"}).err, none);
}

TEST_F(DeclipPicture, OfAnEarlierRunStaysWhereTheNewOneFailsOrMayNotReplaceIt)
{
    folder_.Write("in.wav", TuneWave(30000));
    folder_.Write("out.png", "old");
    EXPECT_EQ(Draw("out.png").status, 1);
    folder_.Write("in.wav", "no sound");
    EXPECT_EQ(Draw("out.png", {"--force"}).status, 1);
    EXPECT_TRUE(HoldsBytes(folder_ / "out.png", "old"));
    EXPECT_EQ(NamesIn(folder_.Path()), (Names{"in.wav", "out.png"}));
}

TEST_F(DeclipPicture, ReplacesAnotherOneOnlyWithForce)
{
    folder_.Write("in.wav", PeakyWave(2));
    folder_.Write("out.png", "old");
    const CommandResult refused = Draw("out.png");
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.err, "lumora: in.wav: out.png exists already; give another name, or --force "
                           "to replace it\n");
    EXPECT_EQ(NamesIn(folder_.Path()), (Names{"in.wav", "out.png"}));
    EXPECT_TRUE(HoldsBytes(folder_ / "out.png", "old"));
    EXPECT_EQ(Draw("out.png", {"--force"}).status, 0);
    EXPECT_EQ(BytesOf(folder_ / "out.png").substr(1, 3), "PNG");
}

TEST_F(DeclipPicture, TakesNamesThatAreNoText)
{
    for (const char* name : {"\xff\xfe.wav", "line\nbreak.wav", " .wav"}) {
        folder_.Write(name, PeakyWave(1));
        const CommandResult result = Lumora(
            {"declip", name, "out.wav", "--plot", "out.svg", "--force"}, {folder_.Path().string()});
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_EQ(PanelsIn(folder_ / "out.svg"), "1\n");
    }
}

TEST_F(DeclipPicture, ThatDoesNotFitIsAClearLineAndLeavesNothing)
{
    // The sound has 14 kB, its picture more than the limit.
    std::vector<std::int16_t> samples = Tune(7000);
    for (std::size_t k = 3500; k < 3507; ++k)
        samples[k] = 29000;
    folder_.Write("in.wav", PlainWave({}, BytesOfSamples(samples)));
    const auto limit = [] {
        const rlimit small = {15000, 15000};
        setrlimit(RLIMIT_FSIZE, &small);
    };
    const CommandResult result = Lumora({"declip", "in.wav", "out.wav", "--plot", "out.png"},
                                        {folder_.Path().string(), limit});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, "lumora: in.wav: the picture cannot be written (file too large)\n");
    EXPECT_EQ(NamesIn(folder_.Path()), Names{"in.wav"});
}

} // namespace
} // namespace lumora::test
