#pragma once

#include "cli/files/InputCheck.h"

#include <nlohmann/json_fwd.hpp>

#include <string>

namespace lumora {

/// What there is to tell about one file.
struct InfoReport {
    std::string file;
    InputCheck check;

    /// Lines for a reader, the first being the file's name.
    std::string Text() const;
    /// The same for a program; the fields are described in the man page.
    nlohmann::ordered_json Json() const;
};

} // namespace lumora
