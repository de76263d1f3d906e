#pragma once

#include "cli/files/InputCheck.h"
#include "cli/terminal/JsonValue.h"

#include <string>

namespace lumora {

/// What there is to tell about one file.
struct InfoReport {
    std::string file;
    InputCheck check;

    /// Lines for a reader, the first being the file's name.
    std::string Text() const;
    /// The same for a program; the fields are described in the man page.
    JsonValue Json() const;
};

} // namespace lumora
