#pragma once

#include <string>

/// Words for the one line that tells what is wrong with a file.
namespace lumora {

/// A file's name on one line: control characters become "?".
std::string NameText(const std::string& name);
/// The system's words for an error code, without a capital: "permission denied".
std::string SystemText(int error_code);

} // namespace lumora
