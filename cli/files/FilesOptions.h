#pragma once

#include "cli/files/FilesRequest.h"
#include "cli/grammar/Grammar.h"

namespace lumora {

/// Gives a command the words that all commands have that make sound files of sound files; they fill
/// the request, all names its inputs. Its own options stand ahead of these in help.
void AddFilesOptions(Command& command, FilesRequest& request);

/// Once the line is read: tells inputs and output apart. UsageError where that cannot be done.
void TakeNames(FilesRequest& request);

} // namespace lumora
