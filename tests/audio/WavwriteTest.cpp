#include "audio/Wavwrite.h"

#include "numeric/Matrices.h"
#include "support/MessageRecorder.h"
#include "support/TempFolder.h"
#include "support/WaveBuilder.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using namespace test;

class Wavwrite : public testing::Test {
protected:
    void TearDown() override { EXPECT_EQ(messages.Take(), Shown{}); }

    /// The bytes of the file that this wrote.
    std::string Written(const Variant& y, double rate = 8000, double bits = 16,
                        const Variant& flag = 0.0, const Variant& extra = {})
    {
        EXPECT_TRUE(wavwrite(y, rate, bits, name, flag, extra));
        return BytesOf(name);
    }
    /// The data of the file that this wrote, behind its 44 bytes.
    std::string Data(const Variant& y, double bits = 16, const Variant& flag = 0.0)
    {
        return Written(y, 8000, bits, flag).substr(44);
    }

    TempFolder folder;
    const std::string name = folder / "f.wav";
    MessageRecorder messages;
};

/// The first 44 bytes: fields that a single number does not tell are told.
std::string Head(int channels, int rate, int bits, int data_bytes, int riff_bytes)
{
    const int frame = channels * bits / 8;
    return "RIFF" + Le32(riff_bytes) + "WAVEfmt " + Le32(16) + Le16(1) + Le16(channels) +
           Le32(rate) + Le32(rate * frame) + Le16(frame) + Le16(bits) + "data" + Le32(data_bytes);
}

TEST_F(Wavwrite, AMonoFileHasThisLayout)
{
    const std::string expected = std::string("RIFF") + Raw({42, 0, 0, 0}) + // 6 data bytes + 36
                                 "WAVEfmt " + Raw({16, 0, 0, 0}) + Raw({1, 0}) + Raw({1, 0}) +
                                 Raw({0x22, 0x56, 0, 0}) +                  // 22050
                                 Raw({0x44, 0xAC, 0, 0}) +                  // 44100
                                 Raw({2, 0}) + Raw({16, 0}) +               //
                                 "data" + Raw({6, 0, 0, 0}) +               //
                                 Raw({0x00, 0x40, 0x00, 0x80, 0x01, 0x00}); // 0.5, -1, one step
    EXPECT_EQ(Written(RealMatrix({{0.5}, {-1.0}, {1 / 32768.0}}), 22050), expected);
}

TEST_F(Wavwrite, AStereoFileInterleavesChannelOneFirst)
{
    const std::string expected = std::string("RIFF") + Raw({48, 0, 0, 0}) + // 12 data bytes + 36
                                 "WAVEfmt " + Raw({16, 0, 0, 0}) + Raw({1, 0}) + Raw({2, 0}) +
                                 Raw({0x44, 0xAC, 0, 0}) +    // 44100
                                 Raw({0x10, 0xB1, 0x02, 0}) + // 176400
                                 Raw({4, 0}) + Raw({16, 0}) + //
                                 "data" + Raw({12, 0, 0, 0}) +
                                 Shorts({16384, -16384, 8192, -8192, 1, 2});
    const auto y = RealMatrix({{0.5, -0.5}, {0.25, -0.25}, {1 / 32768.0, 2 / 32768.0}});
    EXPECT_EQ(Written(y, 44100), expected);
}

TEST_F(Wavwrite, OddDataIsPaddedAndCountedInTheRiffSize)
{
    // 8 bits: 3 data bytes, a zero behind them, and 3 + 36 + 1.
    EXPECT_EQ(Written(RealMatrix({{0.0}, {0.5}, {-1.0}}), 8000, 8),
              Head(1, 8000, 8, 3, 40) + Raw({128, 192, 0}) + Raw({0}));
    EXPECT_EQ(Written(RealMatrix({{0.0}, {0.5}, {-1.0}}), 8000, 8, 0.0, "text"),
              Head(1, 8000, 8, 3, 40) + Raw({128, 192, 0}) + Raw({0}) + "text");
    EXPECT_EQ(Written(RealMatrix({{0.0}, {0.5}, {-1.0}, {0.25}}), 8000, 8),
              Head(1, 8000, 8, 4, 40) + Raw({128, 192, 0, 160}));
}

TEST_F(Wavwrite, ThirtyTwoBitsGoAsLongs)
{
    EXPECT_EQ(Written(RealMatrix({{0.25, -0.5}, {0.0, 1e-9}}), 48000, 32),
              Head(2, 48000, 32, 16, 52) + Le32(536870912) + // 536870911.75
                  Le32(-1073741824) +                        // -1073741823.5, half to even
                  Le32(0) + Le32(2));                        // 2.147
}

