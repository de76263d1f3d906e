#include "audio/WaveChunks.h"

#include "support/EdgeNumbers.h"
#include "support/MessageRecorder.h"
#include "support/TempFolder.h"
#include "support/WaveBuilder.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using namespace test;

/// What read_waveformat makes of a body that states a size, and where the file stands then.
struct FormatRead {
    WaveFormatFields fields;
    std::int64_t position = 0;
    Shown shown;
};
FormatRead ReadFormat(const std::string& body, std::int32_t stated)
{
    const TempFolder folder;
    MessageRecorder messages;
    const OpenFile file(fopen(folder.Write("f", body), "rb"));
    ChunkHeader chunk;
    chunk.File = file.Number();
    chunk.ID = "fmt";
    chunk.Size = stated;
    FormatRead read;
    read_waveformat(file.Number(), chunk, read.fields);
    read.position = FilePosition(file.Number());
    read.shown = messages.Take();
    return read;
}

Shown Titled(const std::string& text)
{
    return {FileError("Error using read_waveformat", text)};
}

const FormatSpec kStereo = {.channels = 2, .bits = 16, .rate_hz = 44100, .size = 40, .extra = 22};

TEST(ReadWaveformat, ReadsTheFieldsInTheirOrder)
{
    const FormatRead read = ReadFormat(FormatBody(kStereo), 16);
    EXPECT_EQ(read.fields.wFormatTag, 1);
    EXPECT_EQ(read.fields.nChannels, 2);
    EXPECT_EQ(read.fields.nSamplesPerSec, 44100);
    EXPECT_EQ(read.fields.nAvgBytesPerSec, 176400);
    EXPECT_EQ(read.fields.nBlockAlign, 4);
    EXPECT_EQ(read.fields.nBitsPerSample, 16);
    EXPECT_EQ(read.fields.cbExtra, 0);
    EXPECT_EQ(read.fields.Message, "");
    EXPECT_TRUE(read.shown.empty());
}

TEST(ReadWaveformat, ReachesTheEndOfTheChunkWhateverItsSize)
{
    // size, tag, bits read, extra word read
    const int table[][4] = {{16, 1, 16, 0},  {17, 1, 16, 0}, {18, 1, 16, 22}, {19, 1, 16, 22},
                            {40, 1, 16, 22}, {14, 3, 0, 0},  {15, 3, 0, 0},   {16, 3, 0, 0},
                            {18, 3, 0, 0},   {40, 3, 0, 0},  {14, -2, 0, 0},  {16, -2, 0, 0},
                            {40, -2, 0, 0}};
    for (const auto& [size, tag, bits, extra] : table) {
        FormatSpec spec = kStereo;
        spec.tag = tag;
        const FormatRead read = ReadFormat(FormatBody(spec) + "behind", size);
        EXPECT_EQ(read.fields.Message, "") << size << " tag " << tag;
        EXPECT_EQ(read.fields.wFormatTag, tag);
        EXPECT_EQ(read.fields.nBitsPerSample, bits) << size << " tag " << tag;
        EXPECT_EQ(read.fields.cbExtra, extra) << size << " tag " << tag;
        EXPECT_EQ(read.position, size + 1) << " tag " << tag;
        EXPECT_TRUE(read.shown.empty()) << size << " tag " << tag;
    }
}

/// The text for a body of `held` bytes that states `stated`, by the order of the reading.
struct Fault {
    int tag;
    std::size_t held;
    std::int32_t stated;
    const char* text;
};

TEST(ReadWaveformat, ShowsEachFaultUnderItsOwnText)
{
    const Fault faults[] = {
        {1, 40, 13, "Error reading <wave_fmt> chunk."},
        {1, 40, 0, "Error reading <wave_fmt> chunk."},
        {1, 40, -1, "Error reading <wave_fmt> chunk."},
        {1, 40, kLeast32, "Error reading <wave_fmt> chunk."},
        {3, 40, 13, "Error reading <wave_fmt> chunk."},
        {1, 40, 14, "error reading <wave-fmt> chunk"},
        {1, 40, 15, "error reading <wave-fmt> chunk"},
        {1, 14, 16, "Error reading PCM <wave-fmt> chunk"},
        {1, 15, 16, "Error reading PCM <wave-fmt> chunk"},
        {1, 16, 18, "Error reading PCM <wave-fmt> chunc."},
        {1, 17, 40, "Error reading PCM <wave-fmt> chunc."},
        {1, 16, 17, "Error reading pcm <wave-fmt> chunk"},
        {1, 18, 19, "Error reading pcm <wave-fmt> chunk"},
        {1, 39, 40, "Error reading pcm <wave-fmt> chunk"},
        {1, 40, kMost32, "Error reading pcm <wave-fmt> chunk"},
        {3, 14, 15, "Error reading <wave-fmt> chunk"},
        {3, 39, 40, "Error reading <wave-fmt> chunk"},
        {-2, 40, kMost32, "Error reading <wave-fmt> chunk"},
    };
    for (const Fault& fault : faults) {
        FormatSpec spec = kStereo;
        spec.tag = fault.tag;
        spec.size = fault.held;
        const FormatRead read = ReadFormat(FormatBody(spec), fault.stated);
        EXPECT_EQ(read.fields.Message, fault.text) << fault.held << '/' << fault.stated;
        EXPECT_EQ(read.shown, Titled(fault.text)) << fault.held << '/' << fault.stated;
    }
}

TEST(ReadWaveformat, ShowsABodyCutWithinItsFields)
{
    for (int tag : {1, 3})
        for (std::size_t held = 0; held < 14; ++held) {
            FormatSpec spec = kStereo;
            spec.tag = tag;
            spec.size = held;
            const FormatRead read = ReadFormat(FormatBody(spec), 16);
            EXPECT_EQ(read.fields.Message, "Error reading <wave_fmt> chunk.") << held;
            EXPECT_EQ(read.shown, Titled("Error reading <wave_fmt> chunk.")) << held;
        }
}

} // namespace
} // namespace lumora
