#include "platform/ThisProgram.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/auxv.h>

namespace lumora {
namespace {

namespace fs = std::filesystem;

TEST(FolderOfThisProgram, IsWhereTheSystemLoadedItFrom)
{
    const auto* name = reinterpret_cast<const char*>(getauxval(AT_EXECFN));
    ASSERT_NE(name, nullptr);
    EXPECT_EQ(FolderOfThisProgram(), fs::canonical(name).parent_path());
}

TEST(FolderOfThisProgram, IsNotWhereTheUserStands)
{
    const fs::path before = fs::current_path();
    const fs::path folder = FolderOfThisProgram();
    fs::current_path("/");
    EXPECT_EQ(FolderOfThisProgram(), folder);
    fs::current_path(before);
    EXPECT_TRUE(folder.is_absolute());
}

} // namespace
} // namespace lumora
