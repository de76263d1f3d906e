#include "cli/Command.h"

#include "cli/CommandLine.h"
#include "cli/terminal/StandardOutput.h"
#include "cli/terminal/UsageError.h"

#include <cstdlib>
#include <exception>
#include <utility>

namespace lumora {

namespace {

constexpr int kWrongUsage = 2;

int Run(const PitchRequest& request)
{
    return RunPitchCommand(request);
}
int Run(const DeclipRequest& request)
{
    return RunDeclipCommand(request);
}
int Run(const InfoRequest& request)
{
    return RunInfoCommand(request);
}
int Run(const ArrRequest& request)
{
    return RunArrCommand(request);
}
int Run(const HelpRequest& request)
{
    PrintText(request.text);
    return AllWasPrinted() ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int RunCommand(std::vector<std::string> words)
{
    try {
        return std::visit([](const auto& request) { return Run(request); },
                          ReadCommandLine(std::move(words)));
    } catch (const UsageError& error) {
        PrintError(error.what());
        PrintError("lumora help and lumora help COMMAND tell more");
        return kWrongUsage;
    } catch (const std::exception& error) {
        PrintError(error.what());
        return EXIT_FAILURE;
    }
}

} // namespace lumora