TEST_F(Wavwrite, EveryFormHasItsDefaults)
{
    const Variant y = RealMatrix({{0.5}, {-0.5}});
    const std::string data = Shorts({16384, -16384});
    const std::string by_default = Head(1, 8000, 16, 4, 40) + data;
    const std::string at_rate = Head(1, 44100, 16, 4, 40) + data;
    const std::string at_width = Head(1, 44100, 8, 2, 38) + Raw({192, 64});
    EXPECT_TRUE(wavwrite(y, name));
    EXPECT_EQ(BytesOf(name), by_default);
    EXPECT_TRUE(wavwrite(y, name, "behind"));
    EXPECT_EQ(BytesOf(name), by_default + "behind");
    EXPECT_TRUE(wavwrite(y, 44100.0, name));
    EXPECT_EQ(BytesOf(name), at_rate);
    EXPECT_TRUE(wavwrite(y, std::int32_t{44100}, std::int16_t{8}, name));
    EXPECT_EQ(BytesOf(name), at_width);
    EXPECT_TRUE(wavwrite(y, 44100.0, name, "behind"));
    EXPECT_EQ(BytesOf(name), at_rate + "behind");
    EXPECT_TRUE(wavwrite(y, 44100.0, 8.0, name, 0.0, "behind"));
    EXPECT_EQ(BytesOf(name), at_width + "behind");
    // Extra may stand last in the short forms too.
    EXPECT_TRUE(wavwrite(y, name, {}, {}, 0.0, "last"));
    EXPECT_EQ(BytesOf(name), by_default + "last");
    EXPECT_TRUE(wavwrite(y, 44100.0, name, {}, 0.0, "last"));
    EXPECT_EQ(BytesOf(name), at_rate + "last");
}

TEST_F(Wavwrite, ANameWithoutADotGetsItsEnding)
{
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    EXPECT_TRUE(wavwrite(RealMatrix({{0.5}}), "phrase"));
    EXPECT_TRUE(wavwrite(RealMatrix({{0.5}}), "take.2"));
    std::filesystem::current_path(before);
    EXPECT_EQ(BytesOf(folder / "phrase.wav"), Head(1, 8000, 16, 2, 38) + Shorts({16384}));
    EXPECT_EQ(BytesOf(folder / "take.2"), Head(1, 8000, 16, 2, 38) + Shorts({16384}));
}

TEST_F(Wavwrite, AnExistingFileIsReplaced)
{
    folder.Write("f.wav", std::string(1000, 'x'));
    EXPECT_EQ(Written(RealMatrix({{0.0}})).size(), 46U);
}

