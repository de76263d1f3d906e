#include "numeric/Sounds.h"
#include "support/EdgeNumbers.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace lumora {
namespace {

using namespace test;

/// A vector that counts from 1 and knows its ends.
struct Counted {
    Sound values;
    double& operator()(std::ptrdiff_t n) { return values.at(static_cast<std::size_t>(n - 1)); }
    std::ptrdiff_t Size() const { return static_cast<std::ptrdiff_t>(values.size()); }
};

/// The plain step-up recursion.
Counted PlainPredictor(Counted k)
{
    Counted a{{k(1)}};
    for (std::ptrdiff_t m = 2; m <= k.Size(); ++m) {
        Counted t{Sound(static_cast<std::size_t>(m))};
        for (std::ptrdiff_t i = 1; i < m; ++i)
            t(i) = a(i) - k(m) * a(m - i);
        t(m) = k(m);
        a = t;
    }
    return a;
}

/// Column t of a table.
Counted Column(const clsMatrix& table, std::int32_t t)
{
    Counted column;
    for (std::int32_t m = 1; m <= table.size1; ++m)
        column.values.push_back(table.Real(m, t));
    return column;
}

/// The plain prediction error filter, its state shifted sample by sample.
Sound PlainResidual(Counted x, const clsMatrix& table, Counted state, std::ptrdiff_t frame)
{
    const std::ptrdiff_t order = table.size1;
    const std::ptrdiff_t frames = x.Size() / frame;
    Counted e{Sound(x.values.size(), 0.0)};
    for (std::ptrdiff_t t = 1; t <= frames; ++t) {
        Counted a = PlainPredictor(Column(table, static_cast<std::int32_t>(t)));
        const std::ptrdiff_t last = t == frames ? x.Size() : t * frame;
        std::ptrdiff_t n = (t - 1) * frame + 1;
        for (; t == 1 && n <= order; ++n) {
            double s = 0.0;
            for (std::ptrdiff_t j = 1; j <= order; ++j)
                s += a(j) * state(order - j + 1);
            for (std::ptrdiff_t j = 1; j < order; ++j)
                state(j) = state(j + 1);
            state(order) = x(n);
            e(n) = x(n) - s;
        }
        for (; n <= last; ++n) {
            double s = 0.0;
            for (std::ptrdiff_t j = 1; j <= order; ++j)
                s += a(j) * x(n - j);
            e(n) = x(n) - s;
        }
    }
    return e.values;
}

/// Reflections of one frame for a tract of another length: areas, areas in between, reflections.
Counted PlainScaled(Counted k, double tract)
{
    const std::ptrdiff_t order = k.Size();
    Counted area{{1.0}};
    for (std::ptrdiff_t m = 1; m <= order; ++m)
        area.values.push_back((1.0 - k(m)) * area(m) / (1.0 + k(m)));
    Counted scaled{{area(1)}};
    const double step = 1.0 / tract;
    const auto length = static_cast<std::ptrdiff_t>(std::floor(tract * double(order) + 1.0));
    for (std::ptrdiff_t i = 2; i <= length; ++i) {
        const double pos = double(i - 1) * step + 1.0;
        const auto p = static_cast<std::ptrdiff_t>(std::floor(pos));
        scaled.values.push_back(
            p + 1 > area.Size() ? area(p) : (area(p + 1) - area(p)) * (pos - double(p)) + area(p));
    }
    Counted r{Sound(static_cast<std::size_t>(std::nearbyint(double(order) * tract + 1.0)), 0.0)};
    for (std::ptrdiff_t m = 1; m < length; ++m) {
        if (scaled(m) <= 0.0) continue;
        const double q = scaled(m + 1) / scaled(m);
        r(m) = (1.0 - q) / (1.0 + q);
    }
    return r;
}

/// The plain synthesis filter.
Sound PlainSynthesis(Counted y, const clsMatrix& table, Counted state, double tract,
                     std::ptrdiff_t frame)
{
    const std::ptrdiff_t frames = y.Size() / frame;
    for (std::ptrdiff_t t = 1; t <= frames; ++t) {
        Counted a = PlainPredictor(PlainScaled(Column(table, static_cast<std::int32_t>(t)), tract));
        const std::ptrdiff_t order = a.Size();
        const std::ptrdiff_t last = t == frames ? y.Size() : t * frame;
        std::ptrdiff_t n = (t - 1) * frame + 1;
        for (; t == 1 && n <= order; ++n) {
            double s = 0.0;
            for (std::ptrdiff_t j = 1; j <= order; ++j)
                s += a(j) * state(state.Size() - j + 1);
            y(n) += s;
            for (std::ptrdiff_t j = state.Size() - order + 1; j < state.Size(); ++j)
                state(j) = state(j + 1);
            state(state.Size()) = y(n);
        }
        for (; n <= last; ++n) {
            double s = 0.0;
            for (std::ptrdiff_t j = 1; j <= order; ++j)
                s += a(j) * y(n - j);
            y(n) += s;
        }
    }
    return y.values;
}

Ref<clsMatrix> Parcor(const Sound& sound, std::int32_t order, std::int32_t window,
                      std::int32_t shift)
{
    return RowOf(sound)->Parcor_Burg1(order, window, shift).As<Ref<clsMatrix>>();
}

/// Reflections of stable filters.
Ref<clsMatrix> RandomParcor(std::int32_t order, std::int32_t frames, std::mt19937& generator)
{
    std::uniform_real_distribution<double> reflection(-0.95, 0.95);
    Sound values(static_cast<std::size_t>(order) * static_cast<std::size_t>(frames));
    for (double& k : values)
        k = reflection(generator);
    return Shaped(values, order, frames);
}

TEST(PredLat, IsThePlainRecursionBitForBit)
{
    std::mt19937 generator(4903);
    for (std::int32_t order = 1; order <= 30; ++order) {
        const Ref<clsMatrix> k = RandomParcor(order, 1, generator);
        const Sound plain = PlainPredictor(Column(*k, 1)).values;
        EXPECT_EQ(Values(*k->Pred_Lat()), plain) << "order " << order;
        EXPECT_EQ(Values(*k->Transpose()->Pred_Lat()), plain);
        EXPECT_EQ(ShapeOf(*k->Pred_Lat()), Sized(1, order));
    }
}

TEST(PredLat, OfTheReflectionsOfResonatorsIsTheirPolynomial)
{
    for (const auto& formants : {kVowelA, kVowelI, kVowelU}) {
        const std::vector<double> predictor = PredictorOfFormants(formants);
        const Sound found = Values(*RowOf(ReflectionsOfPredictor(predictor))->Pred_Lat());
        for (std::size_t j = 0; j < predictor.size(); ++j)
            EXPECT_NEAR(found[j], predictor[j], 1e-9) << "a " << j + 1;
    }
}

TEST(PredLat, OfAMatrixOrNothingIsAnError)
{
    EXPECT_EQ(Raised([] { RealMatrix({{0.1, 0.2}, {0.3, 0.4}})->Pred_Lat(); }), 9);
    EXPECT_EQ(Raised([] { MakeRef<clsMatrix>()->Pred_Lat(); }), 9);
    EXPECT_EQ(Raised([] { RealMatrix({{1e200, 1e200}})->Pred_Lat(); }), 6);
    EXPECT_TRUE(std::isnan(RealMatrix({{kNan, 0.5}})->Pred_Lat()->Real(1, 1)));
}

TEST(ParcorResid, IsThePlainFilterBitForBit)
{
    constexpr std::uint32_t kSeed = 4904;
    std::mt19937 generator(kSeed);
    const auto pick = [&](int least, int most) {
        return std::uniform_int_distribution<std::int32_t>(least, most)(generator);
    };
    for (int round = 0; round < 100; ++round) {
        SCOPED_TRACE("seed " + std::to_string(kSeed) + ", round " + std::to_string(round));
        const std::int32_t order = pick(1, 24);
        const std::int32_t frame = order + pick(0, 60);
        const std::int32_t frames = pick(1, 6);
        const auto length = static_cast<std::size_t>(frames * frame + pick(0, frame - 1));
        const Sound x = Noise(length, kSeed + static_cast<std::uint32_t>(round));
        const Sound start = Noise(static_cast<std::size_t>(order), kSeed);
        const Ref<clsMatrix> table = RandomParcor(order, frames, generator);
        const Sound plain = PlainResidual({x}, *table, {start}, frame);
        const Ref<clsMatrix> e = RowOf(x)->Parcor_Resid(*table, *RowOf(start), frame);
        EXPECT_EQ(Values(*e), plain);
        EXPECT_EQ(ShapeOf(*e), Sized(1, static_cast<std::int32_t>(length)));
        EXPECT_EQ(Values(*ColumnOf(x)->Parcor_Resid(*table, *ColumnOf(start), frame)), plain);
        // A longer past: only its last samples count.
        Sound longer{7.0, -3.0};
        longer.insert(longer.end(), start.begin(), start.end());
        EXPECT_EQ(Values(*RowOf(x)->Parcor_Resid(*table, *RowOf(longer), frame)), plain);
    }
}

TEST(ParcorResid, TakesAwayWhatTheResonatorsAdded)
{
    const std::vector<double> predictor = PredictorOfFormants(kVowelA);
    const Sound excitation = Noise(500, 4905);
    const Ref<clsMatrix> table = ColumnOf(ReflectionsOfPredictor(predictor));
    const Sound found = Values(
        *RowOf(Resonance(excitation, predictor))->Parcor_Resid(*table, *RowOf(Sound(8, 0.0)), 500));
    for (std::size_t n = 0; n < excitation.size(); ++n)
        ASSERT_NEAR(found[n], excitation[n], 1e-9) << n;
}

TEST(ParcorResid, RunsTheLastFrameOnToTheEnd)
{
    // First differences with coefficient 1, then sums with coefficient -1.
    const Ref<clsMatrix> table = RealMatrix({{1, -1}});
    const Ref<clsMatrix> x = RealMatrix({{1, 2, 4, 8, 16, 32, 64, 128}});
    EXPECT_EQ(Values(*x->Parcor_Resid(*table, *RealMatrix({{10}}), 3)),
              (Sound{-9, 1, 2, 12, 24, 48, 96, 192}));
    // The only frame, with a tail of nearly a frame more.
    EXPECT_EQ(Values(*x->Parcor_Resid(*table, *RealMatrix({{10}}), 5)),
              (Sound{-9, 1, 2, 4, 8, 16, 32, 64}));
}

TEST(ParcorResid, ASingleColumnServesAllFrames)
{
    const Sound x = Noise(50, 4906);
    const Ref<clsMatrix> column = RealMatrix({{0.9}, {-0.5}});
    const Ref<clsMatrix> repeated =
        RealMatrix({{0.9, 0.9, 0.9, 0.9, 0.9}, {-0.5, -0.5, -0.5, -0.5, -0.5}});
    const Ref<clsMatrix> start = RealMatrix({{0, 0}});
    EXPECT_EQ(Values(*RowOf(x)->Parcor_Resid(*column, *start, 10)),
              Values(*RowOf(x)->Parcor_Resid(*repeated, *start, 10)));
}

TEST(ParcorResid, MissesTheColumnOfAFrame)
{
    MessageRecorder messages;
    const Ref<clsMatrix> table = RealMatrix({{0.9, 0.8}, {-0.5, -0.4}});
    const Ref<clsMatrix> start = RealMatrix({{0, 0, 0}});
    EXPECT_EQ(Raised([&] { RowOf(Noise(30, 1))->Parcor_Resid(*table, *start, 10); }), 91);
    EXPECT_EQ(messages.Take(), Shown{Plain("Index exceeds matrix dimensions Or Top > Buttom  Or  "
                                           "Left > Right.")});
    const Ref<clsMatrix> upright = RealMatrix({{0.9, 0.8}, {-0.5, -0.4}, {0, 0}});
    EXPECT_EQ(Raised([&] {
                  RowOf(Noise(30, 1))->Parcor_Direct(*upright, *RealMatrix({{0, 0, 0, 0}}), 1, 10);
              }),
              91);
    EXPECT_EQ(messages.shown.size(), 1U);
}

TEST(ParcorResid, IsZeroWithoutAFrame)
{
    const Ref<clsMatrix> table = RealMatrix({{0.9}, {0.1}, {0.2}});
    const Ref<clsMatrix> nothing = RealMatrix({{0}});
    EXPECT_EQ(Values(*RealMatrix({{1, 2}})->Parcor_Resid(*table, *nothing, 3)), (Sound{0, 0}));
    EXPECT_EQ(Values(*RealMatrix({{1, 2}})->Parcor_Direct(*table, *nothing, 1.0, 10)),
              (Sound{1, 2}));
}

TEST(ParcorResid, StopsWhereSamplesAreMissing)
{
    const auto resid = [](std::size_t length, std::int32_t order, std::size_t start,
                          std::int32_t frame) {
        const std::int32_t frames = 5;
        const Sound k(static_cast<std::size_t>(order * frames), 0.1);
        return Raised([&] {
            RowOf(Sound(length, 1.0))
                ->Parcor_Resid(*Shaped(k, order, frames), *RowOf(Sound(start, 0.0)), frame);
        });
    };
    EXPECT_EQ(resid(12, 4, 4, 4), 0);
    EXPECT_EQ(resid(12, 4, 3, 4), 9); // a past that is too short
    EXPECT_EQ(resid(12, 4, 4, 3), 9); // frames that are too short
    EXPECT_EQ(resid(5, 4, 4, 3), 0);  // the only frame goes on
    EXPECT_EQ(resid(3, 4, 4, 3), 9);  // not far enough
    EXPECT_EQ(resid(12, 4, 4, 0), 11);
    EXPECT_EQ(resid(12, 4, 4, -4), 5);
    const Ref<clsMatrix> x = RealMatrix({{1, 2, 3, 4}, {5, 6, 7, 8}});
    const Ref<clsMatrix> one = RealMatrix({{0.5}});
    EXPECT_EQ(Raised([&] { x->Parcor_Resid(*one, *one, 4); }), 9);
    EXPECT_EQ(Raised([&] { RealMatrix({{1, 2}})->Parcor_Resid(*one, *x, 2); }), 9);
    EXPECT_EQ(Raised([&] { MakeRef<clsMatrix>()->Parcor_Resid(*one, *one, 4); }), 9);
    EXPECT_EQ(Raised([&] { one->Parcor_Resid(*MakeRef<clsMatrix>(), *one, 1); }), 9);
    EXPECT_EQ(Raised([&] { one->Parcor_Resid(*one, *MakeRef<clsMatrix>(), 1); }), 9);
}

TEST(ParcorResid, OverflowIsAnErrorUnlessTheSamplesAreNoNumbers)
{
    const Ref<clsMatrix> one = RealMatrix({{-1.0}});
    EXPECT_EQ(Raised([&] { RealMatrix({{1.5e308, 1.5e308}})->Parcor_Resid(*one, *one, 2); }), 6);
    const Ref<clsMatrix> passed = RealMatrix({{1.0, kNan, 1.0, 1.0}})->Parcor_Resid(*one, *one, 4);
    EXPECT_TRUE(std::isnan(passed->Real(1, 3)));
    EXPECT_EQ(passed->Real(1, 4), 2.0);
}

TEST(ParcorDirect, IsThePlainFilterBitForBit)
{
    constexpr std::uint32_t kSeed = 4907;
    std::mt19937 generator(kSeed);
    const auto pick = [&](int least, int most) {
        return std::uniform_int_distribution<std::int32_t>(least, most)(generator);
    };
    for (int round = 0; round < 100; ++round) {
        SCOPED_TRACE("seed " + std::to_string(kSeed) + ", round " + std::to_string(round));
        const std::int32_t order = pick(4, 26);
        const std::int32_t frame = 10 * (order - 2);
        const double tract = 0.05 * pick(1, round % 2 == 0 ? 20 : 14);
        const auto past = static_cast<std::size_t>(std::nearbyint(order * tract + 1.0));
        const std::int32_t frames = pick(static_cast<int>(past) > frame ? 2 : 1, 5);
        const auto length = static_cast<std::size_t>(frames * frame + pick(6, frame - 1));
        if (static_cast<int>(past) > frame) continue;
        const Sound x = Noise(length, kSeed + static_cast<std::uint32_t>(round));
        const Sound start = Noise(past + static_cast<std::size_t>(pick(0, 3)), kSeed);
        // One column more than frames, so that the table is not a column when it is turned.
        const Ref<clsMatrix> table = RandomParcor(order, frames + 1, generator);
        const Sound plain = PlainSynthesis({x}, *table, {start}, tract, frame);
        const Ref<clsMatrix> y = RowOf(x)->Parcor_Direct(*table, *RowOf(start), tract, frame);
        EXPECT_EQ(Values(*y), plain);
        EXPECT_EQ(ShapeOf(*y), Sized(1, static_cast<std::int32_t>(length)));
        const Ref<clsMatrix> column = ColumnOf(x);
        EXPECT_EQ(Values(*column->Parcor_Direct(*table, *ColumnOf(start), tract, frame)), plain);
        EXPECT_EQ(Values(*column), x);
        if (frames + 1 == order) continue;
        EXPECT_EQ(
            Values(*RowOf(x)->Parcor_Direct(*table->Transpose(), *RowOf(start), tract, frame)),
            plain);
    }
}

TEST(ParcorDirect, LengthensTheTract)
{
    // A tract a quarter longer: more tubes than coefficients, and their areas in between.
    std::mt19937 generator(4908);
    const Ref<clsMatrix> table = RandomParcor(12, 4, generator);
    const Sound x = Noise(450, 4908);
    for (const double tract : {1.1, 1.25, 1.5, 2.0, 3.7}) {
        const Sound start(static_cast<std::size_t>(std::nearbyint(12 * tract + 1.0)), 0.0);
        EXPECT_EQ(Values(*RowOf(x)->Parcor_Direct(*table, *RowOf(start), tract, 100)),
                  PlainSynthesis({x}, *table, {start}, tract, 100))
            << tract;
    }
}

TEST(ParcorDirect, OfTheResidualIsTheSound)
{
    const Sound speech = SpeechLike(22050, 4909);
    for (std::int32_t order = 4; order <= 24; ++order) {
        const std::int32_t frame = 10 * (order - 2);
        const Ref<clsMatrix> table = Parcor(speech, order, 3 * frame, frame);
        const Ref<clsMatrix> start = RowOf(Sound(static_cast<std::size_t>(order) + 1, 0.0));
        const Ref<clsMatrix> residual = RowOf(speech)->Parcor_Resid(*table, *start, frame);
        const Sound back = Values(*residual->Parcor_Direct(*table, *start, 1.0, frame));
        double worst = 0.0;
        for (std::size_t n = 0; n < speech.size(); ++n)
            worst = std::max(worst, std::abs(back[n] - speech[n]));
        EXPECT_LT(worst, 1e-9) << "order " << order;
        // The residual is not the sound: there was something to give back.
        EXPECT_LT(RowOf(Values(*residual))->TimesR(*residual)->Max(), 1.0);
        EXPECT_NE(Values(*residual), speech);
    }
}

TEST(ParcorDirect, TurnsATableWhoseRowsAreNotThoseOfItsFrames)
{
    std::mt19937 generator(4910);
    const Ref<clsMatrix> by_column = RandomParcor(24, 3, generator);
    const Ref<clsMatrix> by_row = by_column->Transpose();
    const Ref<clsMatrix> start = RowOf(Sound(25, 0.0));
    const Sound x = Noise(700, 1);
    const Sound plain = PlainSynthesis({x}, *by_column, {Sound(25, 0.0)}, 1.0, 220);
    EXPECT_EQ(Values(*RowOf(x)->Parcor_Direct(*by_column, *start, 1.0, 220)), plain);
    EXPECT_EQ(Values(*RowOf(x)->Parcor_Direct(*by_row, *start, 1.0, 220)), plain);
    // 225/10 + 2 is no number of rows: any table is turned.
    EXPECT_EQ(Values(*RowOf(x)->Parcor_Direct(*by_row, *start, 1.0, 225)),
              PlainSynthesis({x}, *by_column, {Sound(25, 0.0)}, 1.0, 225));
    EXPECT_EQ(Values(*RowOf(x)->Parcor_Direct(*by_column, *start, 1.0, 225)),
              PlainSynthesis({x}, *by_row, {Sound(4, 0.0)}, 1.0, 225));
}

TEST(ParcorDirect, StopsAtATubeWithoutEnd)
{
    const auto direct = [](const Sound& k, double tract, std::size_t start) {
        return Raised([&] {
            RowOf(Sound(4000, 1.0))
                ->Parcor_Direct(*ColumnOf(k), *RowOf(Sound(start, 0.0)), tract, 20);
        });
    };
    EXPECT_EQ(direct({0.5, 0.5, 0.5, 0.5}, 1.0, 5), 0);
    EXPECT_EQ(direct({0.5, -1.0, 0.5, 0.5}, 1.0, 5), 11);
    // Neighbours of opposite areas.
    EXPECT_EQ(direct({std::numeric_limits<double>::max(), 0.5, 0.5, 0.5}, 1.0, 5), 11);
    EXPECT_EQ(direct({0.5, 0.5, 0.5, 0.5}, 1.0, 4), 9);
    EXPECT_EQ(direct({0.5, 0.5, 0.5, 0.5}, 2.0, 8), 9);
    EXPECT_EQ(direct({0.5, 0.5, 0.5, 0.5}, 2.0, 9), 0);
    EXPECT_EQ(direct({0.5, 0.5, 0.5, 0.5}, kNan, 5), 6);
    EXPECT_EQ(direct({0.5, 0.5, 0.5, 0.5}, 1e9, 5), 6);
    EXPECT_EQ(direct({0.5, 0.5, 0.5, 0.5}, 1e8, 5), 9);
    // A reflection of 2 makes a filter that grows without end.
    EXPECT_EQ(direct({2.0, 0.0, 0.0, 0.0}, 1.0, 5), 6);
}

TEST(ParcorDirect, AClosedTubeReflectsAllAndNothingComesBehind)
{
    const Ref<clsMatrix> table = RealMatrix({{1.0}, {0.5}, {0.5}, {0.5}});
    const Ref<clsMatrix> start = RowOf(Sound(5, 0.0));
    // y(n) = x(n) + y(n-1): every reflection after the first is that of two areas of 0.
    EXPECT_EQ(Values(*RowOf(Sound(20, 1.0))->Parcor_Direct(*table, *start, 1.0, 20)),
              PlainSynthesis({Sound(20, 1.0)}, *RealMatrix({{1.0}, {0}, {0}, {0}}), {Sound(5, 0.0)},
                             1.0, 20));
    EXPECT_EQ(RowOf(Sound(20, 1.0))->Parcor_Direct(*table, *start, 1.0, 20)->Real(1, 20), 20.0);
}

TEST(ParcorDirect, ATractOfATubeOrLessPassesTheSound)
{
    const Sound x = Noise(45, 1);
    const Ref<clsMatrix> table = RealMatrix({{0.5, 0.1}, {0.5, 0.1}, {0.5, 0.1}, {0.5, 0.1}});
    EXPECT_EQ(Values(*RowOf(x)->Parcor_Direct(*table, *RealMatrix({{9}}), 0.1, 20)), x);
}

TEST(ParcorDirect, WithoutATractTellsOfItOnceAFrameAndPassesTheSound)
{
    MessageRecorder messages;
    const Sound x = Noise(45, 1); // four frames of ten samples, the last with a tail of five
    const Ref<clsMatrix> table =
        RealMatrix({{0.5, 0.1, 0.2, 0.3}, {0.5, 0.1, 0.2, 0.3}, {0.5, 0.1, 0.2, 0.3}});
    const Ref<clsMatrix> start = RealMatrix({{9}});
    EXPECT_EQ(Values(*RowOf(x)->Parcor_Direct(*table, *start, 0.0, 10)), x);
    EXPECT_EQ(messages.Take(), Shown(4, Plain("Koef for Compression-Expansion equal zero")));
    EXPECT_EQ(Values(*RowOf(Sound(9, 1.0))->Parcor_Direct(*table, *start, 0.0, 10)), Sound(9, 1.0));
    EXPECT_EQ(messages.Take(), Shown{}); // no frame
}

TEST(ParcorDirect, RunsWithANegativeTractThatLeavesOneTube)
{
    MessageRecorder messages;
    const Sound x = Noise(45, 1);
    const Ref<clsMatrix> table = RealMatrix({{0.5, 0.1}, {0.5, 0.1}, {0.5, 0.1}});
    const auto direct = [&](double tract, const Sound& sound) {
        return RowOf(sound)->Parcor_Direct(*table, *RealMatrix({{9}}), tract, 10);
    };
    // A single column of more than one row serves all frames.
    const Ref<clsMatrix> column = RealMatrix({{0.5}, {0.5}, {0.5}});
    EXPECT_EQ(Values(*RowOf(x)->Parcor_Direct(*column, *RealMatrix({{9}}), -0.1, 10)), x);
    EXPECT_EQ(Values(*direct(-0.1, Sound(20, 1.0))), Sound(20, 1.0));
    // Order 1 as far down as -0.5/3; then none, then fewer than none.
    EXPECT_EQ(Raised([&] { direct(-0.16, Sound(20, 1.0)); }), 0);
    EXPECT_EQ(Raised([&] { direct(-0.17, Sound(20, 1.0)); }), 9);
    EXPECT_EQ(Raised([&] { direct(-1.0, Sound(20, 1.0)); }), 9);
    EXPECT_EQ(Raised([&] { direct(-1e9, Sound(20, 1.0)); }), 6);
    EXPECT_EQ(Values(*direct(-1.0, Sound(9, 1.0))), Sound(9, 1.0)); // no frame
    EXPECT_EQ(messages.Take(), Shown{});
}

TEST(ParcorDirect, StopsAtAnythingButAVector)
{
    const Ref<clsMatrix> table = RealMatrix({{0.5}, {0.5}, {0.5}, {0.5}});
    const Ref<clsMatrix> start = RowOf(Sound(5, 0.0));
    const Ref<clsMatrix> wide = Shaped(Sound(60), 2, 30);
    EXPECT_EQ(Raised([&] { wide->Parcor_Direct(*table, *start, 1.0, 20); }), 9);
    EXPECT_EQ(Raised([&] { start->Parcor_Direct(*table, *wide, 1.0, 20); }), 9);
    EXPECT_EQ(Raised([&] { start->Parcor_Direct(*MakeRef<clsMatrix>(), *start, 1.0, 20); }), 9);
    // No frame length has no rows to tell the table by: two rows are expected, four are turned.
    EXPECT_EQ(Raised([&] { start->Parcor_Direct(*table, *start, 1.0, 0); }), 11);
    EXPECT_EQ(Raised([&] { start->Parcor_Direct(*table, *start, 1.0, -20); }), 5);
}

} // namespace
} // namespace lumora
