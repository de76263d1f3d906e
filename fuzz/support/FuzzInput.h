#pragma once

#include "base/Messages.h"
#include "base/RunTimeError.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

/// What the fuzz targets share: a file in memory, messages that only count, and one way to fail.
namespace lumora::fuzz {

/// A broken promise of the code under test stops the program where the fuzzer sees it.
inline void Demand(bool holds)
{
    if (!holds) __builtin_trap();
}

/// A file of these bytes that never touches a disk.
class MemoryFile {
public:
    explicit MemoryFile(std::span<const std::uint8_t> bytes) : file_(memfd_create("input", 0))
    {
        Demand(file_ >= 0);
        const auto size = static_cast<ssize_t>(bytes.size());
        Demand(write(file_, bytes.data(), bytes.size()) == size);
    }
    ~MemoryFile() { close(file_); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    /// A name with a dot in it: without one ".wav" would be added.
    std::string Name() const { return "/proc/self/./fd/" + std::to_string(file_); }

private:
    int file_;
};

/// Nobody reads the messages; how many there were is all that counts.
class CountedMessages : public MessageBoxPort {
public:
    MessageAnswer Show(const std::string&, const std::string&, MessageButtons, MessageIcon) override
    {
        ++count;
        return MessageAnswer::Ok;
    }

    int count = 0;

private:
    MessageBoxScope scope_{*this};
};

/// True if `action` comes back. A run-time error is a proper end too; anything else is not.
template <class Action> bool ComesBack(Action&& action)
{
    try {
        action();
    } catch (const RunTimeError&) {
        return false;
    }
    return true;
}

} // namespace lumora::fuzz