TEST_F(Wavwrite, RowsAreFramesUnlessAtMostTwoStandOverThreeColumns)
{
    const auto layout = [this](const Variant& y) {
        const std::string bytes = Written(y);
        return std::pair(bytes.substr(22, 2), bytes.substr(44)); // channels, samples
    };
    const auto steps = [](std::initializer_list<std::initializer_list<int>> rows) {
        Array<double> table(static_cast<std::int64_t>(rows.size()),
                            static_cast<std::int64_t>(rows.begin()->size()));
        std::int64_t i = 0;
        for (const auto& row : rows) {
            std::int64_t j = 0;
            ++i;
            for (int value : row)
                table(i, ++j) = value / 32768.0;
        }
        return table;
    };
    const struct {
        std::initializer_list<std::initializer_list<int>> rows;
        int channels;
        std::string data;
    } table[] = {
        {{{1}}, 1, Shorts({1})},
        {{{1, 2}}, 2, Shorts({1, 2})},
        {{{1, 2, 3}}, 1, Shorts({1, 2, 3})},
        {{{1}, {2}}, 1, Shorts({1, 2})},
        {{{1, 2}, {3, 4}}, 2, Shorts({1, 2, 3, 4})},
        {{{1, 2, 3}, {4, 5, 6}}, 2, Shorts({1, 4, 2, 5, 3, 6})},
        {{{1, 2}, {3, 4}, {5, 6}}, 2, Shorts({1, 2, 3, 4, 5, 6})},
        {{{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}, 3, Shorts({1, 2, 3, 4, 5, 6, 7, 8, 9})},
    };
    for (const auto& row : table) {
        const Array<double> array = steps(row.rows);
        Ref<clsMatrix> matrix = MakeRef<clsMatrix>();
        matrix->SetRealAll(array);
        const auto expected = std::pair(Le16(row.channels), row.data);
        EXPECT_EQ(layout(array), expected);
        EXPECT_EQ(layout(matrix), expected);
    }
}

TEST_F(Wavwrite, AnArrayOfOneDimensionIsMono)
{
    EXPECT_EQ(Written(Row<double>({0.5, 0.25})), Head(1, 8000, 16, 4, 40) + Shorts({16384, 8192}));
    EXPECT_EQ(Data(Row<double>({0.5, 0.25, 0})), Shorts({16384, 8192, 0}));
    EXPECT_EQ(Data(Row<float>({0.5F, -0.25F})), Shorts({16384, -8192}));
    EXPECT_EQ(Data(Row<std::string>({"0.5", "-1"})), Shorts({16384, -32768}));
    EXPECT_EQ(Data(LongMatrix({{0}, {-1}})), Shorts({0, -32768}));
}

TEST_F(Wavwrite, RoundsHalfToEven)
{
    const auto fractions = [](std::initializer_list<double> values, double full) {
        Array<double> row(static_cast<std::int64_t>(values.size()));
        std::int64_t k = 0;
        for (double value : values)
            row(++k) = value / full;
        return row;
    };
    EXPECT_EQ(Data(fractions({0.5, 1.5, 2.5, -0.5, -1.5, 0.51, 0.49}, 32768)),
              Shorts({0, 2, 2, 0, -2, 1, 0}));
    // 128.5, 129.5, 127.5, 126.5
    EXPECT_EQ(Data(fractions({0.5, 1.5, -0.5, -1.5}, 128), 8), Raw({128, 130, 128, 126}));
    EXPECT_EQ(Data(Row<double>({0.5, -0.5}), 32), Le32(1073741824) + Le32(-1073741824));
}

TEST_F(Wavwrite, APeakOfExactlyOneLosesAStep)
{
    // -1.0 stays, and so does all else.
    const Variant y = Row<double>({1.0, -1.0, 0.5, 1.0});
    EXPECT_EQ(Data(y, 16), Shorts({32767, -32768, 16384, 32767}));
    EXPECT_EQ(Data(y, 8), Raw({255, 0, 192, 255}));
    // Without a step the whole width is there.
    EXPECT_EQ(Data(y, 32),
              Le32(2147483647) + Le32(-2147483647) + Le32(1073741824) + Le32(2147483647));
    EXPECT_EQ(Data(Row<double>({-1.0, 0.5}), 16), Shorts({-32768, 16384}));
}

TEST_F(Wavwrite, APeakAboveOneScalesTheWholeSignal)
{
    for (double sign : {1.0, -1.0}) {
        const auto y = Row<double>({2.0 * sign, 0.5, -0.8, 0.0});
        const bool up = sign > 0;
        // Half of 32767: 8191.75 and -13106.8
        EXPECT_EQ(Data(y, 16), Shorts({up ? 32767 : -32767, 8192, -13107, 0}));
        // Half of 127 around 128: 31.75 and -50.8
        EXPECT_EQ(Data(y, 8), Raw({up ? 255 : 1, 160, 77, 128}));
        // Half of 2147483647: 536870911.75 and -858993458.8
        EXPECT_EQ(Data(y, 32), Le32(up ? 2147483647 : -2147483647) + Le32(536870912) +
                                   Le32(-858993459) + Le32(0));
    }
}

TEST_F(Wavwrite, ALargePeakOfManyChannelsAndFramesIsFound)
{
    for (std::int32_t place : {1, 7, 8, 9, 2047, 2500}) {
        Ref<clsMatrix> y = MakeRef<clsMatrix>();
        y->Initial_matrix(2500, 3);
        y->Real(place, 3, -64.0);
        y->Real(5, 1, 16.0);
        const std::string data = Data(y);
        const auto at = [&data](std::int32_t frame, std::int32_t channel) {
            return data.substr(static_cast<std::size_t>(6 * (frame - 1) + 2 * (channel - 1)), 2);
        };
        EXPECT_EQ(at(place, 3), Le16(-32767)) << place;
        EXPECT_EQ(at(5, 1), Le16(8192)) << place; // 8191.75
        EXPECT_EQ(at(place, 2), Le16(0)) << place;
    }
}

TEST_F(Wavwrite, APeakBelowOneChangesNothing)
{
    const double below = std::nextafter(1.0, 0.0);
    EXPECT_EQ(Data(Row<double>({0.25, -0.99})), Shorts({8192, -32440})); // -32440.32
    EXPECT_EQ(Data(Row<double>({below, -1.0}), 32), Le32(2147483647) + Le32(-2147483647));
}

TEST_F(Wavwrite, AFlagLeavesThePeakAlone)
{
    EXPECT_EQ(Data(Row<double>({-1.0, 32767 / 32768.0}), 16, 1.0), Shorts({-32768, 32767}));
    EXPECT_EQ(Data(Row<double>({1.0, -1.0}), 32, 1.0), Le32(2147483647) + Le32(-2147483647));
    EXPECT_EQ(Data(Row<double>({127 / 128.0, -1.0}), 8, std::int16_t{-1}), Raw({255, 0}));
}

TEST_F(Wavwrite, TheCallersSamplesStayAsTheyWere)
{
    const Ref<clsMatrix> y = RealMatrix({{3.0}, {1.0}});
    Data(y);
    EXPECT_EQ(Values(*y), (std::vector<double>{3.0, 1.0}));
    const Ref<clsMatrix> exact = RealMatrix({{1.0}, {-1.0}});
    Data(exact);
    EXPECT_EQ(Values(*exact), (std::vector<double>{1.0, -1.0}));
}

TEST_F(Wavwrite, OddWidthsTakeWholeBytesAndKnowNoStep)
{
    EXPECT_EQ(Written(Row<double>({0.5}), 8000, 12).substr(32), // 2 bytes a frame, 12 bits
              Le16(2) + Le16(12) + "data" + Le32(2) + Shorts({16384}));
    EXPECT_EQ(Data(Row<double>({0.5, -1.0}), 4), Raw({192, 0}));
    EXPECT_EQ(Data(Row<double>({1.0}), 25), Le32(2147483647));
}

} // namespace
} // namespace lumora
