#pragma once

#include <nlohmann/json_fwd.hpp>

#include <string>

namespace lumora {

/// Text to standard output at once, so that a reader of a pipe has it as soon as it is true.
void PrintText(const std::string& text);
/// A line to standard error behind the command's name.
void PrintError(const std::string& line);
/// The results as one JSON document. Bytes of names that are no UTF-8 are replaced.
void PrintJson(const nlohmann::ordered_json& document);

/// False, with a line on standard error, if something printed did not reach its reader.
bool AllWasPrinted();

} // namespace lumora
