#include "base/Ref.h"

#include "support/Raised.h"

#include <gtest/gtest.h>
#include <string>

namespace lumora {
namespace {

using test::Raised;

struct Counted {
    explicit Counted(int& living) : living_(living) { ++living_; }
    ~Counted() { --living_; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

    int value = 0;

private:
    int& living_;
};

TEST(Ref, IsError91WhenUsedEmpty)
{
    const Ref<std::string> fresh;
    EXPECT_FALSE(fresh);
    EXPECT_EQ(Raised([&] { (void)*fresh; }), 91);
    EXPECT_EQ(Raised([&] { (void)fresh->size(); }), 91);

    auto cleared = MakeRef<std::string>("x");
    EXPECT_EQ(cleared->size(), 1U);
    cleared.Clear();
    EXPECT_FALSE(cleared);
    EXPECT_EQ(Raised([&] { (void)cleared->size(); }), 91);
}

TEST(Ref, SharesOneObjectThatGoesWithTheLastOwner)
{
    int living = 0;
    auto first = MakeRef<Counted>(living);
    Ref<Counted> second = first;
    second->value = 7;
    EXPECT_EQ((*first).value, 7);
    first.Clear();
    EXPECT_EQ(living, 1);
    second = {};
    EXPECT_EQ(living, 0);
}

TEST(Ref, IsEmptyAfterItHasMovedAway)
{
    auto from = MakeRef<std::string>("x");
    const Ref<std::string> to = std::move(from);
    EXPECT_EQ(*to, "x");
    EXPECT_EQ(Raised([&] { (void)*from; }), 91); // NOLINT: the point of it
}

TEST(Ref, ComparesObjectsAndNotTheirContents)
{
    const auto one = MakeRef<std::string>("same");
    const auto other = MakeRef<std::string>("same");
    Ref<std::string> again;
    again = one;
    EXPECT_EQ(one, again);
    EXPECT_NE(one, other);
    EXPECT_EQ(Ref<std::string>(), Ref<std::string>());
}

} // namespace
} // namespace lumora
