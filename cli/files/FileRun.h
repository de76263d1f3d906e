#pragma once

#include "cli/files/FileWork.h"
#include "cli/files/FilesRequest.h"

#include <nlohmann/json_fwd.hpp>

namespace lumora {

/// Does the work on each input in a process of its own, shows progress, gives complete results
/// their names, and tells what became of each file: a line each, or one JSON document, in which
/// `asked` stands behind the names. Answers the exit status. UsageError before anything is begun.
int RunOnFiles(const FilesRequest& request, const nlohmann::ordered_json& asked,
               const FileWork& work);

} // namespace lumora
