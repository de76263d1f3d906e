#include "platform/Placement.h"

#include "platform/Descriptor.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lumora {

namespace {

int RenameWith(unsigned flags, const std::string& from, const std::string& to)
{
    return renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), flags) == 0 ? 0 : errno;
}

/// Some file systems know no flags.
bool IsUnknown(int failure)
{
    return failure == EINVAL || failure == ENOSYS;
}

bool IsOrdinary(const std::string& path)
{
    struct stat status = {};
    return lstat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

} // namespace

int Placement::TakeFreeName()
{
    const int failure = RenameWith(RENAME_NOREPLACE, from_, to_);
    if (!IsUnknown(failure)) return failure;
    // A hard link does not replace anything either.
    if (link(from_.c_str(), to_.c_str()) != 0) return errno;
    unlink(from_.c_str());
    return 0;
}

int Placement::TakeName()
{
    const int failure = RenameWith(RENAME_EXCHANGE, from_, to_);
    if (failure == ENOENT) return RenameWith(0, from_, to_);
    if (IsUnknown(failure)) {
        older_ = Older::Gone;
        return RenameWith(0, from_, to_);
    }
    if (failure != 0) return failure;
    older_ = Older::UnderOurName;
    if (IsOrdinary(from_)) return 0;
    Undo();
    return EISDIR;
}

bool Placement::Undo() const
{
    if (older_ == Older::Gone) return false;
    return RenameWith(older_ == Older::None ? 0 : RENAME_EXCHANGE, to_, from_) == 0;
}

void Placement::Settle() const
{
    if (older_ == Older::UnderOurName) unlink(from_.c_str());
}

int SyncFolder(const std::string& folder)
{
    const Descriptor open_folder(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (open_folder.Failed()) return errno == EACCES ? 0 : errno;
    const int failure = fsync(open_folder.Number()) == 0 ? 0 : errno;
    return failure == EINVAL || failure == ENOTSUP ? 0 : failure;
}

} // namespace lumora
