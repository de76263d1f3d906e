#pragma once

#include <stdexcept>

namespace lumora {

/// The command line cannot be meant so. what() says what is wrong and what to write instead.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace lumora
