#include "cli/Commands.h"

#include "cli/arr/ArrCommand.h"
#include "cli/declip/DeclipCommand.h"
#include "cli/info/InfoCommand.h"
#include "cli/pitch/PitchCommand.h"

namespace lumora {

std::vector<Command> AllCommands()
{
    return {PitchCommand(), DeclipCommand(), InfoCommand(), ArrCommand()};
}

} // namespace lumora
