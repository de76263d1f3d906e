#include "platform/OutputFile.h"
#include "support/SameBytes.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace lumora::test {
namespace {

namespace fs = std::filesystem;

void Put(const std::string& path, const std::string& text)
{
    std::ofstream(path, std::ios::binary) << text;
}

mode_t ModeOf(const std::string& path)
{
    struct stat status = {};
    EXPECT_EQ(stat(path.c_str(), &status), 0);
    return status.st_mode & 07777;
}

/// What a result says on its way to its name, from the start on; empty if it gets there.
std::string Road(const OutputFile& output, const std::string& bytes = "new")
{
    for (const std::string& fault : {output.Fault(), output.Prepare()})
        if (!fault.empty()) return fault;
    // As the library's writers do: what Prepare made is gone then.
    std::remove(output.Result().c_str());
    Put(output.Result(), bytes);
    const std::string fault = output.Complete();
    return fault.empty() ? output.Commit() : fault;
}

/// The status of a process of its own that did this and left.
int StatusOf(const std::function<bool()>& action)
{
    const pid_t process = fork();
    if (process == 0) _exit(action() ? 0 : 1);
    int status = -1;
    waitpid(process, &status, 0);
    return status;
}

/// From now on fsync of this descriptor, and no other, fails in this process with EIO.
bool BreakFsyncOf(int descriptor)
{
    std::array<sock_filter, 6> steps = {
        {BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
         BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_fsync, 0, 3),
         BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, args)),
         BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned>(descriptor), 0, 1),
         BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EIO),
         BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)}};
    const sock_fprog program = {steps.size(), steps.data()};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

int LowestFreeDescriptor()
{
    const int free = open("/dev/null", O_RDONLY);
    close(free);
    return free;
}

TEST(OutputFile, TheResultGetsItsNameWhenItIsCommitted)
{
    const TempFolder folder;
    const OutputFile output(folder / "out.wav", Existing::Keep, Folder::MustExist);
    EXPECT_EQ(output.Fault(), "");
    EXPECT_EQ(output.Prepare(), "");
    Put(output.Result(), "new");
    EXPECT_FALSE(fs::exists(folder / "out.wav"));
    EXPECT_EQ(output.Commit(), "");
    EXPECT_TRUE(HoldsBytes(folder / "out.wav", "new"));
    EXPECT_FALSE(fs::exists(output.Result()));
}

TEST(OutputFile, AFileThatAppearsMeanwhileIsKept)
{
    const TempFolder folder;
    const OutputFile output(folder / "out.wav", Existing::Keep, Folder::MustExist);
    EXPECT_EQ(output.Prepare(), "");
    folder.Write("out.wav", "mine");
    EXPECT_NE(output.Commit(), "");
    output.Discard();
    EXPECT_TRUE(HoldsBytes(folder / "out.wav", "mine"));
    EXPECT_FALSE(fs::exists(output.Result()));
}

TEST(OutputFile, AFileThatMayBeReplacedIsReplaced)
{
    const TempFolder folder;
    folder.Write("out.wav", "old");
    const OutputFile output(folder / "out.wav", Existing::Replace, Folder::MustExist);
    EXPECT_EQ(output.Fault(), "");
    EXPECT_EQ(output.Prepare(), "");
    Put(output.Result(), "new");
    EXPECT_EQ(output.Commit(), "");
    EXPECT_TRUE(HoldsBytes(folder / "out.wav", "new"));
    EXPECT_FALSE(fs::exists(output.Result()));
}

TEST(OutputFile, AFolderThatAppearsMeanwhileIsReported)
{
    const TempFolder folder;
    const OutputFile output(folder / "out.wav", Existing::Replace, Folder::MustExist);
    EXPECT_EQ(output.Prepare(), "");
    folder.MakeFolder("out.wav");
    EXPECT_NE(output.Commit(), "");
}

TEST(OutputFile, TemporariesAreHiddenWavesOfTheirOwnBesideTheTarget)
{
    const TempFolder folder;
    const OutputFile one(folder / "out.wav", Existing::Keep, Folder::MustExist);
    const OutputFile two(folder / "out.wav", Existing::Keep, Folder::MustExist);
    for (const std::string& name : {one.Result(), one.Converted()}) {
        EXPECT_EQ(fs::path(name).parent_path(), folder.Path());
        EXPECT_EQ(fs::path(name).filename().string().front(), '.');
        EXPECT_EQ(fs::path(name).extension(), ".wav");
    }
    EXPECT_NE(one.Result(), one.Converted());
    EXPECT_NE(one.Result(), two.Result());
}

TEST(OutputFile, DiscardRemovesBothTemporariesAndNothingElse)
{
    const TempFolder folder;
    const OutputFile output(folder / "out.wav", Existing::Replace, Folder::MustExist);
    folder.Write("out.wav", "old");
    EXPECT_EQ(output.Prepare(), "");
    Put(output.Converted(), "input");
    output.Discard();
    EXPECT_FALSE(fs::exists(output.Result()) || fs::exists(output.Converted()));
    EXPECT_TRUE(HoldsBytes(folder / "out.wav", "old"));
}

