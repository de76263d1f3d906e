#include "overfilter/RemoveUnlessKept.h"

#include <filesystem>
#include <system_error>
#include <utility>

namespace lumora {

RemoveUnlessKept::RemoveUnlessKept(std::string file_name) : file_name_(std::move(file_name)) {}

RemoveUnlessKept::~RemoveUnlessKept()
{
    std::error_code ignored;
    if (!kept_ && std::filesystem::is_regular_file(file_name_, ignored))
        std::filesystem::remove(file_name_, ignored);
}

} // namespace lumora
