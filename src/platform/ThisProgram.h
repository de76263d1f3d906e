#pragma once

#include <filesystem>

namespace lumora {

/// The folder in which the file of the running program lies, links followed; empty where the system
/// does not tell.
std::filesystem::path FolderOfThisProgram();

} // namespace lumora
