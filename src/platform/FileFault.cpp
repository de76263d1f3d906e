#include "platform/FileFault.h"

#include "platform/Descriptor.h"
#include "platform/FaultText.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace lumora {

std::string FileFault(const std::string& path, const std::string& wanted)
{
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0) {
        if (errno == ENOENT) return "there is no such file; check the name";
        return "cannot be reached (" + SystemText(errno) + ")";
    }
    if (S_ISDIR(status.st_mode)) return "is a folder; name the files in it";
    if (!S_ISREG(status.st_mode))
        return "is a pipe or a device; write the " + wanted + " to a file first and name that";
    if (Descriptor(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)).Failed()) {
        const std::string advice = Advice(errno);
        return "cannot be read (" + SystemText(errno) + ")" +
               (advice.empty() ? "; check its permissions" : advice);
    }
    if (status.st_size == 0) return "is empty; there is no " + wanted + " in it";
    return {};
}

} // namespace lumora
