#pragma once

#include <string>
#include <utility>

namespace lumora {

/// A finished file that gets another name in the same folder, in one step that can be undone until
/// it is settled. Error codes are those of the system, 0 if done.
class Placement {
public:
    Placement(std::string from, std::string to) : from_(std::move(from)), to_(std::move(to)) {}

    /// EEXIST where there is something of that name.
    [[nodiscard]] int TakeFreeName();
    /// In the place of an ordinary file, if there is one.
    [[nodiscard]] int TakeName();
    /// Everything is as it was. False where the file system cannot exchange two names, so that the
    /// older file is gone: the new one then stays.
    bool Undo() const;
    /// Lets go of the older file.
    void Settle() const;

private:
    enum class Older { None, UnderOurName, Gone };

    std::string from_, to_;
    Older older_ = Older::None;
};

/// Waits until the names in a folder are on the disk. A file system that has no such call, and a
/// folder that this process may write but not read, are no error.
[[nodiscard]] int SyncFolder(const std::string& folder);

} // namespace lumora
