#include "overfilter/RemoveOverStream.h"

#include "overfilter/ModOverPolynom.h"
#include "overfilter/OverFiles.h"
#include "support/Limits.h"
#include "support/MessageRecorder.h"
#include "support/Raised.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace lumora {
namespace {

using namespace test;
using End = OverFilterReport::End;

class RemoveOverStreamTest : public testing::Test {
protected:
    void TearDown() override
    {
        EXPECT_EQ(messages.Take(), Shown{});
        EXPECT_EQ(OpenFileCount(), open_before);
    }

    OverFilterReport Run(OverFilterLength length = OverFilterLength::Delayed,
                         OverFilterRequest request = {})
    {
        request.Random = Ramp();
        return RemoveOverStream(source, target, length, request);
    }

    /// The run ends in this error and there is no target.
    void ExpectError(int number)
    {
        EXPECT_EQ(Raised([&] { Run(); }), number);
        EXPECT_FALSE(std::filesystem::exists(target));
    }

    Noise noise{62};
    TempFolder folder;
    MessageRecorder messages;
    const std::string source = folder / "in.wav";
    const std::string target = folder / "out.wav";
    const std::ptrdiff_t open_before = OpenFileCount();
};

TEST_F(RemoveOverStreamTest, WritesTheBytesOfRemoveOverFile)
{
    for (const int bits : {8, 16})
        for (const int channels : {1, 2})
            for (const int rate : {8000, 22050})
                for (const std::size_t frames : {3U, 333U, 22050U, 50001U}) {
                    SCOPED_TRACE(std::to_string(bits) + " bits, " + std::to_string(channels) +
                                 " channels, " + std::to_string(frames) + " frames");
                    const Source sound = SourceOf(noise, channels, bits, rate, frames, 2.5);
                    folder.Write("in.wav", FileOf(sound));
                    folder.Write("out.wav", "an older file");
                    std::int16_t quality = 0;
                    OverFilterRequest request;
                    request.Random = Ramp();
                    const std::string whole = RemoveOverFile(source, quality, request);
                    const OverFilterReport report = Run();
                    EXPECT_EQ(report.end, End::Complete);
                    EXPECT_EQ(report.QualityGood, quality);
                    EXPECT_EQ(report.BufferLen, rate == 8000 ? 107 : 293);
                    EXPECT_TRUE(BytesOf(target) == BytesOf(whole));
                }
}

TEST_F(RemoveOverStreamTest, OneFrameKeepsItsChannels)
{
    for (const int channels : {1, 2}) {
        const auto count = static_cast<std::size_t>(channels);
        folder.Write("in.wav", FileOf({channels, 16, 8000, std::vector<int>(count, 700)}));
        Run();
        EXPECT_EQ(BytesOf(target), FileOf({channels, 16, 8000, std::vector<int>(count, 0)}));
    }
}

TEST_F(RemoveOverStreamTest, WithItsLengthKeptTheResultIsAlignedWithTheSource)
{
    for (const int bits : {8, 16})
        for (const int channels : {1, 2})
            for (const std::size_t frames : {1U, 20U, 107U, 8000U, 20001U}) {
                SCOPED_TRACE(std::to_string(bits) + " bits, " + std::to_string(channels) +
                             " channels, " + std::to_string(frames) + " frames");
                const Source sound = SourceOf(noise, channels, bits, 8000, frames, 2.0);
                folder.Write("in.wav", FileOf(sound));
                const OverFilterReport report = Run(OverFilterLength::Kept);
                const Expected expected = ExpectedOf(sound, true);
                EXPECT_TRUE(BytesOf(target) == expected.file);
                EXPECT_EQ(report.QualityGood, expected.quality_good);
            }
}

TEST_F(RemoveOverStreamTest, CleanSoundWithItsLengthKeptIsTheSource)
{
    Source sound = SourceOf(noise, 2, 16, 44100, 60000, 0.7);
    folder.Write("in.wav", FileOf(sound));
    EXPECT_EQ(Run(OverFilterLength::Kept).figures, OverFilterFigures{});
    EXPECT_TRUE(BytesOf(target) == BytesOf(source));
}

TEST_F(RemoveOverStreamTest, ReportsWhatTheFilterDid)
{
    const Source sound = SourceOf(noise, 1, 16, 8000, 30000, 3.0);
    folder.Write("in.wav", FileOf(sound));
    std::int64_t seen = 0;
    std::int64_t last_start = 0;
    OverFilterRequest request;
    request.OnRegion = [&](const RebuiltRegion& region) {
        ++seen;
        EXPECT_GT(region.start, last_start);
        last_start = region.start;
        const auto first = static_cast<std::size_t>(region.start - 1);
        EXPECT_GT(region.sign * sound.Sample(first), 0.8);
    };
    const OverFilterReport report = Run(OverFilterLength::Delayed, request);
    EXPECT_EQ(report.figures.rebuilt, seen);
    EXPECT_GT(seen, 10);
    EXPECT_GT(report.figures.largest_gain, 1.0);
    EXPECT_EQ(report.QualityGood == 0, report.figures.left_too_long +
                                               report.figures.left_unpredicted +
                                               report.figures.crowded >
                                           0);
}

TEST_F(RemoveOverStreamTest, ProgressGoesOverTheSecondsAndTwoStepsMore)
{
    folder.Write("in.wav", FileOf(SourceOf(noise, 2, 16, 8000, 2 * 8000 + 1, 1.0)));
    ProgressBar bar;
    std::vector<std::int32_t> values;
    OverFilterRequest request;
    request.Hooks.Bar = &bar;
    request.Hooks.PumpEvents = [&] { values.push_back(bar.Value); };
    Run(OverFilterLength::Delayed, request);
    EXPECT_EQ(bar.Max, 4);
    EXPECT_EQ(values, (std::vector<std::int32_t>{1, 2, 4}));
}

TEST_F(RemoveOverStreamTest, ACancelLeavesNoTarget)
{
    folder.Write("in.wav", FileOf(SourceOf(noise, 2, 16, 8000, 30000, 1.0)));
    folder.Write("out.wav", "an older file");
    OverFilterRequest request;
    request.Hooks.CancelRequested = [] { return true; };
    EXPECT_EQ(Run(OverFilterLength::Kept, request).end, End::Cancelled);
    EXPECT_FALSE(std::filesystem::exists(target));
}

TEST_F(RemoveOverStreamTest, ASourceThatIsNotThereHasItsMessageAndCostsNoOlderFile)
{
    folder.Write("out.wav", "an older file");
    EXPECT_EQ(Run().end, End::Failed);
    EXPECT_EQ(messages.Take(),
              Shown{FileError("Error using open_wav.", " Cannot open specifid WAV file for input, "
                                                       "because file not exist.")});
    EXPECT_EQ(BytesOf(target), "an older file");
}

TEST_F(RemoveOverStreamTest, ATargetThatCannotBeMadeHasItsMessage)
{
    folder.Write("in.wav", FileOf(SourceOf(noise, 1, 16, 8000, 300, 1.0)));
    folder.MakeFolder("out.wav");
    EXPECT_EQ(Run().end, End::Failed);
    EXPECT_EQ(messages.Take(),
              Shown{FileError("Error using fopen.", " Cannot open  WAV file for output.")});
    EXPECT_TRUE(std::filesystem::is_directory(target));
}

TEST_F(RemoveOverStreamTest, TheSourceIsNoTarget)
{
    const std::string bytes = FileOf(SourceOf(noise, 1, 16, 8000, 300, 1.0));
    folder.Write("in.wav", bytes);
    std::filesystem::create_symlink(source, target);
    EXPECT_EQ(Raised([&] { Run(); }), 75);
    EXPECT_EQ(Raised([&] { RemoveOverStream(source, source); }), 75);
    EXPECT_TRUE(BytesOf(source) == bytes);
}

TEST_F(RemoveOverStreamTest, AFullDiskIsOneErrorAndLeavesNoTarget)
{
    folder.Write("in.wav", FileOf(SourceOf(noise, 2, 16, 8000, 30000, 1.0)));
    for (const rlim_t bytes : {0U, 10U, 20000U, 100000U}) {
        const FileSizeLimit full(bytes);
        ExpectError(61);
    }
}

TEST_F(RemoveOverStreamTest, AnUnreadableSourceIsOneError)
{
    folder.Write("in.wav", FileOf(SourceOf(noise, 1, 16, 8000, 300, 1.0)));
    chmod(source.c_str(), 0);
    const PermissionsCount strict;
    ExpectError(70);
}

TEST_F(RemoveOverStreamTest, ASourceThatIsCutDownOnTheWayReadsAsZerosFromThere)
{
    Source sound = SourceOf(noise, 1, 16, 8000, 5 * 8000, 0.7);
    folder.Write("in.wav", FileOf(sound));
    OverFilterRequest request;
    request.Hooks.PumpEvents = [&, cut = false]() mutable {
        if (!std::exchange(cut, true)) std::filesystem::resize_file(source, 44 + 2 * 20000);
    };
    const OverFilterReport report = Run(OverFilterLength::Delayed, request);
    EXPECT_EQ(report.end, End::Complete);
    EXPECT_TRUE(report.source_has_shrunk);
    std::fill(sound.numbers.begin() + 20000, sound.numbers.end(), 0);
    EXPECT_TRUE(BytesOf(target) == ExpectedOf(sound).file);
}

TEST_F(RemoveOverStreamTest, ASourceThatIsRemovedOrReplacedOnTheWayIsReadOnAsItWas)
{
    const Source sound = SourceOf(noise, 2, 16, 8000, 5 * 8000, 2.0);
    for (const bool replace : {false, true}) {
        folder.Write("in.wav", FileOf(sound));
        OverFilterRequest request;
        request.Hooks.PumpEvents = [&] {
            std::filesystem::remove(source);
            if (replace) folder.Write("in.wav", "another file");
        };
        const OverFilterReport report = Run(OverFilterLength::Delayed, request);
        EXPECT_EQ(report.end, End::Complete);
        EXPECT_FALSE(report.source_has_shrunk);
        EXPECT_TRUE(BytesOf(target) == ExpectedOf(sound).file);
    }
}

TEST_F(RemoveOverStreamTest, OfAFrameThatTheFileHoldsInPartWhatIsThereCounts)
{
    Source sound = SourceOf(noise, 2, 16, 8000, 500, 0.5);
    std::string bytes = FileOf(sound);
    bytes.resize(bytes.size() - 3 * 4 - 2); // three frames and the right of the one before
    folder.Write("in.wav", bytes);
    Run(OverFilterLength::Kept); // the end comes out
    std::fill(sound.numbers.end() - 7, sound.numbers.end(), 0);
    EXPECT_TRUE(BytesOf(target) == ExpectedOf(sound, true).file);
}

} // namespace
} // namespace lumora
