#include "base/PerWidth.h"

#include "support/VectorWidths.h"

#include <cstddef>
#include <gtest/gtest.h>

namespace lumora {
namespace {

using test::EveryWidth;
using test::WidthName;

/// Counts how often it runs, and tells the lanes of its vectors.
struct CountLanes {
    template <class V> [[gnu::always_inline]] static std::size_t Run(int& times)
    {
        ++times;
        return sizeof(V) / sizeof(double);
    }
};

std::size_t LanesOf(VectorWidth width)
{
#if defined(__x86_64__)
    if (width == VectorWidth::Avx512) return 8;
    if (width == VectorWidth::Avx2) return 4;
#endif
    static_cast<void>(width);
    return 2;
}

class Widths : public testing::TestWithParam<VectorWidth> {};
INSTANTIATE_TEST_SUITE_P(, Widths, EveryWidth(), WidthName);

TEST_P(Widths, EachRunsTheBodyWithItsOwnVectors)
{
    int times = 0;
    EXPECT_EQ(PerWidth<CountLanes>::For(GetParam())(times), LanesOf(GetParam()));
    EXPECT_EQ(times, 1);
}

TEST_P(Widths, EachHasATableMadeForIt)
{
    static constexpr TablePerWidth kWidths(+[](VectorWidth width) { return width; });
    EXPECT_EQ(kWidths[GetParam()], GetParam());
}

} // namespace
} // namespace lumora
