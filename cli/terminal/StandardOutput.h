#pragma once

#include <string>

namespace lumora {

class JsonValue;

/// Text to standard output at once, so that a reader of a pipe has it as soon as it is true.
void PrintText(const std::string& text);
/// A line to standard error behind the command's name.
void PrintError(const std::string& line);
/// A list of results, one for each file, as one JSON document. Bytes of names that are no UTF-8 are
/// replaced.
void PrintResults(JsonValue results);

/// False, with a line on standard error, if something printed did not reach its reader.
bool AllWasPrinted();

/// The exit status of a command that a signal has ended, as a shell counts it.
inline constexpr int StatusOfSignal(int signal)
{
    return 128 + signal;
}

} // namespace lumora
