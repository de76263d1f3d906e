#include "base/OrOutOfMemory.h"

#include "support/Raised.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <string>
#include <vector>

namespace lumora {
namespace {

using namespace test;

TEST(OrOutOfMemory, GivesWhatItsActionGives)
{
    std::string text = "as it is";
    EXPECT_EQ(OrOutOfMemory([] { return 5; }), 5);
    EXPECT_EQ(&OrOutOfMemory([&]() -> std::string& { return text; }), &text);
    EXPECT_EQ(Raised([] { OrOutOfMemory([] { Raise(ErrorNumber::Subscript); }); }), 9);
}

TEST(OrOutOfMemory, IsError7WhereMemoryDoesNotReach)
{
    EXPECT_EQ(Raised([] { OrOutOfMemory([] { throw std::bad_alloc(); }); }), 7);
    EXPECT_EQ(Raised([] {
                  OrOutOfMemory([] {
                      return std::vector<double>(std::numeric_limits<std::size_t>::max()).size();
                  });
              }),
              7);
}

} // namespace
} // namespace lumora
