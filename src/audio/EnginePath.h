#pragma once

#include <filesystem>
#include <string>

namespace lumora {

/// The path as the engine takes it. Its reader puts ".wav" behind a path without any ".", so that
/// "song" would open "song.wav"; "./" ahead of the last part keeps the name what it is.
inline std::string EnginePath(const std::string& path)
{
    const std::filesystem::path whole(path);
    return (whole.parent_path() / "." / whole.filename()).string();
}

} // namespace lumora
