#include "platform/FileRights.h"

#include <cerrno>
#include <span>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace lumora {

namespace {

constexpr char kAccessList[] = "system.posix_acl_access";

std::vector<char> AccessListOf(const std::string& path)
{
    constexpr std::size_t kMostBytes = 65536; // of any attribute
    std::vector<char> list(kMostBytes);
    const ssize_t bytes = getxattr(path.c_str(), kAccessList, list.data(), list.size());
    list.resize(bytes < 0 ? 0 : static_cast<std::size_t>(bytes));
    return list;
}

/// The group may do what everybody may.
mode_t Narrowed(mode_t mode)
{
    constexpr int kGroupBits = 3;
    return (mode & ~mode_t{S_IRWXG}) | (mode & S_IRWXO) << kGroupBits;
}

} // namespace

bool IsWriteProtected(const std::string& path, const struct stat& status)
{
    if ((status.st_mode & S_IWUSR) == 0) return true;
    return access(path.c_str(), W_OK) != 0 && (errno == EACCES || errno == EPERM || errno == EROFS);
}

int TakeRightsOf(const std::string& model, int file)
{
    struct stat old = {};
    struct stat now = {};
    if (stat(model.c_str(), &old) != 0 || !S_ISREG(old.st_mode)) return 0;
    if (fchown(file, old.st_uid, old.st_gid) != 0)
        static_cast<void>(fchown(file, static_cast<uid_t>(-1), old.st_gid) == 0);
    const std::vector<char> list = AccessListOf(model);
    // A folder may give its new files a list that the older file does not have.
    if (list.empty()) static_cast<void>(fremovexattr(file, kAccessList) == 0);
    if (fstat(file, &now) != 0) return errno;
    mode_t mode = old.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
    // With a list, the group's bits are only the most that anybody named in it may do.
    const bool same_group = now.st_gid == old.st_gid;
    const bool whole_list = list.empty() || (same_group && fsetxattr(file, kAccessList, list.data(),
                                                                     list.size(), 0) == 0);
    if (!same_group || !whole_list) mode = Narrowed(mode);
    const bool is_so = (now.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO)) == mode;
    return is_so || fchmod(file, mode) == 0 ? 0 : errno;
}

} // namespace lumora
