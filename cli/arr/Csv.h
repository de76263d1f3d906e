#pragma once

#include "cli/arr/ArrCells.h"

#include <functional>
#include <string>
#include <string_view>

/// Tables of comma-separated cells, UTF-8: a row a line, texts with a comma, a quote, a line end or
/// a blank at their ends in double quotes, quotes inside them doubled. Numbers have as many digits
/// as it takes to read the same number back; "NaN", "Inf" and "-Inf" are numbers too; a complex
/// number is "1-2i"; money has four digits behind the point, a date is its number of days.
namespace lumora {

/// What a table can become.
enum class ArrClass { Matrix, Long, String, Complex };

/// Hands the table over piece by piece, whole lines each.
void WriteCsv(const ArrContents& contents, const std::function<void(const std::string&)>& put);

/// The object of this class that a table holds. Empty lines are passed over; line ends may be LF or
/// CR LF. `tick` is called now and then. JobFailure with line and cell for a table that is uneven
/// or empty, a cell that does not fit the class, a text that no matrix file can hold, a quote that
/// stays open.
Variant ReadCsv(std::string_view text, ArrClass as, const std::function<void()>& tick);

} // namespace lumora
