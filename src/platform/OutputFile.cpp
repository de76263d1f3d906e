#include "platform/OutputFile.h"

#include "platform/FaultText.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

namespace lumora {

namespace fs = std::filesystem;

namespace {

constexpr char kExists[] = "exists already; give another name, or --force to replace it";

std::string FollowLinks(const std::string& name)
{
    constexpr int kMostLinks = 40; // as the system itself
    fs::path path = name;
    std::error_code failure;
    for (int k = 0; k < kMostLinks && fs::is_symlink(path, failure); ++k)
        path = path.parent_path() / fs::read_symlink(path, failure);
    return path.string();
}

/// A hidden name beside the target that nobody else has.
std::string TemporaryBeside(const std::string& target, const char* ending)
{
    std::random_device random;
    char unique[20];
    std::snprintf(unique, sizeof unique, "%08x%08x", random(), random());
    return (fs::path(target).parent_path() / (std::string(".lumora-") + unique + ending)).string();
}

std::string FolderOf(const std::string& path)
{
    const fs::path folder = fs::path(path).parent_path();
    return folder.empty() ? "." : folder.string();
}

int RenameToFreeName(const std::string& from, const std::string& to)
{
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return 0;
    if (errno != EINVAL && errno != ENOSYS) return errno;
    // Some file systems do not know that call; a hard link does not replace anything either.
    if (link(from.c_str(), to.c_str()) != 0) return errno;
    unlink(from.c_str());
    return 0;
}

} // namespace

OutputFile::OutputFile(const std::string& name, Existing existing, Folder folder)
    : name_(name),
      target_(FollowLinks(name)),
      result_(TemporaryBeside(target_, ".wav")),
      converted_(TemporaryBeside(target_, ".in.wav")),
      existing_(existing),
      folder_(folder)
{
}

std::string OutputFile::Fault(const std::string& folder_hint) const
{
    struct stat status = {};
    if (stat(name_.c_str(), &status) == 0) {
        if (S_ISDIR(status.st_mode)) return "is a folder; give the name of a file" + folder_hint;
        if (!S_ISREG(status.st_mode)) return "is a pipe or a device; give the name of a file";
        return existing_ == Existing::Keep ? kExists : "";
    }
    if (errno != ENOENT) return "cannot be written (" + SystemText(errno) + ")";
    if (fs::path(target_).filename().empty()) return "is not the name of a file";
    const std::string folder = FolderOf(target_);
    if (folder_ == Folder::MustExist && stat(folder.c_str(), &status) != 0)
        return "cannot be written: there is no folder " + NameText(folder);
    return {};
}

std::string OutputFile::Prepare() const
{
    std::error_code failure;
    if (folder_ == Folder::MakeIt) fs::create_directories(FolderOf(target_), failure);
    if (failure)
        return "the folder " + NameText(FolderOf(target_)) + " cannot be made (" +
               SystemText(failure.value()) + ")";
    const int file = open(result_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (file < 0)
        return "nothing can be written in the folder " + NameText(FolderOf(target_)) + " (" +
               SystemText(errno) + ")";
    close(file);
    return {};
}

bool OutputFile::IsThere() const
{
    std::error_code unreachable;
    return fs::exists(result_, unreachable);
}

std::string OutputFile::Commit() const
{
    int failure = 0;
    if (existing_ == Existing::Keep)
        failure = RenameToFreeName(result_, target_);
    else if (rename(result_.c_str(), target_.c_str()) != 0)
        failure = errno;
    if (failure == EEXIST) return NameText(name_) + " " + kExists;
    if (failure != 0) return NameText(name_) + " cannot be written (" + SystemText(failure) + ")";
    return {};
}

void OutputFile::Discard() const
{
    unlink(result_.c_str());
    unlink(converted_.c_str());
}

} // namespace lumora
