#include "cli/info/InfoCommand.h"

#include "cli/info/InfoReport.h"
#include "cli/terminal/JsonValue.h"
#include "cli/terminal/StandardOutput.h"
#include "cli/terminal/UsageError.h"
#include "cli/terminal/Wording.h"

#include <cstdlib>
#include <memory>

namespace lumora {

namespace {

/// `lumora info`, as it was given.
struct InfoRequest {
    std::vector<std::string> files;
    bool json = false;
};

int RunInfo(const InfoRequest& request)
{
    if (request.files.empty()) throw UsageError("name the files to look at");
    JsonValue results = JsonValue::List();
    bool all_read = true;
    for (const std::string& file : request.files) {
        const InfoReport report{file, CheckInput(file, kPitchLimits)};
        all_read = all_read && report.check.read;
        if (request.json)
            results.Append(report.Json());
        else if (report.check.read)
            PrintText(report.Text());
        else
            PrintError(NameText(file) + ": " + report.check.reason);
    }
    if (request.json) PrintResults(std::move(results));
    return AllWasPrinted() && all_read ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

Command InfoCommand()
{
    const auto request = std::make_shared<InfoRequest>();
    return {
        .name = "info",
        .text = "Tell what is in sound files",
        .usage = {"FILE... [OPTIONS]"},
        .names = {"FILE", "Sound files", &request->files},
        .options = {{"--json", "Print the answers as JSON", FlagValue{&request->json}}},
        .run = [request] { return RunInfo(*request); },
    };
}

} // namespace lumora
