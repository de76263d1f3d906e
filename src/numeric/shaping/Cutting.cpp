#include "numeric/Operands.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsMatrixComplex.h"
#include "numeric/clsString.h"
#include "numeric/clsVariant.h"
#include "numeric/shaping/ShapedStores.h"

#include <algorithm>
#include <optional>
#include <span>

// OutMatrix cuts a window, OutMatrixByVector picks listed rows or columns: one rule for all
// classes.

namespace lumora {

namespace {

/// Rows top..bottom of columns left..right.
struct Window {
    std::int32_t top;
    std::int32_t left;
    std::int32_t bottom;
    std::int32_t right;
};

bool IsRow(Sizes sizes)
{
    return sizes.rows == 1;
}

bool IsColumn(Sizes sizes)
{
    return sizes.rows != 1 && sizes.columns == 1;
}

const char* RangeMessage(Sizes sizes)
{
    return IsRow(sizes) ? kRowRange : IsColumn(sizes) ? kColumnRange : kMatrixRange;
}

std::nullopt_t Told(const char* message)
{
    ShowPlainMessage(message);
    return std::nullopt;
}

bool IsRange(std::int32_t first, std::int32_t last, std::int32_t size)
{
    return 1 <= first && first <= last && last <= size;
}

/// What the arguments of OutMatrix mean on a matrix of these sizes; nothing after a message. Of a
/// row only the columns count, of a column only the rows.
std::optional<Window> WindowIn(Sizes sizes, Window asked)
{
    const bool lone = asked.bottom == 0 && asked.right == 0;
    if (IsRow(sizes))
        asked = {1, lone ? asked.top : asked.left, 1, lone ? asked.left : asked.right};
    else if (IsColumn(sizes))
        asked = {asked.top, 1, lone ? asked.left : asked.bottom, 1};
    else if (lone)
        return Told(kMissingTwo);
    if (IsRange(asked.top, asked.bottom, sizes.rows) &&
        IsRange(asked.left, asked.right, sizes.columns))
        return asked;
    return Told(RangeMessage(sizes));
}

template <class T> std::span<const T> Columns(const Sheet<T>& from, std::int32_t first, int count)
{
    const auto rows = static_cast<std::size_t>(from.rows);
    return from.values.subspan(static_cast<std::size_t>(first - 1) * rows,
                               static_cast<std::size_t>(count) * rows);
}

template <class T> Array<T> CutOut(const Sheet<T>& from, const Window& window)
{
    const Sizes sizes{window.bottom - window.top + 1, window.right - window.left + 1};
    Array<T> cut = UnwrittenStore<T>(sizes);
    const auto columns = Columns(from, window.left, sizes.columns);
    if (sizes.rows == from.rows) {
        std::copy(columns.begin(), columns.end(), cut.Span().begin());
        return cut;
    }
    auto to = cut.Span().begin();
    for (auto column = columns.begin(); column != columns.end(); column += from.rows)
        to = std::copy_n(column + (window.top - 1), sizes.rows, to);
    return cut;
}

/// What OutMatrixByVector takes: listed rows of columns left..right, or all of the listed columns.
struct Pick {
    enum class Of { Rows, Columns };
    Of of;
    std::span<const std::int32_t> list;
    std::int32_t left;
    std::int32_t right;
};

/// Null after the message about what stands in the place of a list.
const clsLong* IndexList(const Variant& indices)
{
    const std::string* tag = TagOf(indices);
    if (tag && *tag == kTag<clsLong>) return &ObjectOf<clsLong>(indices);
    ShowPlainMessage(tag ? kIndicesMustBeLong : kIndicesMustBeObject);
    return nullptr;
}

std::optional<Pick> PickIn(Sizes sizes, const Variant& indices, std::int32_t left,
                           std::int32_t right, std::int16_t flag)
{
    const clsLong* list = IndexList(indices);
    if (!list) return std::nullopt;
    const auto of = flag == 1 ? Pick::Of::Rows : Pick::Of::Columns;
    const Pick pick{of, SheetOf(*list).values, std::max(left, 1),
                    right < 1 ? sizes.columns : right};
    const std::int32_t highest = of == Pick::Of::Rows ? sizes.rows : sizes.columns;
    const bool listed = std::all_of(pick.list.begin(), pick.list.end(),
                                    [&](std::int32_t k) { return k >= 1 && k <= highest; });
    if (listed && IsRange(pick.left, pick.right, sizes.columns)) return pick;
    return Told(RangeMessage(sizes));
}

template <class T> Array<T> PickOut(const Sheet<T>& from, const Pick& pick)
{
    const std::int32_t count = CLng(pick.list.size());
    const bool rows = pick.of == Pick::Of::Rows;
    const std::int32_t width = pick.right - pick.left + 1;
    Array<T> picked = UnwrittenStore<T>(rows ? Sizes{count, width} : Sizes{from.rows, count});
    auto to = picked.Span().begin();
    for (std::int32_t j = 0; rows && j < width; ++j) {
        const auto column = Columns(from, pick.left + j, 1);
        for (const std::int32_t i : pick.list)
            *to++ = column[static_cast<std::size_t>(i - 1)];
    }
    for (std::size_t k = 0; !rows && k < pick.list.size(); ++k) {
        const auto column = Columns(from, pick.list[k], 1);
        to = std::copy(column.begin(), column.end(), to);
    }
    return picked;
}

template <class M> Ref<M> Cut(const M& m, Window asked)
{
    const std::optional<Window> window = WindowIn(SizesOf(m), asked);
    if (!window) return {};
    return Shaped(m, [&](const auto& from) { return CutOut(from, *window); });
}

template <class M>
Ref<M> Picked(const M& m, const Variant& indices, std::int32_t left, std::int32_t right,
              std::int16_t flag)
{
    const std::optional<Pick> pick = PickIn(SizesOf(m), indices, left, right, flag);
    if (!pick) return {};
    return Shaped(m, [&](const auto& from) { return PickOut(from, *pick); });
}

using I32 = std::int32_t;
using I16 = std::int16_t;

} // namespace

// clang-format off
Ref<clsMatrix>        clsMatrix::OutMatrix       (I32 t, I32 l, I32 b, I32 r) const { return Cut(*this, {t, l, b, r}); }
Ref<clsLong>          clsLong::OutMatrix         (I32 t, I32 l, I32 b, I32 r) const { return Cut(*this, {t, l, b, r}); }
Ref<clsComplexMatrix> clsComplexMatrix::OutMatrix(I32 t, I32 l, I32 b, I32 r) const { return Cut(*this, {t, l, b, r}); }
Ref<clsMatrixComplex> clsMatrixComplex::OutMatrix(I32 t, I32 l, I32 b, I32 r) const { return Cut(*this, {t, l, b, r}); }
Ref<clsString>        clsString::OutMatrix       (I32 t, I32 l, I32 b, I32 r) const { return Cut(*this, {t, l, b, r}); }
Ref<clsVariant>       clsVariant::OutMatrix      (I32 t, I32 l, I32 b, I32 r) const { return Cut(*this, {t, l, b, r}); }
// clang-format on

Ref<clsMatrix> clsMatrix::OutMatrixByVector(const Variant& Indices, I32 Left, I32 Right,
                                            I16 flag) const
{
    return Picked(*this, Indices, Left, Right, flag);
}

Ref<clsLong> clsLong::OutMatrixByVector(const Variant& Indices, I32 Left, I32 Right, I16 flag) const
{
    return Picked(*this, Indices, Left, Right, flag);
}

Ref<clsComplexMatrix> clsComplexMatrix::OutMatrixByVector(const Variant& Indices, I32 Left,
                                                          I32 Right, I16 flag) const
{
    return Picked(*this, Indices, Left, Right, flag);
}

Ref<clsMatrixComplex> clsMatrixComplex::OutMatrixByVector(const Variant& Indices, I32 Left,
                                                          I32 Right, I16 flag) const
{
    return Picked(*this, Indices, Left, Right, flag);
}

} // namespace lumora
