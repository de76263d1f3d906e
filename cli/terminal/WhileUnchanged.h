#pragma once

#include "cli/terminal/JobFailure.h"
#include "platform/WatchedFile.h"

#include <exception>

namespace lumora {

/// What an action makes of a file that it reads. JobFailure if the file is not in the end what it
/// was when it was found: then neither the result nor the reason of another failure means anything.
template <class Action> auto WhileUnchanged(const WatchedFile& file, Action action)
{
    try {
        auto result = action();
        FailFor(file.Change());
        return result;
    } catch (const std::exception&) {
        FailFor(file.Change());
        throw;
    }
}

} // namespace lumora
