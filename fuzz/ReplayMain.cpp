// Runs a fuzz target over given files, and over all files in given folders, where no fuzzer is.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

bool RunOver(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    if (!file) {
        std::cerr << "cannot read " << path << '\n';
        return false;
    }
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    return true;
}

std::vector<fs::path> FilesOf(const fs::path& path)
{
    if (!fs::is_directory(path)) return {path};
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(path))
        if (entry.is_regular_file()) files.push_back(entry.path());
    return files;
}

} // namespace

int main(int argc, char** argv)
{
    int count = 0;
    bool all_read = true;
    for (int k = 1; k < argc; ++k)
        for (const fs::path& file : FilesOf(argv[k])) {
            all_read = RunOver(file) && all_read;
            ++count;
        }
    std::cout << count << " inputs\n";
    if (count == 0) std::cerr << "nothing to run over\n";
    return count > 0 && all_read ? 0 : 1;
}
