#include "overfilter/ModOverPolynom.h"

#include "overfilter/OverFiles.h"
#include "overfilter/OverFilterRun.h"
#include "support/Limits.h"
#include "support/MessageRecorder.h"
#include "support/Raised.h"
#include "support/TempFolder.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace lumora {
namespace {

using namespace test;

class RemoveOverFileTest : public testing::Test {
protected:
    void TearDown() override
    {
        EXPECT_EQ(messages.Take(), Shown{});
        EXPECT_EQ(OpenFileCount(), open_before);
    }

    static OverFilterRequest WithRamp()
    {
        OverFilterRequest request;
        request.Random = Ramp();
        return request;
    }

    std::string SoundFile(std::size_t frames, double drive = 2.0, int channels = 1)
    {
        return folder.Write("song.wav", FileOf(SourceOf(noise, channels, 16, 8000, frames, drive)));
    }

    /// The run ends in this error and leaves nothing but its source.
    void ExpectError(int number, const std::string& source)
    {
        EXPECT_EQ(Raised([&] { RemoveOverFile(source, quality); }), number);
        EXPECT_FALSE(std::filesystem::exists(result));
    }

    Noise noise{61};
    TempFolder folder;
    MessageRecorder messages;
    const std::string result = folder / "songtmp.wav";
    std::int16_t quality = -7;
    const std::ptrdiff_t open_before = OpenFileCount();
};

TEST_F(RemoveOverFileTest, WritesWhatThePlainFilterMakes)
{
    for (const int bits : {8, 16})
        for (const int channels : {1, 2})
            for (const std::size_t frames : {3U, 1001U, 8000U, 16000U, 20001U})
                for (const double drive : {0.7, 2.0}) {
                    SCOPED_TRACE(std::to_string(bits) + " bits, " + std::to_string(channels) +
                                 " channels, " + std::to_string(frames) + " frames");
                    const Source source = SourceOf(noise, channels, bits, 8000, frames, drive);
                    const std::string path = folder.Write("song.wav", FileOf(source));
                    const Expected expected = ExpectedOf(source);
                    EXPECT_EQ(RemoveOverFile(path, quality, WithRamp()), result);
                    EXPECT_EQ(quality, expected.quality_good);
                    EXPECT_TRUE(BytesOf(result) == expected.file);
                }
}

TEST_F(RemoveOverFileTest, OneStereoFrameIsWrittenWithRowsAndColumnsExchangedAndMonoStaysMono)
{
    const auto expect = [&](int channels, std::vector<int> numbers, int channels_then) {
        const std::string path = folder.Write("song.wav", FileOf({channels, 16, 8000, numbers}));
        RemoveOverFile(path, quality);
        numbers.assign(numbers.size(), 0); // all of it is still in the buffer
        EXPECT_EQ(BytesOf(result), FileOf({channels_then, 16, 8000, numbers}));
    };
    expect(1, {5}, 1);
    expect(1, {5, 6}, 1);
    expect(2, {5, 6}, 1);
    expect(2, {5, 6, 7, 8}, 2);
    expect(1, {5, 6, 7}, 1);
    expect(2, {5, 6, 7, 8, 9, 10}, 2);
}

TEST_F(RemoveOverFileTest, OfMoreThanTwoChannelsTheFirstTwoAreTaken)
{
    const Source stereo = SourceOf(noise, 2, 16, 8000, 9000, 2.0);
    Source four{4, 16, 8000, {}};
    for (std::size_t k = 0; k < stereo.numbers.size(); k += 2)
        four.numbers.insert(four.numbers.end(),
                            {stereo.numbers[k], stereo.numbers[k + 1], 30000, -30000});
    RemoveOverFile(folder.Write("song.wav", FileOf(four)), quality, WithRamp());
    EXPECT_TRUE(BytesOf(result) == ExpectedOf(stereo).file);
}

TEST_F(RemoveOverFileTest, TheTemporaryPathHasTheLastFourCharactersReplaced)
{
    const std::string bytes = FileOf(SourceOf(noise, 1, 16, 8000, 100, 0.5));
    EXPECT_EQ(RemoveOverFile(folder.Write("a.b.wav", bytes), quality), folder / "a.btmp.wav");
    EXPECT_EQ(RemoveOverFile(folder.Write("a.aiff", bytes), quality), folder / "a.tmp.wav");
    EXPECT_EQ(RemoveOverFile(folder.Write(".wav", bytes), quality), folder / "tmp.wav");
    ExpectError(static_cast<int>(ErrorNumber::InvalidCall), folder.Write("abc", bytes));
}

TEST_F(RemoveOverFileTest, DigitalSilenceStaysWithoutMessageAndOfGoodQuality)
{
    const std::string path = folder.Write("song.wav", FileOf({2, 16, 8000, std::vector(40000, 0)}));
    EXPECT_EQ(RemoveOverFile(path, quality), result);
    EXPECT_EQ(quality, 1);
    EXPECT_TRUE(BytesOf(result) == BytesOf(path));
}

TEST_F(RemoveOverFileTest, EachSampleOfSilenceBecomesADitherOfItsOwn)
{
    std::vector<int> numbers(300, 0);
    numbers[100] = 1;
    numbers[101] = -1;
    const std::string path = folder.Write("song.wav", FileOf({1, 16, 8000, numbers}));
    OverFilterRequest request;
    request.Random = [k = 0U]() mutable { return std::array{0.0, 1.0, 0.75}[k++ % 3]; };
    OverFilterRun run(path, request);
    std::vector<double> out;
    run.Run([&](std::span<const double> samples) { out.assign(samples.begin(), samples.end()); },
            quality);
    ASSERT_EQ(out.size(), numbers.size());
    std::size_t drawn = 0;
    for (std::size_t k = 0; k + 106 < numbers.size(); ++k) {
        const double dither = std::array{-0.5e-9, 0.5e-9, 0.25e-9}[drawn % 3];
        if (numbers[k] == 0) ++drawn;
        EXPECT_DOUBLE_EQ(out[k + 106], numbers[k] == 0 ? dither : numbers[k] / 32768.0) << k;
    }
}

TEST_F(RemoveOverFileTest, DitherMakesPeaksInSilenceFitToBeRebuilt)
{
    std::vector<int> numbers(4000, 0); // without dither these are a singular system
    std::fill_n(numbers.begin() + 2000, 10, 30000);
    EXPECT_EQ(RemoveOverFile(folder.Write("song.wav", FileOf({1, 16, 8000, numbers})), quality),
              result);
    EXPECT_EQ(quality, 1);
}

TEST_F(RemoveOverFileTest, TheOutputIsHeldOnceAndNothingElseThatGrows)
{
    constexpr std::int64_t kSamples = 4 << 20;
    const std::string path = folder.Write("song.wav", PlainWave({}, "", 2 * kSamples));
    std::filesystem::resize_file(path, 44 + 2 * kSamples); // silence that takes no room
    rusage before = {};
    getrusage(RUSAGE_SELF, &before);
    EXPECT_EQ(RemoveOverFile(path, quality), result);
    rusage after = {};
    getrusage(RUSAGE_SELF, &after);
    EXPECT_LT(after.ru_maxrss - before.ru_maxrss, (8 * kSamples >> 10) + 12 * 1024); // KiB
}

TEST_F(RemoveOverFileTest, TheSameRandomNumbersGiveTheSameFile)
{
    const std::string path = SoundFile(20000, 3.0, 2);
    RemoveOverFile(path, quality);
    const std::string first = BytesOf(result);
    RemoveOverFile(SoundFile(9000), quality); // nothing of a run stays for the next one
    folder.Write("song.wav", "");
    noise = Noise(61);
    RemoveOverFile(SoundFile(20000, 3.0, 2), quality);
    EXPECT_TRUE(BytesOf(result) == first);
}

TEST_F(RemoveOverFileTest, ProgressGoesOverTheSecondsAndTwoStepsMore)
{
    ProgressBar bar{5, 6, 7};
    std::vector<std::int32_t> values;
    OverFilterRequest request;
    request.Hooks.PumpEvents = [&] {
        EXPECT_EQ(bar.Min, 0);
        EXPECT_EQ(bar.Max, 5);
        values.push_back(bar.Value);
    };
    request.Hooks.Bar = &bar;
    RemoveOverFile(SoundFile(3 * 8000 + 17), quality, request);
    EXPECT_EQ(values, (std::vector<std::int32_t>{1, 2, 3, 5}));
    bar = {5, 6, 7};
    RemoveOverFile(folder / "song.wav", quality, &bar);
    EXPECT_EQ(bar.Value, 5);
    EXPECT_EQ(bar.Max, 5);
}

TEST_F(RemoveOverFileTest, ACancelTakesEffectAtTheEndOfTheSecondAndLeavesNothingBehind)
{
    const std::string path = SoundFile(5 * 8000);
    folder.Write("songtmp.wav", "of an earlier run");
    for (const int seconds : {1, 3}) {
        int asked = 0;
        int pumped = 0;
        OverFilterRequest request;
        request.Hooks.CancelRequested = [&] { return ++asked == seconds; };
        request.Hooks.PumpEvents = [&] { ++pumped; };
        EXPECT_EQ(RemoveOverFile(path, quality, request), "");
        EXPECT_EQ(asked, seconds);
        EXPECT_EQ(pumped, seconds - 1);
        EXPECT_FALSE(std::filesystem::exists(result));
    }
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 1);
}

