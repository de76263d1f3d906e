#include "platform/FileFault.h"
#include "platform/OutputFile.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace lumora::test {
namespace {

constexpr char kAdvice[] = " (too many open files); work on fewer files side by side, or raise the "
                           "limit on open files (ulimit -n)";

/// What is said in a process of its own whose descriptors are all taken.
std::string SaidWithoutDescriptors(const std::function<std::string()>& say)
{
    int ends[2];
    EXPECT_EQ(pipe(ends), 0);
    const pid_t process = fork();
    if (process == 0) {
        while (dup(ends[1]) >= 0) {
        }
        const std::string said = say();
        _exit(write(ends[1], said.data(), said.size()) < 0 ? 1 : 0);
    }
    close(ends[1]);
    char text[4096];
    const ssize_t length = read(ends[0], text, sizeof text);
    waitpid(process, nullptr, 0);
    close(ends[0]);
    return {text, static_cast<std::size_t>(length < 0 ? 0 : length)};
}

TEST(FileFault, AFileThatCannotBeOpenedForWantOfDescriptorsIsNoMatterOfPermissions)
{
    const TempFolder folder;
    const std::string path = folder.Write("in.wav", "sound");
    EXPECT_EQ(FileFault(path, "sound"), "");
    EXPECT_EQ(SaidWithoutDescriptors([&] { return FileFault(path, "sound"); }),
              std::string("cannot be read") + kAdvice);
}

TEST(OutputFile, ThatCannotBeMadeForWantOfDescriptorsGivesTheAdvice)
{
    const TempFolder folder;
    const OutputFile output(folder / "out.wav", Existing::Keep, Folder::MustExist);
    EXPECT_EQ(SaidWithoutDescriptors([&] { return output.Prepare(); }),
              "nothing can be written in the folder " + folder.Path().string() + kAdvice);
}

} // namespace
} // namespace lumora::test
