#include "cli/arr/ArrReport.h"

#include "cli/terminal/Wording.h"
#include "numeric/Stores.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsString.h"

#include <algorithm>
#include <cmath>
#include <concepts>
#include <numeric>
#include <span>
#include <vector>

namespace lumora {

namespace {

constexpr std::size_t kMostRows = 20;
constexpr std::size_t kMostColumns = 8;
constexpr std::size_t kMostCharacters = 40;
constexpr char kLeftOut[] = "...";

/// Which rows or columns of a table are shown, counted from 0: all, or as many at both ends.
struct Lines {
    std::vector<std::int32_t> shown;
    std::size_t left_out = 0;

    bool GapBefore(std::size_t k) const { return left_out > 0 && k == shown.size() / 2; }
};

Lines LinesToShow(std::int32_t count, Shown shown, std::size_t most)
{
    Lines lines;
    lines.shown.resize(static_cast<std::size_t>(count));
    std::iota(lines.shown.begin(), lines.shown.end(), 0);
    if (shown == Shown::All || lines.shown.size() <= most) return lines;
    lines.left_out = lines.shown.size() - most;
    const auto middle = lines.shown.begin() + static_cast<std::ptrdiff_t>(most / 2);
    lines.shown.erase(middle, middle + static_cast<std::ptrdiff_t>(lines.left_out));
    return lines;
}

bool BeginsCharacter(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
}

std::size_t WidthOf(const std::string& text)
{
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), BeginsCharacter));
}

/// Where character `count` of a text begins.
std::size_t PlaceOfCharacter(const std::string& text, std::size_t count)
{
    std::size_t place = 0;
    while (place < text.size() && (!BeginsCharacter(text[place]) || count-- > 0))
        ++place;
    return place;
}

/// A text of at most kMostCharacters.
std::string Shortened(const std::string& text)
{
    constexpr std::size_t kTail = (kMostCharacters - sizeof kLeftOut + 1) / 2;
    constexpr std::size_t kHead = kMostCharacters - sizeof kLeftOut + 1 - kTail;
    const std::size_t width = WidthOf(text);
    if (width <= kMostCharacters) return text;
    return text.substr(0, PlaceOfCharacter(text, kHead)) + kLeftOut +
           text.substr(PlaceOfCharacter(text, width - kTail));
}

/// The elements that are shown, of the cells of a table.
struct Part {
    const ArrContents& contents;
    Lines rows, columns;

    template <class T, class ElementAt> Array<T> Store(ElementAt element_at) const
    {
        Array<T> store = UnwrittenStore<T>({static_cast<std::int32_t>(rows.shown.size()),
                                            static_cast<std::int32_t>(columns.shown.size())});
        auto out = store.Span().begin();
        for (const std::int32_t column : columns.shown)
            for (const std::int32_t row : rows.shown)
                *out++ = element_at(contents.Place(row, column));
        return store;
    }
};

Array<std::string> TextCells(const Part& part, std::span<const std::string> texts, Shown shown)
{
    return part.Store<std::string>([&](std::size_t k) {
        return NameText(shown == Shown::All ? texts[k] : Shortened(texts[k]));
    });
}

Array<std::string> ComplexCells(const Part& part, const ComplexSheet& numbers)
{
    const Ref<clsComplexMatrix> shown = NewMatrix<clsComplexMatrix>(
        part.Store<double>([&](std::size_t k) { return numbers.re[k]; }),
        part.Store<double>([&](std::size_t k) { return numbers.im[k]; }));
    return shown->MatrixToString()->GetRealAll();
}

/// Whole numbers by class have no point, unlike those that happen to be whole.
template <std::integral T>
Array<std::string> NumberCells(const Part& part, std::span<const T> numbers)
{
    Array<std::string> cells = part.Store<std::string>(
        [&](std::size_t k) { return (numbers[k] < 0 ? "" : " ") + std::to_string(numbers[k]); });
    std::size_t width = 0;
    for (const std::string& cell : cells.Span())
        width = std::max(width, cell.size());
    for (std::string& cell : cells.Span())
        cell.insert(0, width - cell.size(), ' ');
    return cells;
}

