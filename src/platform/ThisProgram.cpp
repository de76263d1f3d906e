#include "platform/ThisProgram.h"

#include <system_error>

namespace lumora {

std::filesystem::path FolderOfThisProgram()
{
    std::error_code ignored;
    return std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path();
}

} // namespace lumora
