#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace lumora {

/// True for anything of that name but a folder.
bool FileExists(const std::string& file_name);

/// The entry of `folder` with this name, letter case ignored (ASCII); an exact match wins. Empty
/// if there is none or the folder cannot be read.
std::optional<std::filesystem::path> FindIgnoringCase(const std::filesystem::path& folder,
                                                      std::string_view name);

/// The folder of the running program, or the one set.
std::filesystem::path ProgramFolder();
/// Sets what ProgramFolder answers; an empty path goes back to the running program's.
void SetProgramFolder(std::filesystem::path folder);

} // namespace lumora
