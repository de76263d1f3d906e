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

/// The folder of the program that uses the library. The library asks no system for it: it is empty
/// until the program sets it.
std::filesystem::path ProgramFolder();
void SetProgramFolder(std::filesystem::path folder);

} // namespace lumora
