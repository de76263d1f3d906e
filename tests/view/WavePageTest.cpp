#include "view/WavePage.h"

#include "audio/WaveSource.h"
#include "support/MessageRecorder.h"
#include "support/Raised.h"
#include "support/TempFolder.h"
#include "support/WaveBuilder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <vector>

namespace lumora {
namespace {

using namespace test;
using Curve = std::vector<WavePoint>;
using Numbers = std::vector<std::int16_t>;

WaveInfo Header(std::int16_t channels, std::int16_t bits, std::int32_t samples)
{
    WaveInfo info;
    info.nChannels = channels;
    info.nBitsPerSample = bits;
    info.TotalSamples = samples;
    return info;
}

/// Heights of which a value of 1 is 100 units, for one channel and for two.
constexpr double kOne = 200.0;
constexpr double kTwo = 420.0;

class WavePageTest : public testing::Test {
protected:
    WaveSource Source(const FormatSpec& spec, const std::string& data,
                      std::optional<std::int64_t> stated = {})
    {
        return WaveSource(folder.Write("f.wav", PlainWave(spec, data, stated)));
    }

    TempFolder folder;
    MessageRecorder messages;
};

TEST_F(WavePageTest, DrawsSixteenBitsOfOneChannelAroundTheMiddle)
{
    // 9 samples on a width of 2: a density of 4, so every second sample is a point, at 2 k / 8,
    // half to even. 32767 is 0.003 units below the top.
    WaveSource source = Source({}, Shorts({0, 1, 16384, 2, -16384, 3, 32767, 4, -32768}));
    WavePage page(source.Info(), 1.0, {2.0, kOne});
    EXPECT_EQ(page.WindowSamples(), 9);
    EXPECT_EQ(page.SampleStep(), 2);
    EXPECT_EQ(page.PointCount(), 5);
    ASSERT_TRUE(page.ReadWindow(source, 1));
    EXPECT_EQ(page.ReadSamples(), 9);
    EXPECT_EQ(page.LeftPoints(), (Curve{{0, 100}, {0, 50}, {1, 150}, {2, 0}, {2, 200}}));
    EXPECT_TRUE(page.RightPoints().empty());
    EXPECT_FALSE(page.HasTwoTracks());
}

TEST_F(WavePageTest, EndsItsCurveWithTheLastSampleWhereTheStepDoesNotMeetIt)
{
    // 10 samples, points at 0, 2, 4, 6 and, instead of 8, at 9; x is 2 k / 9.
    WaveSource source = Source({}, Shorts({0, 1, 8192, 1, 16384, 1, 24576, 1, -8192, -16384}));
    WavePage page(source.Info(), 1.0, {2.0, kOne});
    ASSERT_TRUE(page.ReadWindow(source, 1));
    EXPECT_EQ(page.LeftPoints(), (Curve{{0, 100}, {0, 75}, {1, 50}, {1, 25}, {2, 150}}));
}

TEST_F(WavePageTest, DrawsSixteenBitsOfTwoChannelsInTwoBands)
{
    // A value of 1 is 420 / 4.2 units: the bands are around 100 and 320. Three samples are fewer
    // than two for each unit of width, so each is a point.
    WaveSource source = Source({.channels = 2}, Shorts({0, 0, 16384, -16384, -32768, 8192}));
    WavePage page(source.Info(), 1.0, {40.0, kTwo});
    EXPECT_EQ(page.BottomValue, -3.2);
    ASSERT_TRUE(page.ReadWindow(source, 1));
    EXPECT_EQ(page.SampleStep(), 1);
    EXPECT_EQ(page.LeftPoints(), (Curve{{0, 100}, {20, 50}, {40, 200}}));
    EXPECT_EQ(page.RightPoints(), (Curve{{0, 320}, {20, 370}, {40, 295}}));
    EXPECT_EQ(page.SeparatorLine(), (std::array{WavePoint{0, 210}, WavePoint{40, 210}}));
}

TEST_F(WavePageTest, DrawsEightBitsOfOneChannelAroundTheirCentreOf128)
{
    // 255 is 127 / 128 of 100 units above the middle: 0.78.
    WaveSource source = Source({.bits = 8}, Raw({128, 0, 64, 192, 255}));
    WavePage page(source.Info(), 1.0, {8.0, kOne});
    ASSERT_TRUE(page.ReadWindow(source, 1));
    EXPECT_EQ(page.LeftPoints(), (Curve{{0, 100}, {2, 200}, {4, 150}, {6, 50}, {8, 1}}));
}

TEST_F(WavePageTest, DrawsTheRightBandOfEightBitsHalfTheHeightBelowTheLeft)
{
    // (3 x 1.0 + 3.2) / 2 = 3.1, where 16 bits have it at 3.2.
    WaveSource source = Source({.channels = 2, .bits = 8}, Raw({128, 128, 64, 192, 0, 0}));
    WavePage page(source.Info(), 1.0, {40.0, kTwo});
    ASSERT_TRUE(page.ReadWindow(source, 1));
    EXPECT_EQ(page.LeftPoints(), (Curve{{0, 100}, {20, 150}, {40, 200}}));
    EXPECT_EQ(page.RightPoints(), (Curve{{0, 310}, {20, 260}, {40, 410}}));
}

TEST_F(WavePageTest, ShowsALastWindowInItsShareOfTheWidthAndIsFullAgainAfterIt)
{
    // 25 samples in windows of 10; the third has 5, at 9 k / 9 on a width of 9. A density of 18
    // makes each sample a point.
    std::string words, bytes;
    for (int k = 0; k < 25; ++k) {
        words += Le16(k * 1024 - 12 * 1024);
        bytes += static_cast<char>(128 + (k - 12) * 4);
    }
    for (const int bits : {16, 8}) {
        WaveSource source = Source({.bits = bits}, bits == 16 ? words : bytes);
        WavePage page(source.Info(), 0.4, {9.0, 64.0});
        EXPECT_EQ(page.WindowSamples(), 10);
        for (int again = 0; again < 2; ++again) {
            // A value of 1 is 32 units, a step of the sound 1 unit upward from 44.
            ASSERT_TRUE(page.ReadWindow(source, 1));
            EXPECT_EQ(page.LeftPoints(), (Curve{{0, 44},
                                                {1, 43},
                                                {2, 42},
                                                {3, 41},
                                                {4, 40},
                                                {5, 39},
                                                {6, 38},
                                                {7, 37},
                                                {8, 36},
                                                {9, 35}}));
            ASSERT_TRUE(page.ReadWindow(source, 21));
            EXPECT_EQ(page.ReadSamples(), 5);
            EXPECT_EQ(page.LeftPoints(), (Curve{{0, 24}, {1, 23}, {2, 22}, {3, 21}, {4, 20}}));
        }
        EXPECT_EQ(page.WindowSamples(), 10);
    }
}

TEST_F(WavePageTest, KeepsTheStepOfAFullWindowInAShorterOne)
{
    // Windows of 10 on a width of 2: a step of 2. Five samples left: points 0, 2, 4 at 2 k / 9.
    // Four left: 0 and, for 2, the last one, 3. Two left: one point, which is no curve.
    WaveSource source =
        Source({}, std::string(2 * 21, '\0') + Shorts({-32768, 16384, 8192, -16384}));
    WavePage page(source.Info(), 0.4, {2.0, kOne});
    ASSERT_TRUE(page.ReadWindow(source, 21));
    EXPECT_EQ(page.SampleStep(), 2);
    EXPECT_EQ(page.LeftPoints(), (Curve{{0, 100}, {0, 50}, {1, 150}}));
    ASSERT_TRUE(page.ReadWindow(source, 22));
    EXPECT_EQ(page.LeftPoints(), (Curve{{0, 200}, {1, 150}}));
    EXPECT_FALSE(page.ReadWindow(source, 24));
    EXPECT_EQ(page.ReadSamples(), 2);
    EXPECT_EQ(page.PointCount(), 1);
    EXPECT_TRUE(page.LeftPoints().empty());
}

TEST_F(WavePageTest, HasNoCurveBehindTheSound)
{
    WaveSource source = Source({}, Shorts({1, 2, 3}));
    WavePage page(source.Info(), 1.0, {10.0, kOne});
    ASSERT_TRUE(page.ReadWindow(source, 1));
    for (const std::int32_t first : {3, 4, 5, 1000000}) {
        EXPECT_FALSE(page.ReadWindow(source, first)) << first;
        EXPECT_FALSE(page.HasCurve());
        EXPECT_TRUE(page.LeftPoints().empty());
    }
    EXPECT_EQ(page.ReadSamples(), 0);
    EXPECT_EQ(Raised([&] { page.ReadWindow(source, 0); }), kSubscript);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(WavePageTest, ShowsAFileShorterThanTheWindowFromTheLeftEdge)
{
    WaveSource source = Source({}, Shorts({0, 16384, -16384}));
    WavePage page(source.Info(), 3.0, {16.0, kOne});
    EXPECT_EQ(page.WindowSamples(), 9);
    EXPECT_EQ(page.ReadSamples(), 3);
    ASSERT_TRUE(page.ReadWindow(source, 1));
    EXPECT_EQ(page.LeftPoints(), (Curve{{0, 100}, {2, 50}, {4, 150}}));
}

TEST_F(WavePageTest, EndsWhereTheFileEndsEvenIfItsHeaderPromisesMore)
{
    WaveSource source = Source({}, Shorts({0, 16384, -16384}) + Raw({7}), 18);
    WavePage page(source.Info(), 1.0, {16.0, kOne});
    ASSERT_TRUE(page.ReadWindow(source, 1));
    EXPECT_EQ(page.WindowSamples(), 9);
    EXPECT_EQ(page.LeftPoints(), (Curve{{0, 100}, {2, 50}, {4, 150}}));
}

TEST_F(WavePageTest, TakesNothingBehindTheDataForSound)
{
    WaveSource source(folder.Write(
        "f.wav", Wave(FormatChunk() + Chunk("data", Shorts({0, 16384})) + Chunk("LIST", "abcd"))));
    WavePage page(source.Info(), 2.0, {3.0, kOne});
    ASSERT_TRUE(page.ReadWindow(source, 1));
    EXPECT_EQ(page.LeftPoints(), (Curve{{0, 100}, {1, 50}}));
}

TEST_F(WavePageTest, ShowsTheFirstTwoOfMoreChannels)
{
    WaveSource source =
        Source({.channels = 3}, Shorts({16384, -16384, 1, 0, 0, 2, -32768, 8192, 3}));
    WavePage page(source.Info(), 1.0, {40.0, kTwo});
    ASSERT_TRUE(page.ReadWindow(source, 1));
    EXPECT_EQ(page.LeftPoints(), (Curve{{0, 50}, {20, 100}, {40, 200}}));
    EXPECT_EQ(page.RightPoints(), (Curve{{0, 370}, {20, 320}, {40, 295}}));
}

TEST_F(WavePageTest, HasNoCurveOfOtherWidthsAndOfNoSound)
{
    const std::vector<std::pair<FormatSpec, std::string>> silent = {
        {{.bits = 24}, std::string(240, 'a')}, {{}, ""}};
    for (const auto& [spec, data] : silent) {
        WaveSource source = Source(spec, data);
        WavePage page(source.Info(), 1.0, {10.0, kOne});
        EXPECT_FALSE(page.ReadWindow(source, 1)) << spec.bits;
    }
}

TEST_F(WavePageTest, RefusesAFileOfAnotherFormatThanItsOwn)
{
    const WavePage page(Header(2, 8, 2), 1.0, {10.0, kTwo});
    for (const FormatSpec& spec :
         {FormatSpec{.channels = 1, .bits = 8}, FormatSpec{.channels = 2, .bits = 16}}) {
        WaveSource source = Source(spec, Raw({1, 2, 3, 4, 5, 6, 7, 8}));
        EXPECT_EQ(Raised([&] { WavePage(page).ReadWindow(source, 1); }), 5);
    }
    WaveSource source = Source({.channels = 2, .bits = 8}, Raw({1, 2, 3, 4}));
    EXPECT_EQ(Raised([&] { WavePage(page).ReadWindow(source, 1); }), 0);
}

TEST_F(WavePageTest, ReadsALongWindowPieceByPieceToTheSamePoints)
{
    // Steps of one sample, of some, and beyond what is read at once.
    constexpr std::int32_t kFrames = 70001;
    std::string data;
    Numbers all;
    for (std::int32_t k = 0; k < 2 * kFrames; ++k) {
        all.push_back(static_cast<std::int16_t>(k * 7919 % 65536 - 32768));
        data += Le16(all.back());
    }
    WaveSource source = Source({.channels = 2}, data);
    for (const double width : {40000.0, 5000.0, 333.0, 3.0, 0.7}) {
        WavePage pieces(source.Info(), 1.0, {width, 1000.0});
        ASSERT_TRUE(pieces.ReadWindow(source, 1));
        WavePage at_once(source.Info(), 1.0, {width, 1000.0});
        at_once.PlotWave(all);
        EXPECT_EQ(pieces.LeftPoints(), at_once.LeftPoints()) << width;
        EXPECT_EQ(pieces.RightPoints(), at_once.RightPoints()) << width;

        // From within the file, the same of what is left.
        ASSERT_TRUE(pieces.ReadWindow(source, 10002));
        at_once.PrepareTwoArrAndReturnNewSizeTail(kFrames - 10001);
        at_once.PlotWave(std::span(all).subspan(2 * 10001));
        EXPECT_EQ(pieces.LeftPoints(), at_once.LeftPoints()) << width;
    }
}

TEST_F(WavePageTest, ShowsAnHourInTheMemoryOfItsPoints)
{
    // 635 MB of silence, which take no room on the disk, and a last frame that is heard.
    constexpr std::int32_t kFrames = 44100 * 3600;
    const std::string name = folder.Write(
        "f.wav", PlainWave({.channels = 2, .rate_hz = 44100}, "", std::int64_t{4} * kFrames));
    std::filesystem::resize_file(name, 44 + std::uintmax_t{4} * (kFrames - 1));
    std::ofstream(name, std::ios::binary | std::ios::app) << Shorts({16384, -16384});

    const auto peak_kilobytes = [] {
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        return usage.ru_maxrss;
    };
    const long before = peak_kilobytes();
    WaveSource source(name);
    WavePage page(source.Info(), 1.0, {1000.0, kTwo});
    ASSERT_TRUE(page.ReadWindow(source, 1));
    EXPECT_LT(peak_kilobytes() - before, 8 * 1024);
    EXPECT_EQ(page.SampleStep(), 79380);                  // 158,760,000 / 2000
    EXPECT_EQ(page.PointCount(), 2000);                   // 158,759,999 \ 79,380 + 1
    EXPECT_EQ(page.LeftPoints()[1], (WavePoint{1, 100})); // at 0.500000003
    EXPECT_EQ(page.LeftPoints().back(), (WavePoint{1000, 50}));
    EXPECT_EQ(page.RightPoints().back(), (WavePoint{1000, 370}));
}

TEST(WavePage, PicksItsPointsByWidthAndDensity)
{
    const struct {
        double width;
        std::int16_t density;
        std::int32_t step, points;
    } table[] = {
        {10.0, 1, 50, 20},    // 1000 / 20
        {10.0, 2, 50, 20},    //
        {10.0, 3, 15, 67},    // 1000 / 62.8 = 15.9; 999 \ 15 + 1
        {1.0, 3, 159, 7},     // 1000 / 6.28 = 159.2
        {7.5, 2, 66, 16},     // 1000 / 15 = 66.7; 999 \ 66 + 1
        {500.0, 2, 1, 1000},  // exactly one
        {5000.0, 2, 1, 1000}, // at least one
        {0.25, 2, 2000, 1},   // less than two points
    };
    for (const auto& row : table) {
        WavePage page(Header(1, 16, 4000), 0.25, {row.width, 100.0});
        page.PointDensity = row.density;
        EXPECT_EQ(page.PrepareTwoArrAndReturnNewSize(), row.points) << row.width;
        EXPECT_EQ(page.SampleStep(), row.step) << row.width;
        EXPECT_EQ(page.PointCount(), row.points) << row.width;
        EXPECT_EQ(page.LeftPoints().size(), row.points < 2 ? 0U : std::size_t(row.points));
    }
}

TEST(WavePage, SizesATailAlikeForBothWidths)
{
    WavePage page(Header(2, 16, 4000), 0.25, {10.0, 100.0});
    EXPECT_EQ(page.PrepareTwoArrAndReturnNewSizeTail(101), 3); // 100 \ 50 + 1
    EXPECT_EQ(page.ReadSamples(), 101);
    EXPECT_EQ(page.RightPoints().size(), 3U);
    EXPECT_EQ(page.PrepareTwoByteArrAndReturnNewSize(100), 2); // 99 \ 50 + 1
    EXPECT_EQ(page.ReadSamples(), 100);
    EXPECT_EQ(page.WindowSamples(), 1000);
    EXPECT_EQ(page.PrepareTwoArrAndReturnNewSize(), 20);
    EXPECT_EQ(page.ReadSamples(), 1000);
}

TEST(WavePage, TakesTheFloorOfTheIntervalForItsWindow)
{
    EXPECT_EQ(WavePage(Header(1, 16, 9), 0.5, {9.0, 9.0}).WindowSamples(), 4);
    EXPECT_EQ(WavePage(Header(1, 16, 9), 0.99, {9.0, 9.0}).WindowSamples(), 8);
    EXPECT_EQ(WavePage(Header(1, 16, 9), 0.1, {9.0, 9.0}).PointCount(), 0);
    EXPECT_EQ(Raised([] { WavePage(Header(1, 16, 2000000000), 2.0, {9.0, 9.0}); }), kOverflow);
}

TEST(WavePage, HasNoRuleForOtherSelectorsAndForNoWidth)
{
    WavePage page(Header(1, 16, 9), 1.0, {9.0, 9.0});
    const auto raised = [&] { return Raised([&] { page.PrepareTwoArrAndReturnNewSize(); }); };
    EXPECT_EQ(raised(), 0);
    page.DisplayKind = 2;
    EXPECT_EQ(raised(), kDivision);
    page.DisplayKind = 1;
    for (const std::int16_t density : {std::int16_t{0}, std::int16_t{4}}) {
        page.PointDensity = density;
        EXPECT_EQ(raised(), kDivision);
    }
    page.PointDensity = 1;
    page.Surface.ScaleWidth = 0.0;
    EXPECT_EQ(raised(), kDivision);
}

TEST(WavePage, TakesAsManySamplesAsItsWindowHas)
{
    WavePage page(Header(2, 16, 3), 1.0, {9.0, 9.0});
    EXPECT_EQ(Raised([&] { page.PlotWave(Numbers(5)); }), kSubscript);
    EXPECT_EQ(Raised([&] { page.PlotWave(Numbers(7)); }), kSubscript);
    EXPECT_EQ(Raised([&] { page.PlotWave(Numbers(6)); }), 0);
    page.Surface.ScaleHeight = 1e11;
    EXPECT_EQ(Raised([&] { page.PlotWave(Numbers(6)); }), kOverflow);
}

} // namespace
} // namespace lumora
