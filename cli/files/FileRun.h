#pragma once

#include "cli/files/FileWork.h"
#include "cli/files/FilesRequest.h"

namespace lumora {

/// Does the work on each input in a process of its own, shows progress, gives complete results
/// their names, and tells what became of each file: a line each, or one JSON document, in which
/// `asked` stands behind the names. Answers the exit status. UsageError before anything is begun.
int RunOnFiles(const FilesRequest& request, const JsonValue& asked, const FileWork& work);

} // namespace lumora
