#include "base/Paths.h"

#include "base/Text.h"

#include <system_error>
#include <utility>

namespace lumora {

namespace fs = std::filesystem;

namespace {

fs::path& FolderSet()
{
    static fs::path folder;
    return folder;
}

} // namespace

bool FileExists(const std::string& file_name)
{
    std::error_code ignored;
    const fs::file_status status = fs::status(file_name, ignored);
    return fs::exists(status) && !fs::is_directory(status);
}

std::optional<fs::path> FindIgnoringCase(const fs::path& folder, std::string_view name)
{
    std::optional<fs::path> found;
    std::error_code failure;
    for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end;
         entry.increment(failure)) {
        const std::string here = entry->path().filename().string();
        if (here == name) return entry->path();
        if (EqualIgnoringCase(here, name) && (!found || entry->path() < *found))
            found = entry->path();
    }
    return found;
}

fs::path ProgramFolder()
{
    return FolderSet();
}

void SetProgramFolder(fs::path folder)
{
    FolderSet() = std::move(folder);
}

} // namespace lumora
