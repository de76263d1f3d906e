#include "cli/arr/Csv.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace lumora {

namespace {

template <class T> std::string Shortest(T number)
{
    std::array<char, 64> text;
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), number).ptr};
}

template <class T>
requires std::is_floating_point_v<T> std::string CellText(T x)
{
    if (std::isnan(x)) return "NaN";
    if (std::isinf(x)) return x < 0 ? "-Inf" : "Inf";
    return Shortest(x);
}

template <class T>
requires std::is_integral_v<T> std::string CellText(T x)
{
    return std::to_string(x);
}

std::string CellText(Currency money)
{
    constexpr std::int64_t kParts = 10000;
    const std::string part = std::to_string(kParts + std::abs(money.ten_thousandths % kParts));
    return (money.ten_thousandths < 0 ? "-" : "") +
           std::to_string(std::abs(money.ten_thousandths / kParts)) + "." + part.substr(1);
}

std::string CellText(Date date)
{
    return CellText(date.days);
}

std::string CellText(ComplexValue z)
{
    const bool minus = std::signbit(z.im) && !std::isnan(z.im);
    return CellText(z.re) + (minus ? "-" : "+") + CellText(std::abs(z.im)) + "i";
}

std::string CellText(const std::string& text)
{
    const bool plain = !text.empty() && text.front() != ' ' && text.back() != ' ' &&
                       text.find_first_of(",\"\r\n") == std::string::npos &&
                       !text.starts_with("\xEF\xBB\xBF");
    if (plain) return text;
    std::string quoted = "\"";
    for (const char c : text)
        quoted.append(c == '"' ? 2 : 1, c);
    return quoted + "\"";
}

} // namespace

void WriteCsv(const ArrContents& contents, const std::function<void(const std::string&)>& put)
{
    constexpr std::size_t kPiece = 1 << 16;
    std::string piece;
    WithElements(contents, [&](const auto& elements) {
        if constexpr (requires { CellText(elements[0]); }) {
            for (std::int32_t i = 0; i < contents.rows; ++i) {
                for (std::int32_t j = 0; j < contents.columns; ++j)
                    piece += (j > 0 ? "," : "") + CellText(elements[contents.Place(i, j)]);
                piece += '\n';
                if (piece.size() < kPiece) continue;
                put(piece);
                piece.clear();
            }
        }
    });
    put(piece);
}

} // namespace lumora
