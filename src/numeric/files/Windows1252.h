#pragma once

#include <string>
#include <string_view>

namespace lumora {

/// The code page of texts in matrix files: one byte a character, ASCII below 0x80, Western letters
/// and signs above. The five bytes to which it gives no character stand for the control characters
/// of the same code, so that every byte comes back as it was. Texts in memory are UTF-8.
std::string Utf8FromWindows1252(std::string_view bytes);

/// Error 5 for a character that the code page does not have and for what is no UTF-8.
std::string Windows1252FromUtf8(std::string_view text);

} // namespace lumora
