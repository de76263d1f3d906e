#include "cli/info/InfoCommand.h"

#include "cli/info/InfoReport.h"
#include "cli/terminal/StandardOutput.h"
#include "cli/terminal/Wording.h"

#include <nlohmann/json.hpp>

#include <cstdlib>

namespace lumora {

int RunInfoCommand(const InfoRequest& request)
{
    nlohmann::ordered_json results = nlohmann::ordered_json::array();
    bool all_read = true;
    for (const std::string& file : request.files) {
        const InfoReport report{file, CheckInput(file, kPitchLimits)};
        all_read = all_read && report.check.read;
        if (request.json)
            results.push_back(report.Json());
        else if (report.check.read)
            PrintText(report.Text());
        else
            PrintError(NameText(file) + ": " + report.check.reason);
    }
    if (request.json) PrintJson({{"results", std::move(results)}});
    return AllWasPrinted() && all_read ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace lumora
