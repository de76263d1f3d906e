// The fast core against the plain one: the same bits for every sample, on every road through it.

#include "engine/ClsWsolaQuick.h"

#include "engine/PlainWsola.h"
#include "engine/SoundKinds.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <ostream>
#include <span>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace lumora {
namespace {

using test::Between;
using test::Generator;
using test::PlainWsola;
using test::Shorts16;

/// One call. Where `shorts` is not empty, it is `samples` times 32768.
struct Call {
    std::vector<double> samples;
    Shorts16 shorts;
    double scale = 1.0;
};
using Calls = std::vector<Call>;

struct Sizes {
    int rate_hz;
    int N, S;
    int calls; ///< of one sound: fewer where they are longer
};
void PrintTo(const Sizes& sizes, std::ostream* out)
{
    *out << sizes.rate_hz << " Hz";
}
constexpr Sizes kSizes[] = {
    {2206, 22, 1, 300},   {8000, 80, 2, 200},     {11025, 110, 2, 200}, {16000, 160, 4, 120},
    {22050, 220, 5, 120}, {32000, 319, 7, 60},    {44100, 440, 10, 40}, {48000, 479, 11, 40},
    {96000, 958, 22, 16}, {192000, 1916, 44, 10},
};

double SomeScale(Generator& generator)
{
    constexpr double kOften[] = {0.35, 0.5, 0.7937005259840998, 0.999, 1.0, 1.001, 1.5, 2.0};
    const int pick = Between(generator, 0, 15);
    if (pick < 8) return kOften[pick];
    return std::uniform_real_distribution<double>(0.35, 2.0)(generator);
}

Calls OfShorts(const Shorts16& sound, int N)
{
    Calls calls(sound.size() / static_cast<std::size_t>(N));
    auto from = sound.begin();
    for (Call& call : calls) {
        call.shorts.assign(from, from + N);
        for (std::int16_t value : call.shorts)
            call.samples.push_back(value / 32768.0);
        from += N;
    }
    return calls;
}

Calls OfDoubles(Generator& generator, const Sizes& sizes, std::function<double(Generator&)> next)
{
    Calls calls(static_cast<std::size_t>(sizes.calls));
    for (Call& call : calls)
        for (int i = 0; i < sizes.N; ++i)
            call.samples.push_back(next(generator));
    return calls;
}

double Uniform(Generator& generator)
{
    return std::uniform_real_distribution<double>(-1.0, 1.0)(generator);
}

/// Samples of widely different sizes, so that every order of summing gives other bits.
double OfAnySize(Generator& generator)
{
    return std::ldexp(Uniform(generator), -Between(generator, 0, 60));
}

double NearTheBoundOfSilence(Generator& generator)
{
    return Uniform(generator) * 1e-5;
}

/// Now and then a block that no 16-bit file could hold.
Calls Mixed(Generator& generator, const Sizes& sizes)
{
    const std::size_t count = static_cast<std::size_t>(sizes.calls * sizes.N);
    Calls calls = OfShorts(test::Music(generator, count, sizes.rate_hz), sizes.N);
    for (Call& call : calls)
        if (Between(generator, 0, 7) == 0) {
            call.shorts.clear();
            for (double& sample : call.samples)
                sample += Uniform(generator) * 1e-3;
        }
    return calls;
}

/// The bits that come out of one fast core.
class Fast {
public:
    enum class Road { Arrays, Spans, Shorts };

    Fast(const Sizes& sizes, VectorWidth width, Road road) : core_(width), road_(road)
    {
        core_.SetUp(static_cast<std::int16_t>(sizes.N), static_cast<std::int16_t>(sizes.S), 20);
    }

    std::vector<double> Operation(const Call& call)
    {
        if (road_ == Road::Arrays) {
            Array<double> block(static_cast<std::int64_t>(call.samples.size()));
            std::copy(call.samples.begin(), call.samples.end(), block.Span().begin());
            const Array<double> result = core_.Wsola_Operation(block, call.scale);
            return {result.Span().begin(), result.Span().end()};
        }
        const bool shorts = road_ == Road::Shorts && !call.shorts.empty();
        const auto result =
            shorts ? core_.Stretch(std::span<const std::int16_t>(call.shorts), call.scale)
                   : core_.Stretch(std::span<const double>(call.samples), call.scale);
        return {result.begin(), result.end()};
    }

private:
    ClsWsolaQuick core_;
    Road road_;
};

void ExpectSameBits(const std::vector<double>& fast, const std::vector<double>& plain)
{
    ASSERT_EQ(fast.size(), plain.size());
    for (std::size_t i = 0; i < plain.size(); ++i)
        ASSERT_EQ(std::bit_cast<std::uint64_t>(fast[i]), std::bit_cast<std::uint64_t>(plain[i]))
            << "sample " << i + 1 << ": " << fast[i] << " for " << plain[i];
}

class AgainstPlain : public testing::TestWithParam<Sizes> {
protected:
    /// One scale for all calls. Answers how often the plain core searched.
    int CompareAtOneScale(Calls calls)
    {
        const double scale = SomeScale(generator);
        for (Call& call : calls)
            call.scale = scale;
        return Compare(calls);
    }

