#pragma once

#include "platform/Descriptor.h"

#include <string>
#include <sys/stat.h>

namespace lumora {

/// A file as it was found, to tell later whether all that was read under its name meanwhile was one
/// file of one length. It is held open so that no later file can have its number in the file
/// system. A change of bytes that keeps the length is not seen.
class WatchedFile {
public:
    /// What is no ordinary file, or not there, never counts as changed.
    explicit WatchedFile(const std::string& path);

    /// What has become of it since, and what to do, as one line; empty if it is as it was.
    std::string Change() const;

private:
    std::string path_;
    struct stat found_ = {};
    bool ordinary_;
    Descriptor held_;
};

} // namespace lumora
