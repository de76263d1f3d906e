#pragma once

#include <string_view>
#include <vector>

namespace lumora {

/// Shows each message at most once. One lives for one operation, whatever its elements.
class OneTelling {
public:
    /// Shows `text` unless this operation has shown it, and gives the value to go on with.
    double Instead(const char* text, double value);

private:
    std::vector<std::string_view> told_;
};

} // namespace lumora
