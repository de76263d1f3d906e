#pragma once

#include <string>
#include <sys/stat.h>

namespace lumora {

/// Nobody meant to write to this file: its owner has no permission to, or this process has none.
bool IsWriteProtected(const std::string& path, const struct stat& status);

/// Gives an open file of this process the permissions of another file: mode and access list, owner
/// and group where the system allows it. It never becomes open to more than that one was: where the
/// group stays another, that group may do what everybody may. Answers an error code, 0 if done;
/// a model that is not there is nothing to follow.
[[nodiscard]] int TakeRightsOf(const std::string& model, int file);

} // namespace lumora
