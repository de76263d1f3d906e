#pragma once

#include "cli/arr/ArrCells.h"
#include "cli/terminal/JsonValue.h"

#include <string>

namespace lumora {

enum class Shown { Ends, All };

/// Lines for a reader: name, class and sizes, then the elements as a table. Numbers are as
/// MatrixToString has them, those of a class of whole numbers without its point. A table with many
/// rows or columns, and a long text, lose their middle unless all is wanted; what is left out is
/// told.
std::string ArrTable(const std::string& file, const ArrContents& contents, Shown shown);

/// The elements as an array of rows. Complex ones are objects with "re" and "im", what is not
/// finite is the text "NaN", "Inf" or "-Inf", money and dates are numbers.
JsonValue ArrElements(const ArrContents& contents);

} // namespace lumora
