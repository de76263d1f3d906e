#include "cli/Command.h"

#include "cli/Commands.h"
#include "cli/grammar/CommandLine.h"
#include "cli/grammar/Completion.h"
#include "cli/terminal/StandardOutput.h"
#include "cli/terminal/UsageError.h"

#include <cstdlib>
#include <exception>
#include <utility>

namespace lumora {

namespace {

constexpr int kWrongUsage = 2;

int Print(const std::string& text)
{
    PrintText(text);
    return AllWasPrinted() ? EXIT_SUCCESS : EXIT_FAILURE;
}

int Run(const std::vector<Command>& commands, std::vector<std::string> words)
{
    if (!words.empty() && words.front() == kCompletionWord) {
        words.erase(words.begin());
        return Print(OffersText(OffersFor(commands, words)));
    }
    const Asked asked = ReadCommandLine(commands, std::move(words));
    return asked.command ? asked.command->run() : Print(asked.text);
}

} // namespace

int RunCommand(std::vector<std::string> words)
{
    try {
        return Run(AllCommands(), std::move(words));
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
