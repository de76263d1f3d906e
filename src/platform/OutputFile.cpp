#include "platform/OutputFile.h"

#include "platform/Descriptor.h"
#include "platform/FaultText.h"
#include "platform/FileRights.h"
#include "platform/Placement.h"
#include "platform/TemporaryName.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace lumora {

namespace fs = std::filesystem;

namespace {

constexpr char kExists[] = "exists already; give another name, or --force to replace it";
constexpr char kProtected[] =
    "is write-protected and is not replaced; give another name, or permit writing to it first";

std::string FollowLinks(const std::string& name)
{
    constexpr int kMostLinks = 40; // as the system itself
    fs::path path = name;
    std::error_code failure;
    for (int k = 0; k < kMostLinks && fs::is_symlink(path, failure); ++k)
        path = path.parent_path() / fs::read_symlink(path, failure);
    return path.string();
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
        if (existing_ == Existing::Keep) return kExists;
        return IsWriteProtected(name_, status) ? kProtected : "";
    }
    if (errno != ENOENT) return "cannot be written (" + SystemText(errno) + ")";
    if (fs::path(target_).filename().empty()) return "is not the name of a file";
    const std::string folder = TargetFolder();
    if (folder_ == Folder::MustExist && stat(folder.c_str(), &status) != 0)
        return "cannot be written: there is no folder " + NameText(folder);
    return {};
}

std::string OutputFile::Prepare() const
{
    std::error_code failure;
    if (folder_ == Folder::MakeIt) fs::create_directories(TargetFolder(), failure);
    if (failure)
        return "the folder " + NameText(TargetFolder()) + " cannot be made (" +
               SystemText(failure.value()) + ")";
    const Descriptor file(open(result_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (file.Failed())
        return "nothing can be written in the folder " + NameText(TargetFolder()) + " (" +
               SystemText(errno) + ")" + Advice(errno);
    return {};
}

bool OutputFile::IsThere() const
{
    std::error_code unreachable;
    return fs::exists(result_, unreachable);
}

std::string OutputFile::Complete() const
{
    const Descriptor file(open(result_.c_str(), O_RDWR | O_CLOEXEC));
    int failure = file.Failed() ? errno : 0;
    if (failure == 0 && existing_ == Existing::Replace)
        failure = TakeRightsOf(target_, file.Number());
    if (failure == 0 && fsync(file.Number()) != 0) failure = errno;
    return failure == 0 ? "" : WriteFault(failure);
}

std::string OutputFile::Commit() const
{
    Placement placement(result_, target_);
    int failure = existing_ == Existing::Keep ? placement.TakeFreeName() : placement.TakeName();
    if (failure != 0)
        return failure == EEXIST ? NameText(name_) + " " + kExists : WriteFault(failure);
    failure = SyncFolder(TargetFolder());
    if (failure == 0) {
        placement.Settle();
        return {};
    }
    return WriteFault(failure) +
           (placement.Undo() ? "" : "; it has taken the place of the older file all the same");
}

bool OutputFile::HasOlder() const
{
    std::error_code unreachable;
    return existing_ == Existing::Replace && fs::is_regular_file(target_, unreachable);
}

std::string OutputFile::RemoveOlder() const
{
    int failure = unlink(target_.c_str()) == 0 ? 0 : errno;
    if (failure == 0) failure = SyncFolder(TargetFolder());
    if (failure == 0) return {};
    return "the older " + NameText(name_) + " cannot be removed (" + SystemText(failure) + ")" +
           Advice(failure);
}

void OutputFile::Discard() const
{
    unlink(result_.c_str());
    unlink(converted_.c_str());
}

std::string OutputFile::TargetFolder() const
{
    const fs::path folder = fs::path(target_).parent_path();
    return folder.empty() ? "." : folder.string();
}

std::string OutputFile::WriteFault(int error_code) const
{
    return NameText(name_) + " cannot be written (" + SystemText(error_code) + ")" +
           Advice(error_code);
}

} // namespace lumora
