#pragma once

#include <string>

/// Names of files that do not outlive the program that makes them. Each tells its maker: the
/// machine and its start, the process and its start; so what a killed program has left can be known
/// from what a living one needs.
namespace lumora {

/// A hidden name beside `target` that nobody else has, made by this process.
std::string TemporaryBeside(const std::string& target, const std::string& ending);

/// Removes what killed programs have left in a folder: ordinary files of this user with such a name
/// whose process is gone for certain. What came from another machine, another start of this one, or
/// a container apart stays, as nobody here can know of its process. A folder that cannot be read is
/// left alone.
void RemoveAbandoned(const std::string& folder);

} // namespace lumora
