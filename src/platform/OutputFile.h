#pragma once

#include <string>

namespace lumora {

enum class Existing { Keep, Replace };
enum class Folder { MustExist, MakeIt };

/// Where one result goes. The work is done in temporaries beside the final name, chosen before any
/// work begins so that whoever starts the work can remove them whatever becomes of it; the result
/// gets its name when it is complete and on the disk. What goes wrong is answered as one line,
/// empty if nothing does.
class OutputFile {
public:
    /// A link in the way is followed: what it points to is the target, and the link stays.
    OutputFile(const std::string& name, Existing existing, Folder folder);

    const std::string& Name() const { return name_; }     ///< as the user gave it
    const std::string& Target() const { return target_; } ///< with links followed
    std::string TargetFolder() const;                     ///< "." for the one we stand in

    const std::string& Result() const { return result_; }       ///< temporary for the result
    const std::string& Converted() const { return converted_; } ///< temporary for a converted input

    /// Why the target may not be written. To be asked before any work. `folder_hint` follows what
    /// is said where the target is a folder.
    std::string Fault(const std::string& folder_hint = {}) const;
    /// Makes the folder, where that is wanted, and an empty Result().
    [[nodiscard]] std::string Prepare() const;
    /// Whether there is a Result().
    bool IsThere() const;
    /// Gives Result() the permissions of the file that it is to replace, and waits until it is on
    /// the disk. To be called when nobody writes to it any more, ahead of Commit.
    [[nodiscard]] std::string Complete() const;
    /// Gives Result() its final name, in one step, and waits until the folder is on the disk. A
    /// fault, also where a file has appeared there that may not be replaced, leaves what was there.
    [[nodiscard]] std::string Commit() const;
    /// Whether there is a file that Commit would replace.
    bool HasOlder() const;
    /// Removes that file, where there is no Result() to replace it.
    [[nodiscard]] std::string RemoveOlder() const;
    /// Removes what is left of the temporaries.
    void Discard() const;

private:
    std::string WriteFault(int error_code) const;

    std::string name_, target_, result_, converted_;
    Existing existing_;
    Folder folder_;
};

} // namespace lumora
