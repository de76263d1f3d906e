#pragma once

#include <csignal>
#include <cstddef>
#include <filesystem>
#include <iterator>
#include <linux/capability.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

/// The real faults of a machine, made on purpose for the length of a scope.
namespace lumora::test {

/// No file grows beyond `bytes`: a write that would answers as a full disk does.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &before_);
        rlimit limit = before_;
        limit.rlim_cur = bytes;
        if (setrlimit(RLIMIT_FSIZE, &limit) != 0) throw std::runtime_error("no file size limit");
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit before_ = {};
    void (*handler_)(int);
};

/// File permissions count for the superuser too, who is not asked otherwise.
class PermissionsCount {
public:
    PermissionsCount()
    {
        Capabilities now[2] = {};
        const bool asked = Call(SYS_capget, now);
        before_[0] = now[0];
        before_[1] = now[1];
        now[0].effective &= ~((1U << CAP_DAC_OVERRIDE) | (1U << CAP_DAC_READ_SEARCH));
        if (!asked || !Call(SYS_capset, now)) throw std::runtime_error("no capabilities");
    }
    ~PermissionsCount() { Call(SYS_capset, before_); }
    PermissionsCount(const PermissionsCount&) = delete;
    PermissionsCount& operator=(const PermissionsCount&) = delete;

private:
    using Capabilities = __user_cap_data_struct;

    static bool Call(long call, Capabilities* data)
    {
        __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
        return syscall(call, &header, data) == 0;
    }

    Capabilities before_[2] = {};
};

/// How many files this process has open: the same before and after, or one was left open.
inline std::ptrdiff_t OpenFileCount()
{
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

} // namespace lumora::test
