#pragma once

#include <string>

namespace lumora {

enum class Existing { Keep, Replace };
enum class Folder { MustExist, MakeIt };

/// Where one result goes. The work is done in temporaries beside the final name, chosen before any
/// work begins so that whoever starts the work can remove them whatever becomes of it; the result
/// gets its name when it is complete.
class OutputFile {
public:
    /// A link in the way is followed: what it points to is the target, and the link stays.
    OutputFile(const std::string& name, Existing existing, Folder folder);

    const std::string& Name() const { return name_; }     ///< as the user gave it
    const std::string& Target() const { return target_; } ///< with links followed

    const std::string& Result() const { return result_; }       ///< temporary for the result
    const std::string& Converted() const { return converted_; } ///< temporary for a converted input

    /// Why the target may not be written, as one line; empty if it may. To be asked before any
    /// work. `folder_hint` follows what is said where the target is a folder.
    std::string Fault(const std::string& folder_hint = {}) const;
    /// Makes the folder, where that is wanted, and an empty Result(). Answers why it could not, as
    /// one line; empty if it did.
    [[nodiscard]] std::string Prepare() const;
    /// Whether there is a Result().
    bool IsThere() const;
    /// Gives Result() its final name, in one step. Answers why it could not, also where a file has
    /// appeared there that may not be replaced, as one line; empty if it did.
    [[nodiscard]] std::string Commit() const;
    /// Removes what is left of the temporaries.
    void Discard() const;

private:
    std::string name_, target_, result_, converted_;
    Existing existing_;
    Folder folder_;
};

} // namespace lumora
