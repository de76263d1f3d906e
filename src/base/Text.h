#pragma once

#include <string>
#include <string_view>

namespace lumora {

/// The text with ASCII letters in lower case.
std::string Lower(std::string_view text);

/// True if the texts are equal but for the case of ASCII letters.
bool EqualIgnoringCase(std::string_view a, std::string_view b);

/// The text without the blanks at its ends.
std::string_view TrimBlanks(std::string_view text);

} // namespace lumora
