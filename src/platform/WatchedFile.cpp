#include "platform/WatchedFile.h"

#include "platform/FaultText.h"

#include <cerrno>
#include <fcntl.h>

namespace lumora {

WatchedFile::WatchedFile(const std::string& path)
    : path_(path),
      ordinary_(stat(path.c_str(), &found_) == 0 && S_ISREG(found_.st_mode)),
      held_(ordinary_ ? open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC) : -1)
{
    // What was opened may be another file than the one just asked for.
    if (!held_.Failed()) fstat(held_.Number(), &found_);
}

std::string WatchedFile::Change() const
{
    constexpr char kRunAgain[] = "; run it again when nothing changes it any more";
    if (!ordinary_) return {};
    struct stat now = {};
    const int failure = stat(path_.c_str(), &now) == 0 ? 0 : errno;
    if (failure == ENOENT)
        return "it was removed or renamed while it was read; put it back and run it again";
    if (failure != 0)
        return "it can no longer be reached (" + SystemText(failure) +
               "), and was not read to its end; run it again when it can";
    if (now.st_dev != found_.st_dev || now.st_ino != found_.st_ino)
        return std::string("another file took its place while it was read") + kRunAgain;
    if (now.st_size == found_.st_size) return {};
    return std::string("it became ") + (now.st_size < found_.st_size ? "shorter" : "longer") +
           " while it was read (from " + std::to_string(found_.st_size) + " to " +
           std::to_string(now.st_size) + " bytes)" + kRunAgain;
}

} // namespace lumora
