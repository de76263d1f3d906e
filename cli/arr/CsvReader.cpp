#include "base/Numbers.h"
#include "base/Text.h"
#include "cli/arr/Csv.h"
#include "cli/terminal/JobFailure.h"
#include "cli/terminal/Wording.h"
#include "numeric/ComplexText.h"
#include "numeric/Stores.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsString.h"
#include "numeric/files/Windows1252.h"

#include <cmath>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

namespace lumora {

namespace {

constexpr std::size_t kMostTextBytes = 65535;

/// Cuts a table into its cells, line by line.
class CsvCells {
public:
    explicit CsvCells(std::string_view text) : left_(text)
    {
        constexpr std::string_view kMark = "\xEF\xBB\xBF";
        if (left_.starts_with(kMark)) left_.remove_prefix(kMark.size());
    }

    std::int64_t Line() const { return line_; } ///< of the row that came last, from 1

    /// The cells of the next line that is not empty; false at the end.
    bool Next(std::vector<std::string>& cells)
    {
        while (!left_.empty() && TakeLineEnd())
            ++next_line_;
        cells.clear();
        if (left_.empty()) return false;
        line_ = next_line_;
        do
            cells.push_back(TakeCell());
        while (Take(","));
        if (!left_.empty() && !TakeLineEnd())
            throw JobFailure(
                "line " + std::to_string(line_) +
                ": something follows a closing quote; double the quotes inside a text");
        ++next_line_;
        return true;
    }

private:
    bool Take(std::string_view mark)
    {
        if (!left_.starts_with(mark)) return false;
        left_.remove_prefix(mark.size());
        return true;
    }
    bool TakeLineEnd() { return Take("\n") || Take("\r\n"); }

    std::string TakeCell()
    {
        if (Take("\"")) return TakeQuoted();
        std::size_t end = std::min(left_.find_first_of(",\n"), left_.size());
        if (end > 0 && end < left_.size() && left_[end] == '\n' && left_[end - 1] == '\r') --end;
        std::string cell(left_.substr(0, end));
        left_.remove_prefix(end);
        return cell;
    }

    std::string TakeQuoted()
    {
        std::string cell;
        while (true) {
            const std::size_t quote = left_.find('"');
            if (quote == std::string_view::npos)
                throw JobFailure("line " + std::to_string(line_) +
                                 ": a quote is opened and not closed; close it");
            cell += left_.substr(0, quote);
            left_.remove_prefix(quote + 1);
            if (!Take("\"")) break;
            cell += '"';
        }
        for (const char c : cell)
            next_line_ += c == '\n' ? 1 : 0;
        return cell;
    }

    std::string_view left_;
    std::int64_t line_ = 0;
    std::int64_t next_line_ = 1;
};

/// A number, or one of the names of what is not finite.
std::optional<double> NumberInCell(std::string_view text)
{
    const std::string name = Lower(TrimBlanks(text));
    if (name == "nan") return std::numeric_limits<double>::quiet_NaN();
    if (name == "inf" || name == "+inf") return std::numeric_limits<double>::infinity();
    if (name == "-inf") return -std::numeric_limits<double>::infinity();
    return SpelledNumber(text);
}

// What becomes of a cell in each class; a JobFailure says what is wrong with it.

double AsNumber(const std::string& cell)
{
    const std::optional<double> number = NumberInCell(cell);
    if (!number) throw JobFailure("is no number; mend it, or choose --as string");
    return *number;
}

std::int32_t AsWhole(const std::string& cell)
{
    const double number = AsNumber(cell);
    if (std::nearbyint(number) != number)
        throw JobFailure("is no whole number; round it, or choose --as matrix");
    if (std::abs(number + 0.5) > 2147483647.5)
        throw JobFailure("does not fit 32 bits; choose --as matrix");
    return CLng(number);
}

ComplexValue AsComplexNumber(const std::string& cell)
{
    const std::optional<ComplexValue> number = SpelledComplex(cell, NumberInCell);
    if (!number) throw JobFailure("is no complex number; write it as 1-2i, or choose --as string");
    return *number;
}

std::string AsText(const std::string& cell)
{
    try {
        if (Windows1252FromUtf8(cell).size() <= kMostTextBytes) return cell;
    } catch (const RunTimeError&) {
        throw JobFailure("has a character that a matrix file cannot hold (it has those of "
                         "Windows-1252, and the table must be UTF-8); write it otherwise");
    }
    throw JobFailure("is longer than the 65535 bytes that a text in a matrix file can have; "
                     "shorten it");
}

/// The elements row by row, and how many there are in a row.
template <class T> struct CsvTable {
    std::vector<T> elements;
    std::size_t columns = 0;

    Sizes Shape() const
    {
        return {CLng(static_cast<std::int64_t>(elements.size() / columns)),
                CLng(static_cast<std::int64_t>(columns))};
    }

    /// A store of the elements in column-major order, each as `part` has it.
    template <class Part> auto Store(Part part) const
    {
        using Element = std::remove_cvref_t<decltype(part(elements.front()))>;
        Array<Element> store = UnwrittenStore<Element>(Shape());
        auto out = store.Span().begin();
        for (std::size_t j = 0; j < columns; ++j)
            for (std::size_t k = j; k < elements.size(); k += columns)
                *out++ = part(elements[k]);
        return store;
    }
    auto Store() const
    {
        return Store([](const T& element) { return element; });
    }
};

template <class T>
CsvTable<T> ReadTable(std::string_view text, T (*element_of)(const std::string&),
                      const std::function<void()>& tick)
{
    CsvCells lines(text);
    CsvTable<T> table;
    std::vector<std::string> cells;
    std::int64_t first_line = 0;
    while (lines.Next(cells)) {
        tick();
        const std::string line = "line " + std::to_string(lines.Line());
        if (first_line == 0) {
            first_line = lines.Line();
            table.columns = cells.size();
        }
        if (cells.size() != table.columns)
            throw JobFailure(line + " has " + std::to_string(cells.size()) + " cells, and line " +
                             std::to_string(first_line) + " has " + std::to_string(table.columns) +
                             "; make them even");
        for (std::size_t k = 0; k < cells.size(); ++k) {
            try {
                table.elements.push_back(element_of(cells[k]));
            } catch (const JobFailure& failure) {
                constexpr std::size_t kQuoted = 40;
                throw JobFailure(line + ", cell " + std::to_string(k + 1) + ": \"" +
                                 NameText(cells[k].substr(0, kQuoted)) + "\" " + failure.what());
            }
        }
    }
    if (first_line == 0) throw JobFailure("holds only empty lines; there is no table in it");
    return table;
}

} // namespace

Variant ReadCsv(std::string_view text, ArrClass as, const std::function<void()>& tick)
{
    switch (as) {
    case ArrClass::Long:
        return NewMatrix<clsLong>(ReadTable(text, AsWhole, tick).Store());
    case ArrClass::String:
        return NewMatrix<clsString>(ReadTable(text, AsText, tick).Store());
    case ArrClass::Complex: {
        const CsvTable<ComplexValue> table = ReadTable(text, AsComplexNumber, tick);
        return NewMatrix<clsComplexMatrix>(table.Store([](ComplexValue z) { return z.re; }),
                                           table.Store([](ComplexValue z) { return z.im; }));
    }
    default:
        return NewMatrix<clsMatrix>(ReadTable(text, AsNumber, tick).Store());
    }
}

} // namespace lumora
