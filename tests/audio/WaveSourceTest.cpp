#include "audio/WaveSource.h"

#include "support/Limits.h"
#include "support/MessageRecorder.h"
#include "support/Raised.h"
#include "support/TempFolder.h"
#include "support/WaveBuilder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace lumora {
namespace {

using namespace test;

class WaveSourceTest : public testing::Test {
protected:
    void TearDown() override { EXPECT_EQ(OpenFileCount(), open_before); }

    std::string Write(const FormatSpec& spec, const std::string& data,
                      std::optional<std::int64_t> stated = {})
    {
        return folder.Write("f.wav", PlainWave(spec, data, stated));
    }

    /// `count` values from frame `first` on.
    template <class T>
    static std::vector<T> Read(WaveSource& source, std::int64_t first, std::size_t count)
    {
        std::vector<T> values(count, T{77});
        source.Read(first, std::span(values));
        return values;
    }

    TempFolder folder;
    MessageRecorder messages;
    const std::ptrdiff_t open_before = OpenFileCount();
};

using Shorts16 = std::vector<std::int16_t>;
using Bytes8 = std::vector<std::uint8_t>;
using Doubles = std::vector<double>;

TEST_F(WaveSourceTest, ReadsFramesByRangeInAnyOrderAndOfAnyCountOfChannels)
{
    WaveSource source(Write({.channels = 3}, Shorts({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12})));
    ASSERT_TRUE(source.HasFrames());
    EXPECT_EQ(source.AllFrames().first, 1);
    EXPECT_EQ(source.AllFrames().count, 4);
    EXPECT_EQ(Read<std::int16_t>(source, 3, 6), (Shorts16{7, 8, 9, 10, 11, 12}));
    EXPECT_EQ(Read<std::int16_t>(source, 1, 3), (Shorts16{1, 2, 3}));
    EXPECT_EQ(Read<std::int16_t>(source, 2, 3), (Shorts16{4, 5, 6}));
    EXPECT_EQ(Read<std::int16_t>(source, 4, 0), Shorts16{});
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(WaveSourceTest, ReadsSixteenBitsAsNumbersAndAsSamples)
{
    WaveSource source(Write({}, Shorts({-32768, -1, 0, 16384, 32767})));
    EXPECT_EQ(Read<std::int16_t>(source, 1, 5), (Shorts16{-32768, -1, 0, 16384, 32767}));
    EXPECT_EQ(Read<double>(source, 1, 5),
              (Doubles{-1.0, -1.0 / 32768.0, 0.0, 0.5, 32767.0 / 32768.0}));
    Bytes8 bytes(2);
    EXPECT_EQ(Raised([&] { source.Read(1, std::span(bytes)); }), 13);
}

TEST_F(WaveSourceTest, ReadsEightBitsAsBytesAsNumbersAndAsSamples)
{
    WaveSource source(Write({.channels = 2, .bits = 8}, Raw({0, 255, 127, 129, 128, 192})));
    EXPECT_EQ(Read<std::uint8_t>(source, 2, 4), (Bytes8{127, 129, 128, 192}));
    EXPECT_EQ(Read<std::int16_t>(source, 1, 6), (Shorts16{-32768, 32512, -256, 256, 0, 16384}));
    EXPECT_EQ(Read<double>(source, 1, 6),
              (Doubles{-1.0, 127.0 / 128.0, -1.0 / 128.0, 1.0 / 128.0, 0.0, 0.5}));
}

TEST_F(WaveSourceTest, ReadsManyValuesAsItReadsFew)
{
    // More than one piece of conversion, and not a whole number of them.
    constexpr std::int64_t kCount = 20001;
    std::string words;
    std::string bytes;
    for (std::int64_t k = 0; k < kCount; ++k) {
        words += Le16(k * 7919 % 65536 - 32768);
        bytes += LittleEndian(static_cast<std::uint64_t>(k * 101), 1);
    }
    for (const bool wide : {true, false}) {
        WaveSource source(Write({.bits = wide ? 16 : 8}, wide ? words : bytes));
        const Shorts16 numbers = Read<std::int16_t>(source, 1, kCount);
        const Doubles samples = Read<double>(source, 1, kCount);
        for (std::int64_t k = 0; k < kCount; ++k) {
            const std::int64_t number =
                wide ? k * 7919 % 65536 - 32768 : (k * 101 % 256 - 128) * 256;
            ASSERT_EQ(numbers[static_cast<std::size_t>(k)], number) << k;
            ASSERT_EQ(samples[static_cast<std::size_t>(k)], static_cast<double>(number) / 32768.0)
                << k;
        }
    }
}

TEST_F(WaveSourceTest, ReadsBytesThatThePromiseHasAndTheFileHasNotAsZero)
{
    WaveSource wide(Write({.channels = 2}, Shorts({1, 2, 3}) + Raw({0x34}), 16));
    EXPECT_EQ(Read<std::int16_t>(wide, 1, 8), (Shorts16{1, 2, 3, 0x34, 0, 0, 0, 0}));
    EXPECT_EQ(Read<std::int16_t>(wide, 4, 2), (Shorts16{0, 0}));
    EXPECT_EQ(Read<std::int16_t>(wide, 1, 4), (Shorts16{1, 2, 3, 0x34})) << "and back again";
    WaveSource narrow(Write({.bits = 8}, Raw({9, 128}), 4));
    EXPECT_EQ(Read<std::uint8_t>(narrow, 1, 4), (Bytes8{9, 128, 0, 0}));
    EXPECT_EQ(Read<double>(narrow, 2, 3), (Doubles{0.0, -1.0, -1.0}));
}

TEST_F(WaveSourceTest, DoesNotTakeWhatStandsBehindTheDataForSound)
{
    const std::string chunks = FormatChunk() + Chunk("data", Shorts({1, 2, 3, 4}), 4);
    WaveSource source(folder.Write("f.wav", Wave(chunks)));
    EXPECT_EQ(Read<std::int16_t>(source, 1, 2), (Shorts16{1, 2}));
    const struct {
        std::int64_t first;
        std::size_t count;
    } outside[] = {{1, 3},
                   {2, 2},
                   {3, 1},
                   {3, 0},
                   {0, 1},
                   {-1, 1},
                   {std::numeric_limits<std::int64_t>::max(), 1},
                   {std::numeric_limits<std::int64_t>::min(), 1}};
    for (const auto& range : outside)
        EXPECT_EQ(Raised([&] { Read<std::int16_t>(source, range.first, range.count); }), kSubscript)
            << range.first << ' ' << range.count;
}

TEST_F(WaveSourceTest, TellsOnceWhyThereIsNothingToRead)
{
    const struct {
        std::string name;
        ShownMessage message;
    } table[] = {
        {folder / "missing.wav",
         FileError("Error using open_wav.",
                   " Cannot open specifid WAV file for input, because file not exist.")},
        {folder.Write("cut.wav", "RIFF"),
         FileError("Error using read_ckinfo",
                   "Truncated chunk data found- possibly not a WAV file")},
        {folder.Write("early.wav", Wave(Chunk("data", Shorts({1})) + FormatChunk())),
         FileError("Error using wavread",
                   "Corrupt WAV file : found data before format information.")},
    };
    for (const auto& row : table) {
        WaveSource source(row.name);
        EXPECT_EQ(messages.Take(), Shown{row.message});
        EXPECT_TRUE(source.Failed());
        EXPECT_FALSE(source.HasFrames());
        EXPECT_FALSE(source.HasShrunk());
        EXPECT_EQ(Raised([&] { source.CheckHeld({1, 1}); }), kSubscript);
        EXPECT_EQ(Raised([&] { Read<double>(source, 1, 1); }), kSubscript);
        EXPECT_TRUE(messages.shown.empty());
    }
}

TEST_F(WaveSourceTest, HasNoFramesOfOtherWidthsAndOfNoLength)
{
    const auto expect_none = [&](const FormatSpec& spec, const std::string& data) {
        WaveSource source(Write(spec, data));
        EXPECT_FALSE(source.Failed());
        EXPECT_FALSE(source.HasFrames());
        EXPECT_EQ(Raised([&] { source.CheckHeld({1, 1}); }), kSubscript);
        EXPECT_EQ(Raised([&] { Read<double>(source, 1, 1); }), kSubscript);
    };
    for (const int bits : {0, 4, 12, 24, 32})
        expect_none({.bits = bits}, std::string(240, 'a'));
    expect_none({}, "");
    expect_none({.channels = -1}, std::string(240, 'a'));
}

TEST_F(WaveSourceTest, RefusesAPromiseFarBeyondTheFile)
{
    // A chunk of two channels: at 22,050 Hz 2 x 145 x 221 values, a block rounded up.
    constexpr std::int64_t kMost = 2 * 145 * 221;
    for (const int bits : {8, 16})
        for (const int channels : {1, 2, 5}) {
            const std::int64_t frame = channels * bits / 8;
            const std::string data(static_cast<std::size_t>(100 * frame), 'a');
            const std::int64_t frames = 100 + kMost / channels;
            const WaveSource just({Write({channels, bits}, data, frames * frame)});
            EXPECT_EQ(Raised([&] { just.CheckHeld(just.AllFrames()); }), 0);
            const WaveSource more({Write({channels, bits}, data, (frames + 1) * frame)});
            EXPECT_EQ(Raised([&] { more.CheckHeld(more.AllFrames()); }), 7);
            EXPECT_EQ(Raised([&] { more.CheckHeld({2, frames - 1}); }), 0) << "a part of it";
            EXPECT_EQ(Raised([&] { more.CheckHeld({101, frames - 100}); }), 0) << "none is there";
        }
}

TEST_F(WaveSourceTest, CountsTheFramesThatAreWholeInTheFile)
{
    const struct {
        FormatSpec spec;
        std::string data;
        std::optional<std::int64_t> stated;
        std::int64_t frames;
    } table[] = {
        {{}, Shorts({1, 2, 3}), {}, 3},
        {{}, Shorts({1, 2, 3}) + Raw({9}), 100, 3},
        {{}, Shorts({1, 2, 3}), 4, 2}, // more than the header has
        {{.channels = 2}, Shorts({1, 2, 3}), 100, 1},
        {{.channels = 2, .bits = 8}, Raw({1, 2, 3, 4, 5}), 100, 2},
        {{}, "", 100, 0},
        {{.bits = 24}, std::string(240, 'a'), {}, 0},
    };
    for (const auto& row : table)
        EXPECT_EQ(WaveSource(Write(row.spec, row.data, row.stated)).FramesHeld(), row.frames);
    EXPECT_EQ(WaveSource(folder / "missing.wav").FramesHeld(), 0);
    EXPECT_EQ(messages.Take().size(), 1U);
}

TEST_F(WaveSourceTest, ReadsAFileThatIsRemovedOrReplacedOnAsItWas)
{
    const std::string name = Write({}, Shorts({1, 2, 3}));
    WaveSource source(name);
    std::filesystem::remove(name);
    EXPECT_EQ(Read<std::int16_t>(source, 2, 2), (Shorts16{2, 3}));
    Write({}, Shorts({7}));
    EXPECT_EQ(Read<std::int16_t>(source, 1, 3), (Shorts16{1, 2, 3}));
    EXPECT_FALSE(source.HasShrunk());
}

TEST_F(WaveSourceTest, TellsThatItsFileHasShrunkAndReadsZerosThere)
{
    const std::string name = Write({}, std::string(40000, 'a'));
    WaveSource source(name);
    EXPECT_FALSE(source.HasShrunk());
    std::filesystem::resize_file(name, 50000);
    EXPECT_FALSE(source.HasShrunk());
    std::filesystem::resize_file(name, 44 + 30000);
    EXPECT_TRUE(source.HasShrunk());
    EXPECT_EQ(Read<std::int16_t>(source, 15000, 2), (Shorts16{0x6161, 0}));
    EXPECT_EQ(Read<std::int16_t>(source, 15000, 1), (Shorts16{0x6161})) << "asking moves nothing";
    std::filesystem::resize_file(name, 44 + 40000);
    EXPECT_FALSE(source.HasShrunk()) << "as long as it was";
}

TEST_F(WaveSourceTest, IsOneOpenFileToTheEndOfItsLife)
{
    const std::string name = Write({}, Shorts({1, 2, 3}));
    {
        WaveSource source(name);
        for (int k = 0; k < 3; ++k)
            Read<double>(source, 1, 3);
        EXPECT_EQ(OpenFileCount(), open_before + 1);
    }
    EXPECT_EQ(OpenFileCount(), open_before);
}

TEST_F(WaveSourceTest, IsRefusedAsATargetByWhateverName)
{
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    folder.Write("song.wav", "sound");
    folder.Write("song", "no sound");
    folder.Write("copy.wav", "sound");
    std::filesystem::create_symlink("song.wav", "symbolic");
    std::filesystem::create_hard_link("song.wav", "hard");
    const auto raised = [](const char* source, const char* target) {
        return Raised([&] { RefuseSourceAsTarget(source, target); });
    };
    for (const char* source : {"song.wav", "song", "./symbolic", "./hard"}) {
        for (const char* target : {"song.wav", "./song.wav", "symbolic", "hard"})
            EXPECT_EQ(raised(source, target), 75) << source << ' ' << target;
        for (const char* target : {"song", "copy.wav", "missing.wav", "", "no/such/folder"})
            EXPECT_EQ(raised(source, target), 0) << source << ' ' << target;
    }
    EXPECT_EQ(raised("./song", "song"), 75);
    EXPECT_EQ(raised("missing.wav", "missing.wav"), 0);
    std::filesystem::current_path(before);
}

} // namespace
} // namespace lumora