    int Compare(const Calls& calls)
    {
        PlainWsola plain(GetParam().N, GetParam().S, 20);
        std::vector<std::unique_ptr<Fast>> cores;
        for (VectorWidth width : VectorWidths())
            for (auto road : {Fast::Road::Spans, Fast::Road::Shorts})
                cores.push_back(std::make_unique<Fast>(GetParam(), width, road));
        cores.push_back(std::make_unique<Fast>(GetParam(), WidestVectors(), Fast::Road::Arrays));
        for (std::size_t c = 0; c < calls.size() && !HasFatalFailure(); ++c) {
            const std::vector<double> expected = plain.Operation(calls[c].samples, calls[c].scale);
            for (std::size_t k = 0; k < cores.size() && !HasFatalFailure(); ++k) {
                SCOPED_TRACE("call " + std::to_string(c + 1) + ", scale " +
                             std::to_string(calls[c].scale) + ", core " + std::to_string(k));
                ExpectSameBits(cores[k]->Operation(calls[c]), expected);
            }
        }
        return plain.Searches();
    }

    std::size_t Count() const { return static_cast<std::size_t>(GetParam().calls * GetParam().N); }

    Generator generator{static_cast<std::uint64_t>(GetParam().rate_hz)};
};
INSTANTIATE_TEST_SUITE_P(Rate, AgainstPlain, testing::ValuesIn(kSizes),
                         [](const auto& one) { return std::to_string(one.param.rate_hz); });

TEST_P(AgainstPlain, SixteenBitSoundsGiveTheSameBits)
{
    const auto N = static_cast<std::size_t>(GetParam().N);
    const auto S = static_cast<std::size_t>(GetParam().S);
    const std::pair<const char*, Shorts16> sounds[] = {
        {"noise", test::Noise(generator, Count())},
        {"music", test::Music(generator, Count(), GetParam().rate_hz)},
        {"more music", test::Music(generator, Count(), GetParam().rate_hz)},
        {"eight bits", test::EightBits(generator, Count())},
        {"clipped runs", test::ClippedRuns(generator, Count(), N)},
        {"short clipped runs", test::ClippedRuns(generator, Count(), 5)},
        {"square wave", test::SquareWave(Count(), N / 2)},
        {"almost silent", test::AlmostSilent(generator, Count())},
        {"quiet noise", test::Noise(generator, Count(), -3, 3)},
        {"period S", test::Periodic(generator, Count(), 2 * S)},
        {"period 7", test::Periodic(generator, Count(), 7)},
        {"lowest value", Shorts16(Count(), -32768)},
        {"constant", Shorts16(Count(), 12345)},
        {"silence", Shorts16(Count(), 0)},
    };
    int searches = 0;
    for (const auto& [name, sound] : sounds) {
        SCOPED_TRACE(name);
        searches += CompareAtOneScale(OfShorts(sound, GetParam().N));
        if (HasFatalFailure()) return;
    }
    EXPECT_GT(searches, 10);
}

TEST_P(AgainstPlain, SoundsOfAnyDoublesGiveTheSameBits)
{
    int searches = 0;
    for (auto next : {Uniform, OfAnySize, NearTheBoundOfSilence}) {
        searches += CompareAtOneScale(OfDoubles(generator, GetParam(), next));
        if (HasFatalFailure()) return;
    }
    for (int k = 0; k < 3; ++k) {
        searches += CompareAtOneScale(Mixed(generator, GetParam()));
        if (HasFatalFailure()) return;
    }
    EXPECT_GT(searches, 3);
}

TEST_P(AgainstPlain, AScaleThatChangesBetweenCallsGivesTheSameBits)
{
    // Each scale stays a while, and only those that the positions can follow are used: from a
    // change on, a call may need more frames than it can add, which both cores must notice alike.
    std::size_t compared = 0;
    for (int k = 0; k < 3; ++k) {
        Calls calls = Mixed(generator, GetParam());
        double scale = 1.0;
        for (Call& call : calls) {
            if (Between(generator, 0, 3) == 0) scale = 0.6 + Between(generator, 0, 100) / 125.0;
            call.scale = scale;
        }
        PlainWsola plain(GetParam().N, GetParam().S, 20);
        std::size_t good = 0;
        try {
            for (; good < calls.size(); ++good)
                plain.Operation(calls[good].samples, calls[good].scale);
        } catch (const std::out_of_range&) {
            Fast fast(GetParam(), WidestVectors(), Fast::Road::Shorts);
            for (std::size_t c = 0; c < good; ++c)
                fast.Operation(calls[c]);
            EXPECT_THROW(fast.Operation(calls[good]), RunTimeError) << "call " << good + 1;
        }
        calls.resize(good);
        compared += good;
        Compare(calls);
        if (HasFatalFailure()) return;
    }
    EXPECT_GT(compared, 10U);
}

/// Scales one after the other, so that no part of the range is left to chance.
TEST(ClsWsolaQuick, GivesTheSameBitsAsThePlainOneAtEveryScale)
{
    constexpr Sizes kAt = {11025, 110, 2, 60};
    Generator generator(7);
    const std::size_t count = static_cast<std::size_t>(kAt.calls * kAt.N);
    const Calls calls = OfShorts(test::Music(generator, count, kAt.rate_hz), kAt.N);
    int searches = 0;
    for (int k = 35; k <= 200; k += 3) {
        PlainWsola plain(kAt.N, kAt.S, 20);
        Fast fast(kAt, WidestVectors(), Fast::Road::Shorts);
        for (Call call : calls) {
            call.scale = k / 100.0;
            SCOPED_TRACE(call.scale);
            ExpectSameBits(fast.Operation(call), plain.Operation(call.samples, call.scale));
            if (HasFatalFailure()) return;
        }
        searches += plain.Searches();
    }
    EXPECT_GT(searches, 300);
}

} // namespace
} // namespace lumora
