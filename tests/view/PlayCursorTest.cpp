#include "view/PlayCursor.h"

#include "support/Raised.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using namespace test;

/// Ten seconds of 16-bit stereo: 4 bytes a frame, 176,400 a second.
constexpr SoundMeasure kStereo = {44100, 16, 2, 441000};
/// Ten samples of one byte, one a second.
constexpr SoundMeasure kSlow = {1, 8, 1, 10};

void ExpectAt(const PlayCursor& cursor, double seconds, std::int32_t bytes, std::int32_t number)
{
    EXPECT_EQ(cursor.TimePosition(), seconds);
    EXPECT_EQ(cursor.Position(), bytes);
    EXPECT_EQ(cursor.NumberPerSample(), number);
}

TEST(PlayCursor, StartsAtTheFirstSample)
{
    ExpectAt(PlayCursor(), 0.0, 0, 1);
    ExpectAt(PlayCursor(kStereo), 0.0, 0, 1);
}

TEST(PlayCursor, SaysOnePlaceInThreeForms)
{
    PlayCursor by_time(kStereo), by_bytes(kStereo), by_number(kStereo);
    by_time.SetTimePosition(2.5);
    by_bytes.SetPosition(441000);
    by_number.SetNumberPerSample(110251);
    ExpectAt(by_time, 2.5, 441000, 110251);
    EXPECT_EQ(by_bytes, by_time);
    EXPECT_EQ(by_number, by_time);
}

TEST(PlayCursor, CountsBytesByTheFrameOfEachFormat)
{
    for (const std::int16_t bits : {std::int16_t{8}, std::int16_t{16}})
        for (const std::int16_t channels : {std::int16_t{1}, std::int16_t{2}}) {
            PlayCursor cursor({8000, bits, channels, 80000});
            cursor.SetNumberPerSample(8001);
            ExpectAt(cursor, 1.0, 8000 * bits / 8 * channels, 8001);
        }
}

TEST(PlayCursor, KeepsTheFormThatWasSetAndRoundsTheOthers)
{
    PlayCursor cursor(kStereo);
    cursor.SetPosition(441003); // the last byte of its frame
    ExpectAt(cursor, 441003.0 / 176400.0, 441003, 110251);
    cursor.SetTimePosition(0.00001); // 1.76 bytes, 0.44 samples
    ExpectAt(cursor, 0.00001, 2, 1);

    PlayCursor slow(kSlow); // halves to even, of bytes and of numbers from 1
    slow.SetTimePosition(0.5);
    ExpectAt(slow, 0.5, 0, 2);
    slow.SetTimePosition(1.5);
    ExpectAt(slow, 1.5, 2, 2);
    slow.SetTimePosition(2.5);
    ExpectAt(slow, 2.5, 2, 4);
}

TEST(PlayCursor, GoesToTheStartWhereTheFormatIsNotKnown)
{
    for (const SoundMeasure& sound : {SoundMeasure{0, 16, 2, 100}, SoundMeasure{44100, 0, 2, 100},
                                      SoundMeasure{44100, 16, 0, 100}, SoundMeasure{}}) {
        PlayCursor by_bytes(sound), by_number(sound);
        by_bytes.SetPosition(400);
        ExpectAt(by_bytes, 0.0, 0, 1);
        by_number.SetNumberPerSample(101);
        ExpectAt(by_number, 0.0, 0, 1);
    }
    PlayCursor timed({8000, 0, 0, 80000});
    timed.SetTimePosition(1.0);
    ExpectAt(timed, 1.0, 0, 8001);
    timed.SetPosition(0);
    ExpectAt(timed, 0.0, 0, 1);
}

TEST(PlayCursor, DividesByTheLengthOfTheSound)
{
    PlayCursor no_rate({0, 16, 2, 100}), no_sound({44100, 16, 2, 0}),
        half_a_byte({8000, 4, 1, 100});
    EXPECT_EQ(Raised([&] { no_rate.SetTimePosition(1.0); }), kDivision);
    EXPECT_EQ(Raised([&] { no_sound.SetTimePosition(1.0); }), kDivision);
    EXPECT_EQ(Raised([&] { half_a_byte.SetPosition(4); }), kDivision);
}

TEST(PlayCursor, StaysWhereItWasWhenAFormDoesNotFit)
{
    PlayCursor cursor(kStereo);
    cursor.SetPosition(441000);
    const PlayCursor before = cursor;
    EXPECT_EQ(Raised([&] { cursor.SetTimePosition(13000.0); }), kOverflow);
    EXPECT_EQ(cursor, before);
    EXPECT_EQ(Raised([&] { cursor.SetNumberPerSample(600000000); }), kOverflow);
    EXPECT_EQ(cursor, before);
}

TEST(PlayCursor, TakesItsMeasureFromAHeader)
{
    WaveInfo info;
    info.nSamplesPerSec = 22050;
    info.nBitsPerSample = 8;
    info.nChannels = 2;
    info.TotalSamples = 11025;
    EXPECT_EQ(SoundMeasure::Of(info), (SoundMeasure{22050, 8, 2, 11025}));
    EXPECT_EQ(SoundMeasure::Of(info).MediaTimeLength(), 0.5);
}

} // namespace
} // namespace lumora