TEST(OutputFile, LinksThatGoRoundInACircleAreAFault)
{
    const TempFolder folder;
    fs::create_symlink("b.wav", folder / "a.wav");
    fs::create_symlink("a.wav", folder / "b.wav");
    const OutputFile output(folder / "a.wav", Existing::Replace, Folder::MustExist);
    EXPECT_NE(output.Fault(), "");
}

TEST(OutputFile, ANewFileHasTheModeThatTheUmaskLeaves)
{
    const TempFolder folder;
    EXPECT_EQ(StatusOf([&] {
                  umask(027);
                  const OutputFile keep(folder / "a.wav", Existing::Keep, Folder::MustExist);
                  const OutputFile free(folder / "b.wav", Existing::Replace, Folder::MustExist);
                  return (Road(keep) + Road(free)).empty();
              }),
              0);
    EXPECT_EQ(ModeOf(folder / "a.wav"), 0640U);
    EXPECT_EQ(ModeOf(folder / "b.wav"), 0640U);
}

TEST(OutputFile, AReplacedFileKeepsItsMode)
{
    const TempFolder folder;
    const std::string out = folder.Write("out.wav", "old");
    for (const mode_t mode : {0600U, 0644U, 0666U, 0604U, 0755U, 0200U}) {
        ASSERT_EQ(chmod(out.c_str(), mode), 0);
        EXPECT_EQ(Road({out, Existing::Replace, Folder::MustExist}), "");
        EXPECT_EQ(ModeOf(out), mode);
    }
}