TEST_F(RemoveOverFileTest, ASourceThatIsNotThereHasItsMessage)
{
    EXPECT_EQ(RemoveOverFile(folder / "song.wav", quality), "");
    EXPECT_EQ(messages.Take(),
              Shown{FileError("Error using open_wav.", " Cannot open specifid WAV file for input, "
                                                       "because file not exist.")});
    EXPECT_FALSE(std::filesystem::exists(result));
    EXPECT_EQ(quality, -7);
}

TEST_F(RemoveOverFileTest, AFaultyHeaderHasItsMessage)
{
    EXPECT_EQ(RemoveOverFile(folder.Write("song.wav", "RIFF"), quality), "");
    EXPECT_EQ(messages.Take().size(), 1U);
    EXPECT_FALSE(std::filesystem::exists(result));
}

TEST_F(RemoveOverFileTest, WhatHasNoSamplesIsError9)
{
    ExpectError(9, folder.Write("song.wav", FileOf({1, 16, 8000, {}})));
    ExpectError(9, folder.Write("song.wav", PlainWave({1, 24, 8000}, std::string(300, '\1'))));
    ExpectError(9, folder.Write("song.wav", FileOf({1, 16, 900, {1, 2, 3}}))); // order 0
}

TEST_F(RemoveOverFileTest, AHeaderThatPromisesFarTooMuchIsError7)
{
    const std::string data(2000, '\1');
    const std::int64_t most = 2000 + 2 * 2 * 145 * (8000 * 220 / 22050 + 1);
    ExpectError(7, folder.Write("song.wav", PlainWave({1, 16, 8000}, data, 2000000000)));
    ExpectError(7, folder.Write("song.wav", PlainWave({1, 16, 8000}, data, most + 2)));
    const std::string path = folder.Write("song.wav", PlainWave({1, 16, 8000}, data, most));
    EXPECT_EQ(RemoveOverFile(path, quality), result);
    EXPECT_EQ(BytesOf(result).size(), 44U + static_cast<std::size_t>(most));
}

