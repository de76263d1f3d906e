#include "cli/files/OutputPlan.h"

#include "cli/terminal/UsageError.h"
#include "cli/terminal/Wording.h"

#include <filesystem>
#include <map>
#include <set>
#include <sys/stat.h>
#include <utility>

namespace lumora {

namespace fs = std::filesystem;

namespace {

using FileId = std::pair<dev_t, ino_t>;

std::set<FileId> IdsOf(const std::vector<std::string>& files)
{
    std::set<FileId> ids;
    for (const std::string& file : files) {
        struct stat status = {};
        if (stat(file.c_str(), &status) == 0) ids.insert({status.st_dev, status.st_ino});
    }
    return ids;
}

/// One path for all the ways to write it.
fs::path PlaceOf(const std::string& name)
{
    std::error_code unreachable;
    const fs::path place = fs::weakly_canonical(fs::absolute(name, unreachable), unreachable);
    return unreachable ? fs::path(name) : place;
}

std::string OutputName(const FilesRequest& request, const std::string& input)
{
    if (!request.folder) return request.output;
    return (fs::path(*request.folder) / fs::path(input).stem()).string() + ".wav";
}

void RefuseInput(const OutputFile& output, const std::set<FileId>& inputs)
{
    for (const FileId& id : IdsOf({output.Target()}))
        if (inputs.contains(id))
            throw UsageError(NameText(output.Name()) +
                             " is an input as well; give the result another name");
}

void RefuseTwins(const std::vector<OutputFile>& outputs, const std::vector<std::string>& inputs)
{
    std::map<fs::path, std::size_t> owners;
    for (std::size_t k = 0; k < outputs.size(); ++k) {
        const fs::path place = PlaceOf(outputs[k].Target());
        const auto [owner, is_new] = owners.insert({place, k});
        if (!is_new)
            throw UsageError("the results of " + NameText(inputs[owner->second]) + " and " +
                             NameText(inputs[k]) + " would both be " + NameText(outputs[k].Name()) +
                             "; work on them in two runs");
    }
}

void RefusePicture(const OutputFile& picture, const std::vector<OutputFile>& results)
{
    for (const OutputFile& result : results)
        if (PlaceOf(result.Target()) == PlaceOf(picture.Target()))
            throw UsageError("the result and the picture would both be " +
                             NameText(picture.Name()) + "; give the picture another name");
}

} // namespace

OutputPlan PlanOutputs(const FilesRequest& request)
{
    const Existing existing = request.force ? Existing::Replace : Existing::Keep;
    const Folder folder = request.folder ? Folder::MakeIt : Folder::MustExist;
    const std::set<FileId> inputs = IdsOf(request.inputs);
    OutputPlan plan;
    for (const std::string& input : request.inputs)
        plan.results.emplace_back(OutputName(request, input), existing, folder);
    RefuseTwins(plan.results, request.inputs);
    for (const OutputFile& result : plan.results)
        RefuseInput(result, inputs);
    if (request.picture.empty()) return plan;
    plan.picture.emplace(request.picture, existing, Folder::MustExist);
    RefusePicture(*plan.picture, plan.results);
    RefuseInput(*plan.picture, inputs);
    return plan;
}

} // namespace lumora
