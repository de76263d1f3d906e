#include "cli/files/FilesOptions.h"

#include "cli/terminal/UsageError.h"

namespace lumora {

void AddFilesOptions(Command& command, FilesRequest& request)
{
    constexpr std::size_t kMostJobs = 256;
    const std::vector<Option> options = {
        {"--out-dir", "Folder for the results, made if missing",
         TextValue{&request.folder, "DIR", {Offers::Kind::Folders}}},
        {"--jobs", "Files worked on side by side (1)",
         NumberValue{&request.jobs, "N", 1, kMostJobs}},
        {"--force", "Replace files that exist already", FlagValue{&request.force}},
        {"--json", "Print the results as JSON", FlagValue{&request.json}},
    };
    command.options.insert(command.options.end(), options.begin(), options.end());
    command.names = {"FILE", "IN and OUT, or every IN with --out-dir", &request.inputs};
}

void TakeNames(FilesRequest& request)
{
    std::vector<std::string>& names = request.inputs;
    if (request.folder) {
        if (request.folder->empty()) throw UsageError("--out-dir needs a folder's name");
        if (names.empty()) throw UsageError("name the files to work on");
        return;
    }
    if (names.size() > 2)
        throw UsageError("several inputs need a folder for their results: --out-dir DIR");
    if (names.size() < 2) throw UsageError("name an input and an output");
    request.output = names.back();
    names.pop_back();
}

} // namespace lumora