TEST_F(RemoveOverFileTest, AnUnreadableSourceIsOneError)
{
    const std::string path = SoundFile(8000);
    chmod(path.c_str(), 0);
    const PermissionsCount strict;
    ExpectError(70, path);
}

TEST_F(RemoveOverFileTest, ALinkToTheTemporaryFileIsNotRobbedOfItsEnd)
{
    const std::string bytes = FileOf(SourceOf(noise, 1, 16, 8000, 9000, 2.0));
    folder.Write("songtmp.wav", bytes);
    std::filesystem::create_symlink("songtmp.wav", folder / "song.wav");
    EXPECT_EQ(Raised([&] { RemoveOverFile(folder / "song.wav", quality); }), 75);
    EXPECT_TRUE(BytesOf(result) == bytes);
}

TEST_F(RemoveOverFileTest, ALinkThatHasTheTemporaryNameIsReplaced)
{
    const std::string path = SoundFile(9000);
    const std::string bytes = BytesOf(path);
    std::filesystem::create_symlink("song.wav", result);
    EXPECT_EQ(RemoveOverFile(path, quality), result);
    EXPECT_TRUE(BytesOf(path) == bytes);
    EXPECT_FALSE(std::filesystem::is_symlink(result));
}

TEST_F(RemoveOverFileTest, AFullDiskIsOneErrorAndLosesNothing)
{
    const std::string path = SoundFile(30000);
    const std::string before = BytesOf(path);
    const FileSizeLimit full(20000);
    ExpectError(61, path);
    EXPECT_TRUE(BytesOf(path) == before);
}

TEST_F(RemoveOverFileTest, AResultThatCannotBeMadeHasItsMessage)
{
    const std::string path = SoundFile(8000);
    folder.MakeFolder("songtmp.wav");
    EXPECT_EQ(RemoveOverFile(path, quality), "");
    EXPECT_EQ(messages.Take(),
              Shown{FileError("Error using fopen.", " Cannot open  WAV file for output.")});
    EXPECT_TRUE(std::filesystem::is_directory(result));
}

} // namespace
} // namespace lumora
