#include "cli/terminal/StandardOutput.h"

#include "cli/terminal/JsonValue.h"

#include <cstdio>

namespace lumora {

void PrintText(const std::string& text)
{
    std::fwrite(text.data(), 1, text.size(), stdout); // it may hold zero bytes
    std::fflush(stdout);
}

void PrintError(const std::string& line)
{
    std::fputs(("lumora: " + line + "\n").c_str(), stderr);
}

void PrintResults(JsonValue results)
{
    JsonValue document = JsonValue::Object();
    document.Set("results", std::move(results));
    PrintText(document.Lines() + "\n");
}

bool AllWasPrinted()
{
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return true;
    PrintError("the answer could not be written to standard output");
    return false;
}

} // namespace lumora
