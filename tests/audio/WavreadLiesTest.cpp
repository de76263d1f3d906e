#include "audio/Wavread.h"

#include "numeric/Matrices.h"
#include "support/EdgeNumbers.h"
#include "support/Limits.h"
#include "support/MessageRecorder.h"
#include "support/Raised.h"
#include "support/TempFolder.h"
#include "support/WaveBuilder.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using namespace test;

const std::string kPcmFormat = "Error reading PCM file format.";

/// Files whose header does not tell the truth.
class WavreadOfALie : public testing::Test {
protected:
    void TearDown() override { EXPECT_EQ(OpenFileCount(), open_before); }

    WavreadResult Read(const std::string& bytes, const Variant& arg1 = {}, const Variant& arg2 = {})
    {
        return wavread(folder.Write("f.wav", bytes), arg1, arg2);
    }
    void ExpectFault(const WavreadResult& result, const std::string& text)
    {
        EXPECT_EQ(result.Bits, -1);
        EXPECT_FALSE(result.Samples);
        EXPECT_EQ(result.Info.Message, text);
        EXPECT_EQ(messages.Take(), Shown{Plain(text)});
    }

    TempFolder folder;
    MessageRecorder messages;
    const std::ptrdiff_t open_before = OpenFileCount();
};

TEST_F(WavreadOfALie, DataThatTheFileDoesNotHoldIsAFault)
{
    for (std::int32_t promised : {6, 1000, 1000000000, kMost32 - 44})
        for (int bits : {8, 16, 32})
            ExpectFault(Read(PlainWave({.bits = bits}, "ssss", promised)), kPcmFormat);
    for (std::int32_t promised : {20000, 1000000000, kMost32 - 44})
        ExpectFault(Read(PlainWave({.channels = 32767, .bits = 8}, "ssss", promised)), kPcmFormat);
}

TEST_F(WavreadOfALie, SizeFindsOutToo)
{
    for (std::int32_t promised : {5, 6, 1000000000, kMost32 - 44})
        ExpectFault(Read(PlainWave({}, "ssss", promised), "size"), kPcmFormat);
}

TEST_F(WavreadOfALie, ARangeThatIsThereIsRead)
{
    const std::string file = PlainWave({.channels = 2}, Shorts({16384, 0, 0, 8192}), 1000000000);
    const auto result = Read(file, 1.0, 2.0);
    EXPECT_EQ(messages.Take(), Shown{});
    ASSERT_TRUE(result.Samples);
    EXPECT_EQ(Values(*result.Samples), (std::vector<double>{0.5, 0.0, 0.0, 0.25}));
    EXPECT_EQ(result.Info.TotalSamples, 250000000);
    EXPECT_EQ(result.Trailing, "");
    ExpectFault(Read(file, 2.0, 3.0), kPcmFormat);
    ExpectFault(Read(file, 3.0, 3.0), kPcmFormat);
    ExpectFault(Read(file, 250000000.0, 250000000.0), kPcmFormat);
    ExpectFault(Read(file, 250000000.0, 250000001.0), "Sample limits out of range.");
}

TEST_F(WavreadOfALie, ANegativeSizeIsAFault)
{
    for (std::int32_t size : {-1, -4, -1000, kLeast32 + 44, kLeast32}) {
        ExpectFault(Read(PlainWave({}, "ssss", size)), kPcmFormat);
        ExpectFault(Read(PlainWave({}, "ssss", size), "size"), kPcmFormat);
        ExpectFault(Read(PlainWave({}, "ssss", size), 1.0, 1.0), kPcmFormat);
    }
}

TEST_F(WavreadOfALie, NegativeChannelsAreAFaultWhateverTheOtherSigns)
{
    for (std::int32_t size : {4, -4, 0}) {
        ExpectFault(Read(PlainWave({.channels = -1}, "ssss", size)), kPcmFormat);
        ExpectFault(Read(PlainWave({.channels = -1}, "ssss", size), "size"), kPcmFormat);
    }
}

TEST_F(WavreadOfALie, NoChannelsAreADivisionByZero)
{
    const std::string name = folder.Write("f.wav", PlainWave({.channels = 0}, "ssss"));
    EXPECT_EQ(Raised([&] { wavread(name); }), 11);
    EXPECT_EQ(Raised([&] { wavread(name, 1.0, 1.0); }), 11);
    EXPECT_EQ(Raised([&] { wavread(name, "size"); }), 11); // its frames have no bytes
    EXPECT_EQ(messages.Take(), Shown{});
}

TEST_F(WavreadOfALie, DataBeyondTwoGibibytesOverflows)
{
    for (std::int32_t size : {kMost32, kMost32 - 43}) {
        const std::string name = folder.Write("f.wav", PlainWave({}, "ssss", size));
        EXPECT_EQ(Raised([&] { wavread(name); }), 6);
        EXPECT_EQ(Raised([&] { wavread(name, "size"); }), 6);
    }
    EXPECT_EQ(messages.Take(), Shown{});
}

TEST_F(WavreadOfALie, AWideFrameThatIsHalfThereTakesNoMoreThanItself)
{
    // 20,000 bytes of 32,767 are more than half of the only frame.
    const auto result = Read(PlainWave({.channels = 32767, .bits = 8}, std::string(20000, '\xC0')));
    ASSERT_TRUE(result.Samples);
    ASSERT_EQ(ShapeOf(*result.Samples), Sized(1, 32767));
    EXPECT_EQ(result.Samples->Real(1, 20000), 0.5);
    EXPECT_EQ(result.Samples->Real(1, 20001), -1.0); // a missing byte is zero
    EXPECT_EQ(messages.Take(), Shown{});
}

TEST_F(WavreadOfALie, AFileCutAtAnyByteHasOneMessageOrItsSamples)
{
    const std::string whole = PlainWave({.bits = 8}, "abcd");
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const auto result = Read(whole.substr(0, length));
        EXPECT_EQ(result.Bits, -1) << length;
        EXPECT_FALSE(result.Samples) << length;
        EXPECT_EQ(messages.Take(), Shown{Plain(result.Info.Message)}) << length;
    }
    EXPECT_EQ(Read(whole).Bits, 8);
    EXPECT_EQ(messages.Take(), Shown{});
}

TEST_F(WavreadOfALie, AFileThatMayNotBeReadIsARunTimeError)
{
    const std::string name = folder.Write("f.wav", PlainWave({}, "ssss"));
    std::filesystem::permissions(name, std::filesystem::perms::none);
    const PermissionsCount strict;
    EXPECT_EQ(Raised([&] { wavread(name); }), 70);
    EXPECT_EQ(messages.Take(), Shown{});
}

} // namespace
} // namespace lumora