template <class T> Array<std::string> NumberCells(const Part& part, std::span<const T> numbers)
{
    const Ref<clsMatrix> shown = NewMatrix<clsMatrix>(
        part.Store<double>([&](std::size_t k) { return NumberOf(numbers[k]); }));
    return shown->MatrixToString()->GetRealAll();
}

Array<std::string> Cells(const Part& part, Shown shown)
{
    Array<std::string> cells;
    WithElements(part.contents, [&]<class Elements>(const Elements& elements) {
        if constexpr (std::same_as<Elements, ComplexSheet>)
            cells = ComplexCells(part, elements);
        else if constexpr (std::same_as<Elements, std::span<const std::string>>)
            cells = TextCells(part, elements, shown);
        else if constexpr (requires { NumberOf(elements[0]); })
            cells = NumberCells(part, elements);
    });
    return cells;
}

std::string LeftOutText(const Part& part)
{
    if (part.rows.left_out + part.columns.left_out == 0) return {};
    std::string text = "left out: ";
    if (part.rows.left_out > 0) text += std::to_string(part.rows.left_out) + " rows";
    if (part.rows.left_out > 0 && part.columns.left_out > 0) text += " and ";
    if (part.columns.left_out > 0) text += std::to_string(part.columns.left_out) + " columns";
    return text + "; --all shows them\n";
}

/// JSON has no word for what is not finite.
JsonValue JsonNumber(double x)
{
    if (std::isnan(x)) return "NaN";
    if (std::isinf(x)) return x < 0.0 ? "-Inf" : "Inf";
    return x;
}

template <class T> JsonValue JsonElement(const T& x)
{
    if constexpr (std::same_as<T, ComplexValue>)
        return {{"re", JsonNumber(x.re)}, {"im", JsonNumber(x.im)}};
    else if constexpr (std::integral<T> || std::same_as<T, std::string>)
        return x;
    else
        return JsonNumber(NumberOf(x));
}

} // namespace

std::string ArrTable(const std::string& file, const ArrContents& contents, Shown shown)
{
    const Part part = {contents, LinesToShow(contents.rows, shown, kMostRows),
                       LinesToShow(contents.columns, shown, kMostColumns)};
    const Array<std::string> store = Cells(part, shown);
    const auto cells = store.Span();
    const std::size_t height = part.rows.shown.size();
    std::vector<std::size_t> widths;
    for (std::size_t k = 0; k < cells.size(); ++k) {
        if (k % height == 0) widths.push_back(0);
        widths.back() = std::max(widths.back(), WidthOf(cells[k]));
    }
    std::string text = NameText(file) + ": " + contents.kind + ", " +
                       std::to_string(contents.rows) + " by " + std::to_string(contents.columns) +
                       "\n";
    for (std::size_t i = 0; i < height; ++i) {
        if (part.rows.GapBefore(i)) text += std::string("  ") + kLeftOut + "\n";
        std::string line;
        for (std::size_t j = 0; j < widths.size(); ++j) {
            if (part.columns.GapBefore(j)) line += std::string("  ") + kLeftOut;
            const std::string& cell = cells[j * height + i];
            line += "  " + cell + std::string(widths[j] - WidthOf(cell), ' ');
        }
        text += line.substr(0, line.find_last_not_of(' ') + 1) + "\n";
    }
    return text + LeftOutText(part);
}

JsonValue ArrElements(const ArrContents& contents)
{
    JsonValue table = JsonValue::List();
    WithElements(contents, [&](const auto& elements) {
        if constexpr (requires { JsonElement(elements[0]); })
            for (std::int32_t i = 0; i < contents.rows; ++i) {
                JsonValue row = JsonValue::List();
                for (std::int32_t j = 0; j < contents.columns; ++j)
                    row.Append(JsonElement(elements[contents.Place(i, j)]));
                table.Append(std::move(row));
            }
    });
    return table;
}

} // namespace lumora
