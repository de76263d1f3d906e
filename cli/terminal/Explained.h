#pragma once

#include "base/RunTimeError.h"

#include <string>

namespace lumora {

/// A run-time error in the words of whoever started the command: what is wrong and what to do.
std::string Explained(const RunTimeError& error);

} // namespace lumora