TEST(OutputFile, AReplacedFileKeepsOwnerAndGroupWhereTheSystemAllowsIt)
{
    if (geteuid() != 0) GTEST_SKIP() << "files are given away only by the superuser";
    const TempFolder folder;
    const std::string out = folder.Write("out.wav", "old");
    ASSERT_EQ(chown(out.c_str(), 54321, 54322), 0);
    ASSERT_EQ(chmod(out.c_str(), 0640), 0);
    EXPECT_EQ(Road({out, Existing::Replace, Folder::MustExist}), "");
    struct stat status = {};
    ASSERT_EQ(stat(out.c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 54321U);
    EXPECT_EQ(status.st_gid, 54322U);
    EXPECT_EQ(ModeOf(out), 0640U);
    EXPECT_TRUE(HoldsBytes(out, "new"));
}

TEST(OutputFile, AGroupThatCannotBeKeptOpensTheFileToNoOther)
{
    if (geteuid() != 0) GTEST_SKIP() << "only the superuser can become another user";
    const TempFolder folder;
    fs::permissions(folder.Path(), fs::perms::all);
    const std::string out = folder.Write("out.wav", "old");
    ASSERT_EQ(chown(out.c_str(), 54321, 54322), 0);
    ASSERT_EQ(chmod(out.c_str(), 0664), 0);
    EXPECT_EQ(StatusOf([&] {
                  return setresgid(54323, 54323, 54323) == 0 &&
                         setresuid(54321, 54321, 54321) == 0 &&
                         Road({out, Existing::Replace, Folder::MustExist}).empty();
              }),
              0);
    EXPECT_EQ(ModeOf(out), 0644U);
    EXPECT_TRUE(HoldsBytes(out, "new"));
}

TEST(OutputFile, AReplacedFileKeepsItsAccessList)
{
    const TempFolder folder;
    const std::string out = folder.Write("out.wav", "old");
    constexpr char kList[] = "system.posix_acl_access";
    // Version 2; then tag, permission, id: the owner rw, user 54321 r, the group nothing, r at
    // most.
    const std::uint16_t words[] = {2,      0,      1,  6, 0xFFFF, 0xFFFF, 2,  4,
                                   54321,  0,      4,  0, 0xFFFF, 0xFFFF, 16, 4,
                                   0xFFFF, 0xFFFF, 32, 0, 0xFFFF, 0xFFFF};
    if (setxattr(out.c_str(), kList, words, sizeof words, 0) != 0)
        GTEST_SKIP() << "this file system has no access lists";
    ASSERT_EQ(ModeOf(out), 0640U);
    EXPECT_EQ(Road({out, Existing::Replace, Folder::MustExist}), "");
    std::array<std::uint16_t, 100> kept = {};
    ASSERT_EQ(getxattr(out.c_str(), kList, kept.data(), sizeof kept),
              static_cast<ssize_t>(sizeof words));
    EXPECT_EQ(std::memcmp(kept.data(), words, sizeof words), 0);
    EXPECT_EQ(ModeOf(out), 0640U);
}

TEST(OutputFile, AReplacedFileWithoutAnAccessListGetsNoneFromItsFolder)
{
    const TempFolder folder;
    const std::string out = folder.Write("out.wav", "old");
    ASSERT_EQ(chmod(out.c_str(), 0640), 0);
    // Of new files: the owner rw, user 54321 rw, the group r, rw at most, others nothing.
    const std::uint16_t words[] = {2,      0,      1,  6, 0xFFFF, 0xFFFF, 2,  6,
                                   54321,  0,      4,  4, 0xFFFF, 0xFFFF, 16, 6,
                                   0xFFFF, 0xFFFF, 32, 0, 0xFFFF, 0xFFFF};
    if (setxattr(folder.Path().c_str(), "system.posix_acl_default", words, sizeof words, 0) != 0)
        GTEST_SKIP() << "this file system has no access lists";
    EXPECT_EQ(Road({out, Existing::Replace, Folder::MustExist}), "");
    EXPECT_EQ(getxattr(out.c_str(), "system.posix_acl_access", nullptr, 0), -1);
    EXPECT_EQ(ModeOf(out), 0640U);
    EXPECT_EQ(Road({folder / "new.wav", Existing::Replace, Folder::MustExist}), "");
    EXPECT_GT(getxattr((folder / "new.wav").c_str(), "system.posix_acl_access", nullptr, 0), 0);
}

TEST(OutputFile, AWriteProtectedFileIsNotReplaced)
{
    const TempFolder folder;
    const std::string out = folder.Write("out.wav", "old");
    for (const mode_t mode : {0444U, 0466U, 0U}) {
        ASSERT_EQ(chmod(out.c_str(), mode), 0);
        const OutputFile output(out, Existing::Replace, Folder::MustExist);
        EXPECT_EQ(output.Fault(), "is write-protected and is not replaced; give another name, or "
                                  "permit writing to it first");
    }
    ASSERT_EQ(chmod(out.c_str(), 0600), 0);
    EXPECT_EQ(OutputFile(out, Existing::Replace, Folder::MustExist).Fault(), "");
}

TEST(OutputFile, AFileThatOnlyOthersMayWriteIsWriteProtected)
{
    if (geteuid() != 0) GTEST_SKIP() << "only the superuser can become another user";
    const TempFolder folder;
    fs::permissions(folder.Path(), fs::perms::all);
    const std::string out = folder.Write("out.wav", "old");
    ASSERT_EQ(chmod(out.c_str(), 0644), 0);
    EXPECT_EQ(StatusOf([&] {
                  return setresuid(54321, 54321, 54321) == 0 &&
                         OutputFile(out, Existing::Replace, Folder::MustExist)
                                 .Fault()
                                 .rfind("is write-protected", 0) == 0;
              }),
              0);
}

TEST(OutputFile, AResultThatDoesNotReachTheDiskIsNone)
{
    // The result is synced first, then the folder; each gets the lowest free descriptor.
    for (const Existing existing : {Existing::Keep, Existing::Replace}) {
        for (const bool older : {false, true}) {
            if (older && existing == Existing::Keep) continue;
            for (const bool folder_fails : {false, true}) {
                const TempFolder folder;
                if (older) folder.Write("out.wav", "old");
                const OutputFile output(folder / "out.wav", existing, Folder::MustExist);
                EXPECT_EQ(output.Prepare(), "");
                Put(output.Result(), "new");
                EXPECT_EQ(StatusOf([&] {
                              if (folder_fails && !output.Complete().empty()) return false;
                              if (!BreakFsyncOf(LowestFreeDescriptor())) return false;
                              const std::string fault =
                                  folder_fails ? output.Commit() : output.Complete();
                              output.Discard();
                              return fault == folder / "out.wav" +
                                                  " cannot be written (input/output error); check "
                                                  "the disk and run it again";
                          }),
                          0)
                    << folder_fails;
                EXPECT_EQ(fs::exists(folder / "out.wav"), older);
                if (older) {
                    EXPECT_TRUE(HoldsBytes(folder / "out.wav", "old"));
                }
                const auto left = std::distance(fs::directory_iterator(folder.Path()), {});
                EXPECT_EQ(left, older ? 1 : 0);
            }
        }
    }
}

TEST(OutputFile, AFolderThatMayBeWrittenButNotReadTakesResults)
{
    if (geteuid() != 0) GTEST_SKIP() << "only the superuser can become another user";
    const TempFolder folder;
    fs::permissions(folder.Path(), fs::perms(0733));
    EXPECT_EQ(StatusOf([&] {
                  return setresuid(54321, 54321, 54321) == 0 &&
                         Road({folder / "out.wav", Existing::Keep, Folder::MustExist}).empty();
              }),
              0);
    EXPECT_TRUE(HoldsBytes(folder / "out.wav", "new"));
}

TEST(OutputFile, OnlyAFileThatMayBeReplacedIsRemovedWithoutAResult)
{
    const TempFolder folder;
    const std::string out = folder.Write("out.png", "old");
    EXPECT_FALSE(OutputFile(out, Existing::Keep, Folder::MustExist).HasOlder());
    const OutputFile output(out, Existing::Replace, Folder::MustExist);
    EXPECT_TRUE(output.HasOlder());
    EXPECT_EQ(output.RemoveOlder(), "");
    EXPECT_FALSE(fs::exists(out));
    EXPECT_FALSE(output.HasOlder());
}

} // namespace
} // namespace lumora::test
