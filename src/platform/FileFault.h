#pragma once

#include <string>

namespace lumora {

/// Why there is nothing to read under this name at all, as one line; empty if there may be.
/// `wanted` is what the file should hold: "sound".
std::string FileFault(const std::string& path, const std::string& wanted);

} // namespace lumora
