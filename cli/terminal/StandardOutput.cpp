#include "cli/terminal/StandardOutput.h"

#include <nlohmann/json.hpp>

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

void PrintJson(const nlohmann::ordered_json& document)
{
    PrintText(document.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) + "\n");
}

bool AllWasPrinted()
{
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return true;
    PrintError("the answer could not be written to standard output");
    return false;
}

} // namespace lumora
