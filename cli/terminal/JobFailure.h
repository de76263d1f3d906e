#pragma once

#include <stdexcept>
#include <string>

namespace lumora {

/// One file could not be done; the others are not touched by it. what() is one line without the
/// file's name: what is wrong and what to do.
class JobFailure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Fails a file for a fault that was found; an empty text is none.
inline void FailFor(const std::string& fault)
{
    if (!fault.empty()) throw JobFailure(fault);
}

} // namespace lumora
