#pragma once

#include <string>

/// Words for the one line that tells what is wrong with a file.
namespace lumora {

/// A file's name on one line: control characters become "?".
std::string NameText(const std::string& name);
/// The system's words for an error code, without a capital: "permission denied".
std::string SystemText(int error_code);
/// The call failed for want of descriptors, processes or memory: it may succeed once others have
/// ended.
bool IsShortage(int error_code);
/// What to do about it, to follow what went wrong: "; make room and run it again". Empty where the
/// error does not tell.
std::string Advice(int error_code);

} // namespace lumora
