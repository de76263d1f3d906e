#include "base/LargeMemory.h"

#include "base/Array.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

struct Hints {
    int count = 0;
    void* place = nullptr;
    std::size_t bytes = 0;
};
Hints seen;

class LargeMemory : public testing::Test {
protected:
    LargeMemory()
    {
        seen = {};
        SetLargeMemoryHint([](void* place, std::size_t bytes) noexcept {
            seen = {seen.count + 1, place, bytes};
        });
    }
    ~LargeMemory() override { SetLargeMemoryHint(nullptr); }
};

constexpr auto kLargeCount = static_cast<std::int64_t>(kLargeMemory / sizeof(double));

TEST_F(LargeMemory, IsToldWhereItIsAndHowLong)
{
    Array<double> array(kLargeCount);
    EXPECT_EQ(seen.count, 1);
    EXPECT_EQ(seen.place, array.Span().data());
    EXPECT_EQ(seen.bytes, kLargeMemory);
}

TEST_F(LargeMemory, SmallerMemoryIsNotWorthACall)
{
    const Array<double> array(kLargeCount - 1);
    EXPECT_EQ(array(1), 0.0);
    EXPECT_EQ(seen.count, 0);
}

TEST_F(LargeMemory, WithoutAHintNobodyIsAsked)
{
    SetLargeMemoryHint(nullptr);
    const Array<double> array(kLargeCount);
    EXPECT_EQ(array(kLargeCount), 0.0);
    EXPECT_EQ(seen.count, 0);
}

} // namespace
} // namespace lumora
