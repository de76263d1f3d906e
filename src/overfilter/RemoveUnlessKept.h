#pragma once

#include <string>

namespace lumora {

/// Removes an ordinary file when it leaves the scope, unless told to keep it: what is left by an
/// error half written must not be taken for a result.
class RemoveUnlessKept {
public:
    explicit RemoveUnlessKept(std::string file_name);
    ~RemoveUnlessKept();
    RemoveUnlessKept(const RemoveUnlessKept&) = delete;
    RemoveUnlessKept& operator=(const RemoveUnlessKept&) = delete;

    void Keep() { kept_ = true; }

private:
    std::string file_name_;
    bool kept_ = false;
};

} // namespace lumora
