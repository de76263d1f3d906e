#include "base/Cosine.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace lumora {

namespace {

/// An unevaluated sum of two doubles, the second below the first's last bit (Dekker 1971).
struct Pair {
    double high = 0.0;
    double low = 0.0;
};

constexpr Pair TwoSum(double a, double b)
{
    const double sum = a + b;
    const double part = sum - a;
    return {sum, (a - (sum - part)) + (b - part)};
}

constexpr Pair TwoProduct(double a, double b)
{
    constexpr double kSplitter = 134217729.0; // 2^27 + 1
    const double a_scaled = kSplitter * a;
    const double b_scaled = kSplitter * b;
    const double a_high = a_scaled - (a_scaled - a);
    const double b_high = b_scaled - (b_scaled - b);
    const double a_low = a - a_high;
    const double b_low = b - b_high;
    const double product = a * b;
    return {product,
            ((a_high * b_high - product) + a_high * b_low + a_low * b_high) + a_low * b_low};
}

constexpr Pair operator+(Pair a, Pair b)
{
    const Pair high = TwoSum(a.high, b.high);
    const Pair low = TwoSum(a.low, b.low);
    const Pair sum = TwoSum(high.high, high.low + low.high);
    return TwoSum(sum.high, sum.low + low.low);
}

constexpr Pair operator*(Pair a, Pair b)
{
    const Pair product = TwoProduct(a.high, b.high);
    return TwoSum(product.high, product.low + (a.high * b.low + a.low * b.high));
}

constexpr Pair DividedBy(Pair a, double divisor)
{
    const double first = a.high / divisor;
    const Pair back = TwoProduct(first, divisor);
    const double rest = ((a.high - back.high) - back.low) + a.low;
    return TwoSum(first, rest / divisor);
}

/// 1/0!, -1/1!, 1/2!, -1/3!, ... by twos: the Taylor coefficients of cosine (first 0) and sine
/// (first 1) in powers of the square. Thirteen reach below 2^-105 on an eighth of a turn.
constexpr std::size_t kTerms = 14;
constexpr std::array<Pair, kTerms> TaylorCoefficients(int first)
{
    std::array<Pair, kTerms> terms{};
    Pair term{1.0, 0.0};
    int factor = first;
    for (Pair& t : terms) {
        t = term;
        term = DividedBy(DividedBy(term, factor + 1), -(factor + 2.0));
        factor += 2;
    }
    return terms;
}
constexpr auto kCosineTerms = TaylorCoefficients(0);
constexpr auto kSineTerms = TaylorCoefficients(1);

/// The terms from here on lie so far below the result that plain doubles carry them.
constexpr std::size_t kPlainFrom = 9;

Pair Series(const std::array<Pair, kTerms>& terms, Pair square)
{
    double tail = 0.0;
    for (std::size_t n = kTerms; n-- > kPlainFrom;)
        tail = tail * square.high + terms[n].high;
    Pair sum{tail, 0.0};
    for (std::size_t n = kPlainFrom; n-- > 0;)
        sum = sum * square + terms[n];
    return sum;
}

/// A quarter of a turn in four parts of 33 bits, so that a small multiple of each is exact.
constexpr double kQuarterTurn = 1.5707963267948966;
constexpr std::array<double, 4> kQuarterParts{0x1.921fb544p+0, 0x1.0b4611a6p-34, 0x1.3198a2ep-69,
                                              0x1.b839a252p-104};

/// What is left of the angle beside its nearest multiple of a quarter turn.
Pair Remainder(double radians, double quarters)
{
    Pair rest{radians, 0.0};
    for (const double part : kQuarterParts)
        rest = rest + Pair{-quarters * part, 0.0};
    return rest;
}

/// Cosine of the angle less so many quarter turns.
double CosineBehind(int quarters_behind, double radians)
{
    const double quarters = std::nearbyint(radians / kQuarterTurn);
    const Pair rest = Remainder(radians, quarters);
    const Pair square = rest * rest;
    const int quadrant = (static_cast<int>(quarters) - quarters_behind) & 3;
    const bool odd = quadrant == 1 || quadrant == 3;
    const Pair value = odd ? rest * Series(kSineTerms, square) : Series(kCosineTerms, square);
    return quadrant == 1 || quadrant == 2 ? -value.high : value.high;
}

} // namespace

double Cosine(double radians)
{
    return CosineBehind(0, radians);
}

double Sine(double radians)
{
    return CosineBehind(1, radians);
}

} // namespace lumora
