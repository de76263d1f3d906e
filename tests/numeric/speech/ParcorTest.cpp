#include "numeric/Sounds.h"
#include "support/EdgeNumbers.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

namespace lumora {
namespace {

using namespace test;

/// What an analysis answers and what it leaves in the caller's variables.
struct Analysis {
    Shape shape{};
    std::vector<double> table;
    std::int32_t window = 0;
    std::int32_t shift = 0;
    bool operator==(const Analysis&) const = default;
};
void PrintTo(const Analysis& analysis, std::ostream* out)
{
    *out << "window " << analysis.window << ", shift " << analysis.shift << ", table ";
    PrintTo(analysis.shape, out);
}

using Analyser = Variant (clsMatrix::*)(std::int32_t, std::int32_t&, std::int32_t&) const;

Analysis Analysed(const clsMatrix& sound, Analyser member, std::int32_t order, std::int32_t window,
                  std::int32_t shift)
{
    const Variant held = (sound.*member)(order, window, shift);
    const Ref<clsMatrix> table = held.As<Ref<clsMatrix>>();
    return {ShapeOf(*table), Values(*table), window, shift};
}

/// The plain stage loop, counting from 1: element 0 of each vector is not used.
void PlainStages(Sound f, std::int32_t order, std::vector<double>& table)
{
    const auto window = static_cast<std::int32_t>(f.size()) - 1;
    Sound b = f;
    const auto at = [](Sound& x, std::int32_t n) -> double& {
        return x.at(static_cast<std::size_t>(n));
    };
    for (std::int32_t m = 1; m <= order; ++m) {
        double num = 0.0;
        double ef = 0.0;
        double eb = 0.0;
        for (std::int32_t n = order + 1; n <= window; ++n) {
            num += at(f, n) * at(b, n - 1);
            ef += at(f, n) * at(f, n);
            eb += at(b, n - 1) * at(b, n - 1);
        }
        const double den = ef + eb;
        const double k = den <= 1e-10 ? 0.0 : 2.0 * num / den;
        Sound fo = f;
        Sound bo = b;
        for (std::int32_t n = m + 1; n <= window; ++n) {
            at(f, n) = at(fo, n) - k * at(bo, n - 1);
            at(b, n) = at(bo, n - 1) - k * at(fo, n);
        }
        table.push_back(k);
    }
}

/// The plain analysis: frames over the sound with silence around it.
Analysis PlainAnalysis(const Sound& sound, std::int32_t order, std::int32_t window,
                       std::int32_t shift)
{
    const auto length = static_cast<std::int32_t>(sound.size());
    if (window == 0 || window > length) window = length;
    if (shift == 0) shift = window / 3;
    std::int32_t pad = 0;
    std::int32_t frames = 1;
    if (window < length) {
        if (shift > window) shift = window;
        pad = (window - shift) / 2;
        if ((window - shift) % 2 != 0) --shift;
        frames = (length + shift - 1) / shift;
    }
    const std::int32_t step = frames > 1 ? shift : 0;
    Sound buffer(static_cast<std::size_t>((frames - 1) * step + window), 0.0);
    for (std::size_t n = 0; n < sound.size(); ++n)
        buffer.at(static_cast<std::size_t>(pad) + n) = sound[n];

    Analysis plain{Sized(order, frames), {}, window, shift};
    for (std::int32_t t = 0; t < frames; ++t) {
        const auto begin = buffer.begin() + t * step;
        Sound frame{0.0};
        frame.insert(frame.end(), begin, begin + window);
        PlainStages(frame, order, plain.table);
    }
    return plain;
}

TEST(Parcor, IsThePlainDoubleLoopBitForBit)
{
    constexpr std::uint32_t kSeed = 4901;
    std::mt19937 generator(kSeed);
    const auto pick = [&](int least, int most) {
        return std::uniform_int_distribution<std::int32_t>(least, most)(generator);
    };
    for (int round = 0; round < 150; ++round) {
        const Sound speech = SpeechLike(static_cast<std::size_t>(pick(10, 900)), kSeed);
        const std::int32_t order = pick(1, 26);
        // From here on no third of a window is a step of 1, which an odd rest would take away.
        const std::int32_t window = pick(0, 3) * pick(6, 130);
        const std::int32_t shift = pick(0, 1) * pick(2, 450);
        SCOPED_TRACE("seed " + std::to_string(kSeed) + ", round " + std::to_string(round));
        const Analysis plain = PlainAnalysis(speech, order, window, shift);
        EXPECT_EQ(Analysed(*RowOf(speech), &clsMatrix::Parcor_Burg, order, window, shift), plain);
        EXPECT_EQ(Analysed(*RowOf(speech), &clsMatrix::Parcor_Burg1, order, window, shift), plain);
        EXPECT_EQ(Analysed(*ColumnOf(speech), &clsMatrix::Parcor_Burg1, order, window, shift),
                  plain);
    }
}

TEST(Parcor, RecoversTheReflectionsOfFormantResonatorsWithinAPercent)
{
    for (const auto& formants : {kVowelA, kVowelI, kVowelU}) {
        const std::vector<double> predictor = PredictorOfFormants(formants);
        const std::vector<double> known = ReflectionsOfPredictor(predictor);
        const Sound vowel = Resonance(Noise(300'000, 4902), predictor);
        const Analysis found = Analysed(*RowOf(vowel), &clsMatrix::Parcor_Burg1,
                                        static_cast<std::int32_t>(known.size()), 0, 0);
        for (std::size_t m = 0; m < known.size(); ++m)
            EXPECT_NEAR(found.table[m], known[m], 0.01 * std::abs(known[m])) << "k " << m + 1;
    }
}

TEST(Parcor, OfASineIsTheCosineOfItsTurnAndThenMinusOne)
{
    // The sums go over whole periods, where the mean of x(n)*x(n-1) is that of x(n)^2 times cos(w).
    // Then x(n) + x(n-2) = 2*cos(w)*x(n-1) makes the two errors opposite.
    constexpr double kTurn = 2.0 * std::numbers::pi / 20.0;
    Sound sine(2 + 20 * 20);
    for (std::size_t n = 0; n < sine.size(); ++n)
        sine[n] = std::sin(kTurn * static_cast<double>(n));
    const Analysis found = Analysed(*RowOf(sine), &clsMatrix::Parcor_Burg1, 2, 0, 0);
    EXPECT_NEAR(found.table[0], std::cos(kTurn), 1e-12);
    EXPECT_NEAR(found.table[1], -1.0, 1e-9);
}

TEST(Parcor, TakesWindowAndShiftThatAreZeroFromTheSound)
{
    const Sound speech = SpeechLike(300, 1);
    const Analysis one = Analysed(*RowOf(speech), &clsMatrix::Parcor_Burg, 10, 0, 0);
    EXPECT_EQ(one.window, 300);
    EXPECT_EQ(one.shift, 100);
    EXPECT_EQ(one.shape, Sized(10, 1));
    const Analysis longer = Analysed(*RowOf(speech), &clsMatrix::Parcor_Burg, 10, 301, 7);
    EXPECT_EQ(longer.window, 300);
    EXPECT_EQ(longer.shift, 7);
    EXPECT_EQ(longer.table, one.table);
}

TEST(Parcor, FramesStandOverTheSoundWithSilenceAroundIt)
{
    const Sound speech = SpeechLike(300, 1);
    const Analysis framed = Analysed(*RowOf(speech), &clsMatrix::Parcor_Burg, 10, 120, 0);
    EXPECT_EQ(framed.window, 120);
    EXPECT_EQ(framed.shift, 40);
    EXPECT_EQ(framed.shape, Sized(10, 8));

    // Each column is the lone frame cut by hand from 400 samples with the sound from 41 on.
    Sound buffer(400, 0.0);
    std::copy(speech.begin(), speech.end(), buffer.begin() + 40);
    for (std::ptrdiff_t t = 0; t < 8; ++t) {
        const Sound frame(buffer.begin() + t * 40, buffer.begin() + t * 40 + 120);
        const Analysis alone = Analysed(*RowOf(frame), &clsMatrix::Parcor_Burg, 10, 0, 0);
        EXPECT_EQ(
            std::vector<double>(framed.table.begin() + t * 10, framed.table.begin() + t * 10 + 10),
            alone.table)
            << "frame " << t + 1;
    }
}

TEST(Parcor, AnOddRestTakesOneFromTheShiftButNotFromTheSilence)
{
    const Sound speech = SpeechLike(100, 1);
    const Analysis framed = Analysed(*RowOf(speech), &clsMatrix::Parcor_Burg1, 2, 31, 10);
    EXPECT_EQ(framed.shift, 9);
    EXPECT_EQ(framed.shape, Sized(2, 12));
    // Int((31 - 10)/2) = 10 samples of silence; with the changed shift it would be 11.
    Sound first(10, 0.0);
    first.insert(first.end(), speech.begin(), speech.begin() + 21);
    const Analysis alone = Analysed(*RowOf(first), &clsMatrix::Parcor_Burg1, 2, 0, 0);
    EXPECT_EQ(std::vector<double>(framed.table.begin(), framed.table.begin() + 2), alone.table);
}

TEST(Parcor, AShiftBeyondTheWindowBecomesTheWindow)
{
    const Analysis framed =
        Analysed(*RowOf(SpeechLike(100, 1)), &clsMatrix::Parcor_Burg, 3, 30, 1000);
    EXPECT_EQ(framed.shift, 30);
    EXPECT_EQ(framed.shape, Sized(3, 4));
    // A lone frame has no use for it.
    EXPECT_EQ(Analysed(*RowOf(SpeechLike(100, 1)), &clsMatrix::Parcor_Burg, 3, 100, 1000).shift,
              1000);
}

TEST(Parcor, OfOrderOneIsARow)
{
    const Analysis framed = Analysed(*RowOf(SpeechLike(100, 1)), &clsMatrix::Parcor_Burg, 1, 20, 4);
    EXPECT_EQ(framed.shape, Sized(1, 25));
}

TEST(Parcor, OfSilenceIsZero)
{
    const std::vector<double> zeros(5, 0.0);
    EXPECT_EQ(Analysed(*RowOf(Sound(50, 0.0)), &clsMatrix::Parcor_Burg, 5, 0, 0).table, zeros);
    // Ten pairs of samples: 20 squares of 2^-19 are below 1e-10, those of 2^-18 above.
    EXPECT_EQ(Analysed(*RowOf(Sound(11, std::ldexp(1.0, -19))), &clsMatrix::Parcor_Burg, 1, 0, 0)
                  .table[0],
              0.0);
    EXPECT_EQ(Analysed(*RowOf(Sound(11, std::ldexp(1.0, -18))), &clsMatrix::Parcor_Burg, 1, 0, 0)
                  .table[0],
              1.0);
}

TEST(Parcor, OfAFrameOfNoMoreSamplesThanCoefficientsIsZero)
{
    const Sound speech = SpeechLike(40, 1);
    for (const std::int32_t order : {40, 41, 1000})
        EXPECT_EQ(Analysed(*RowOf(speech), &clsMatrix::Parcor_Burg, order, 0, 0).table,
                  std::vector<double>(static_cast<std::size_t>(order), 0.0));
    const Analysis framed = Analysed(*RowOf(speech), &clsMatrix::Parcor_Burg1, 12, 10, 10);
    EXPECT_EQ(framed.table, std::vector<double>(48, 0.0));
    EXPECT_NE(Analysed(*RowOf(speech), &clsMatrix::Parcor_Burg, 39, 0, 0).table[0], 0.0);
}

TEST(Parcor, OfFewerThanTenSamplesIsOneMessage)
{
    const Sound nine = SpeechLike(9, 1);
    for (const Analyser member : {&clsMatrix::Parcor_Burg, &clsMatrix::Parcor_Burg1})
        for (const Ref<clsMatrix>& sound :
             {RowOf(nine), ColumnOf(nine), Shaped(Sound(450), 9, 50), MakeRef<clsMatrix>()}) {
            MessageRecorder messages;
            std::int32_t window = 0;
            std::int32_t shift = 0;
            EXPECT_TRUE(((*sound).*member)(2, window, shift).IsEmpty());
            EXPECT_EQ(messages.shown, Shown{Plain("Vector of sound is veri small")});
            EXPECT_EQ(window, 0);
            EXPECT_EQ(shift, 0);
        }
    EXPECT_EQ(Analysed(*RowOf(SpeechLike(10, 1)), &clsMatrix::Parcor_Burg, 2, 0, 0).shape,
              Sized(2, 1));
}

TEST(ParcorBurg, RefusesAColumnAsALoneFrameOnly)
{
    const Ref<clsMatrix> column = ColumnOf(SpeechLike(60, 1));
    std::int32_t window = 0;
    std::int32_t shift = 0;
    EXPECT_EQ(Raised([&] { column->Parcor_Burg(4, window, shift); }), 9);
    EXPECT_EQ(window, 60);
    EXPECT_EQ(shift, 20);
    EXPECT_EQ(Analysed(*column, &clsMatrix::Parcor_Burg, 4, 30, 10),
              Analysed(*column, &clsMatrix::Parcor_Burg1, 4, 30, 10));
}

TEST(Parcor, StopsWhereThereIsNoFrame)
{
    struct Case {
        std::int32_t order, window, shift;
        int error;
    };
    const Case cases[] = {
        {2, 10, 1, 11},        {2, 2, 0, 11},
        {2, 1, 0, 9},          {2, 4, 1, 11},
        {0, 0, 0, 9},          {-1, 0, 0, 9},
        {0, 20, 10, 9},        {-3, 20, 10, 9},
        {2, -1, 0, 9},         {2, -60, 20, 9},
        {2, -7, -3, 9},        {2, 20, -2, 9},
        {2, 20, -1, 9},        {2, 20, -100, 9},
        {2, kLeast32, 0, 9},   {2, kLeast32, 5, 9},
        {2, 20, kLeast32, 9},  {2, 21, kLeast32, 6},
        {kLeast32, 20, 10, 9}, {2, kLeast32, kLeast32, 9},
    };
    const Sound speech = SpeechLike(60, 1);
    for (const Analyser member : {&clsMatrix::Parcor_Burg, &clsMatrix::Parcor_Burg1})
        for (Case c : cases) {
            SCOPED_TRACE("order " + std::to_string(c.order) + ", window " +
                         std::to_string(c.window) + ", shift " + std::to_string(c.shift));
            EXPECT_EQ(Raised([&] { ((*RowOf(speech)).*member)(c.order, c.window, c.shift); }),
                      c.error);
        }
}

TEST(Parcor, LeavesTheShiftThatFailedInTheCallersVariable)
{
    std::int32_t window = 10;
    std::int32_t shift = 1;
    EXPECT_EQ(Raised([&] { RowOf(SpeechLike(60, 1))->Parcor_Burg(2, window, shift); }), 11);
    EXPECT_EQ(shift, 0);
    // The smallest windows whose third is a step.
    EXPECT_EQ(Analysed(*RowOf(SpeechLike(60, 1)), &clsMatrix::Parcor_Burg, 1, 3, 0).shift, 1);
}

TEST(Parcor, KnowsNeitherAMatrixNorBeliedSizes)
{
    std::int32_t window = 0;
    std::int32_t shift = 0;
    EXPECT_EQ(Raised([&] { Shaped(Sound(40), 20, 2)->Parcor_Burg1(2, window, shift); }), 9);
    const Ref<clsMatrix> belied = RowOf(SpeechLike(60, 1));
    belied->size2 = 61;
    EXPECT_EQ(Raised([&] { belied->Parcor_Burg1(2, window, shift); }), 9);
}

TEST(Parcor, OverflowIsAnErrorUnlessTheSamplesAreNoNumbers)
{
    std::int32_t window = 0;
    std::int32_t shift = 0;
    EXPECT_EQ(Raised([&] { RowOf(Sound(20, 1e200))->Parcor_Burg(2, window, shift); }), 6);
    // An energy that overflows would give a quotient of zero.
    Sound lonely(20, 0.0);
    lonely[10] = 1e200;
    EXPECT_EQ(Raised([&] { RowOf(lonely)->Parcor_Burg(2, window, shift); }), 6);

    Sound odd = SpeechLike(40, 1);
    odd[35] = kInfinity;
    const Analysis passed = Analysed(*RowOf(odd), &clsMatrix::Parcor_Burg, 2, 10, 10);
    EXPECT_TRUE(std::isfinite(passed.table[0]));
    EXPECT_TRUE(std::isnan(passed.table[6]));
}

TEST(Parcor, LeavesTheSoundAlone)
{
    const Sound speech = SpeechLike(60, 1);
    const Ref<clsMatrix> row = RowOf(speech);
    Analysed(*row, &clsMatrix::Parcor_Burg, 4, 0, 0);
    Analysed(*row, &clsMatrix::Parcor_Burg1, 4, 20, 10);
    EXPECT_EQ(Values(*row), speech);
}

TEST(Parcor, LongestNumbersOfSamplesAreCutToTheSound)
{
    const Analysis found =
        Analysed(*RowOf(SpeechLike(60, 1)), &clsMatrix::Parcor_Burg, 4, kMost32, kMost32);
    EXPECT_EQ(found.window, 60);
    EXPECT_EQ(found.shift, kMost32);
}

} // namespace
} // namespace lumora
