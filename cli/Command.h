#pragma once

#include <string>
#include <vector>

namespace lumora {

/// The whole command: the words behind its name in, the exit status out. 0 all done, 1 a file
/// failed or the answer could not be printed, 2 wrong usage, 128 + n ended by the signal n.
int RunCommand(std::vector<std::string> words);

} // namespace lumora
