#pragma once

#include "cli/grammar/Grammar.h"

#include <string>
#include <vector>

namespace lumora {

/// The word behind the program's name with which a shell asks what may follow. Help does not tell
/// it: people have no use for it.
inline constexpr char kCompletionWord[] = "__complete";

/// What may stand in the place of the last of these words, which is empty or begun; those before it
/// are the words behind the program's name.
Offers OffersFor(const std::vector<Command>& commands, const std::vector<std::string>& words);

/// The same for the shell's script: "nothing", "words", "files" or "folders" on the first line, and
/// each word on one of its own.
std::string OffersText(const Offers& offers);

} // namespace lumora
