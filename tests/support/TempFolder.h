#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace lumora::test {

/// Everything in a file.
inline std::string BytesOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::runtime_error("cannot read " + path);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// An empty folder of its own that goes, with all in it, at the end of the scope.
class TempFolder {
public:
    TempFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "lumora-XXXXXX").string();
        if (!mkdtemp(name.data())) throw std::runtime_error("cannot make " + name);
        folder_ = name;
    }
    ~TempFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& Path() const { return folder_; }

    /// The path of an entry, which need not be there.
    std::string operator/(const std::string& name) const { return (folder_ / name).string(); }

    /// Makes a file of these bytes; answers its path.
    std::string Write(const std::string& name, const std::string& bytes) const
    {
        std::ofstream file(folder_ / name, std::ios::binary);
        file << bytes;
        if (!file.flush()) throw std::runtime_error("cannot write " + *this / name);
        return *this / name;
    }

    std::string MakeFolder(const std::string& name) const
    {
        std::filesystem::create_directory(folder_ / name);
        return *this / name;
    }

private:
    std::filesystem::path folder_;
};

} // namespace lumora::test
