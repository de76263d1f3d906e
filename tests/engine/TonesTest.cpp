#include "engine/Tones.h"

#include <cmath>
#include <gtest/gtest.h>

namespace lumora {
namespace {

struct Tones {
    int count, numerator, denominator;
};

double Quotient(const Tones& tones)
{
    return QuotientOfTones(tones.count, tones.numerator, tones.denominator);
}

TEST(Tones, GiveTheQuotientsOfTheTableToSevenPlaces)
{
    constexpr std::pair<Tones, double> kTable[] = {
        {{6, 0, 1}, 0.5},        {{3, 0, 0}, 0.7071068},   {{1, 0, 64}, 0.8908987},
        {{0, 1, 2}, 0.9438743},  {{0, 1, 8}, 0.9856632},   {{0, 1, 16}, 0.9928057},
        {{0, 1, 32}, 0.9963964}, {{0, 1, 64}, 0.9981966},  {{0, -1, 64}, 1.0018067},
        {{-1, 0, 0}, 1.122462},  {{-2, -3, 8}, 1.3157025}, {{-6, 0, 1}, 2.0},
    };
    for (const auto& [tones, quotient] : kTable)
        EXPECT_NEAR(Quotient(tones), quotient, 0.5e-7) << tones.count << ' ' << tones.numerator;
    EXPECT_EQ(Quotient({6, 0, 1}), 0.5);
    EXPECT_EQ(Quotient({-6, 0, 0}), 2.0);
    EXPECT_EQ(Quotient({0, 0, 0}), 1.0);
}

TEST(Tones, AreTwoQuotientsAndThenTheirSum)
{
    // 2^x worked out to 60 places for x = numerator / (denominator x 6) + count / 6, each rounded
    // to a double; all tones over 6 at once would give a last digit less.
    EXPECT_EQ(Quotient({-5, -1, 8}), 0x1.cec65ce34ab6bp+0);
    EXPECT_EQ(Quotient({-5, -11, 16}), 0x1.edd882ae58c0ep+0);
    EXPECT_EQ(Quotient({-5, -1, 2}), 0x1.e3437e7101344p+0);
    EXPECT_EQ(Quotient({0, 1, 64}), 0x1.ff139e81d5a4dp-1);
}

TEST(Tones, DoNotDependOnHowAFractionIsWritten)
{
    for (int count = -5; count <= 5; ++count)
        for (int eighths = 1; eighths < 8; ++eighths) {
            const int sign = count < 0 ? -1 : 1;
            const double quotient = Quotient({count, sign * eighths, 8});
            EXPECT_EQ(Quotient({count, sign * eighths * 8, 64}), quotient);
            EXPECT_EQ(Quotient({count, sign * eighths * 2, 16}), quotient);
        }
}

TEST(Tones, HaveNoFractionWhereTheDenominatorIsZero)
{
    EXPECT_EQ(Quotient({1, 5, 0}), Quotient({1, 0, 8}));
    EXPECT_EQ(Quotient({0, -1, 0}), 1.0);
}

struct MadeOfTones {
    Tones tones;
    std::int32_t rate_hz;
    int stretched; ///< K: block x 2^(tones/6), to the nearest, half to even (239.5 is 240)
    int block;     ///< rate x 220 / 22050, to the nearest
};

TEST(CentsMade, AreTheQuotientOfTwoWholeBlockLengths)
{
    // By hand: 220 x 2^(1/384) = 220.4, 440 x 2^(1/48) = 446.4, 479 x 2^(-1/6) = 426.7.
    constexpr MadeOfTones kTable[] = {
        {{0, 1, 64}, 22050, 220, 220},  {{0, -1, 64}, 22050, 220, 220},
        {{0, 1, 64}, 44100, 441, 440},  {{0, 1, 8}, 44100, 446, 440},
        {{-1, 0, 0}, 48000, 427, 479},  {{6, 0, 0}, 22050, 440, 220},
        {{-6, 0, 0}, 22050, 110, 220},  {{-6, 0, 0}, 8000, 40, 80},
        {{1, 0, 0}, 8000, 90, 80},      {{3, 0, 0}, 11025, 156, 110},
        {{-2, -3, 8}, 44100, 334, 440}, {{-6, 0, 0}, 48000, 240, 479},
    };
    for (const auto& [tones, rate_hz, stretched, block] : kTable) {
        const double cents = 1200.0 * std::log2(static_cast<double>(stretched) / block);
        EXPECT_NEAR(CentsMade(Quotient(tones), rate_hz), cents, 1e-9)
            << tones.count << ' ' << tones.numerator << " at " << rate_hz;
    }
}

} // namespace
} // namespace lumora
