#pragma once

#include "base/Numbers.h"
#include "numeric/Sheets.h"

#include <optional>
#include <string_view>

namespace lumora {

/// What number a text spells, if any.
using SpelledNumberRule = std::optional<double> (*)(std::string_view text);

/// The complex number that a text spells: a real number; "i" with a number, a sign or nothing
/// before it; or both, joined by a sign: "1-3e-2i", "1 + i". Nothing if the text spells none.
/// `spelled` reads the numbers.
std::optional<ComplexValue> SpelledComplex(std::string_view text,
                                           SpelledNumberRule spelled = SpelledNumber);

} // namespace lumora
