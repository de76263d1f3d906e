#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsMatrixComplex.h"
#include "numeric/clsString.h"
#include "numeric/clsVariant.h"
#include "numeric/shaping/ShapedStores.h"

#include <algorithm>

// Other sizes for the same elements, more columns, columns of another matrix: one rule for all
// classes.

namespace lumora {

namespace {

std::int64_t Product(Sizes sizes)
{
    return std::int64_t{sizes.rows} * sizes.columns;
}

/// The object that a caller's Ref holds. Error 91 if there is none.
template <class M> Ref<M> TheVery(M& m)
{
    std::shared_ptr<M> held = m.weak_from_this().lock();
    if (!held) Raise(ErrorNumber::ObjectNotSet);
    return Ref<M>(std::move(held));
}

template <class T> Array<T> Refilled(const Sheet<T>& from, Sizes sizes)
{
    Array<T> store = UnwrittenStore<T>(sizes);
    std::copy(from.values.begin(), from.values.end(), store.Span().begin());
    return store;
}

template <class M> Ref<M> Resized(M& m, Sizes sizes)
{
    if (Product(sizes) != Product(SizesOf(m))) {
        ShowPlainMessage(kProductsDiffer);
        return {};
    }
    if (sizes.rows == 1 && m.size1 == 1) return TheVery(m);
    return Shaped(m, [&](const auto& from) { return Refilled(from, sizes); });
}

template <class M, class... Stores> void Redim(M& m, std::int32_t columns, Stores&... stores)
{
    SheetOf(m);
    (stores.ReDimPreserve(columns), ...);
    m.size2 = columns;
}

/// Columns of `other` behind those of `store`, which may be the same array: what is read keeps its
/// place when the array grows.
template <class T>
void Append(Array<T>& store, Sizes sizes, const Array<T>& other, Sizes other_sizes)
{
    const auto kept = static_cast<std::ptrdiff_t>(store.Span().size());
    store.ReDimPreserve(sizes.columns + other_sizes.columns);
    auto to = store.Span().begin() + kept;
    const auto from = other.Span().begin();
    for (std::ptrdiff_t j = 0; j < other_sizes.columns; ++j)
        to = std::copy_n(from + j * other_sizes.rows, sizes.rows, to);
}

/// One store of a matrix and the store whose columns it takes.
template <class T> struct Joint {
    Array<T>& store;
    const Array<T>& other;
};
template <class T> Joint(Array<T>&, const Array<T>&) -> Joint<T>;

template <class M, class... T> void Join(M& m, const M& other, Joint<T>... joints)
{
    const Sizes sizes = SizesOf(m);
    const Sizes other_sizes = SizesOf(other);
    SheetOf(m);
    SheetOf(other);
    if (other_sizes.columns < 1) return;
    if (other_sizes.rows < sizes.rows) Raise(ErrorNumber::Subscript);
    const std::int32_t columns = CLng(std::int64_t{sizes.columns} + other_sizes.columns);
    (Append(joints.store, sizes, joints.other, other_sizes), ...);
    m.size2 = columns;
}

using I32 = std::int32_t;

} // namespace

// clang-format off
Ref<clsMatrix>        clsMatrix::NewSizeOfMatrix       (I32 rows, I32 cols) { return Resized(*this, {rows, cols}); }
Ref<clsLong>          clsLong::NewSizeOfMatrix         (I32 rows, I32 cols) { return Resized(*this, {rows, cols}); }
Ref<clsComplexMatrix> clsComplexMatrix::NewSizeOfMatrix(I32 rows, I32 cols) { return Resized(*this, {rows, cols}); }
Ref<clsMatrixComplex> clsMatrixComplex::NewSizeOfMatrix(I32 rows, I32 cols) { return Resized(*this, {rows, cols}); }
Ref<clsString>        clsString::NewSizeOfMatrix       (I32 rows, I32 cols) { return Resized(*this, {rows, cols}); }
Ref<clsVariant>       clsVariant::NewSizeOfMatrix      (I32 rows, I32 cols) { return Resized(*this, {rows, cols}); }

void clsMatrix::RedimPreserve       (I32 cols) { Redim(*this, cols, elements_); }
void clsLong::RedimPreserve         (I32 cols) { Redim(*this, cols, elements_); }
void clsComplexMatrix::RedimPreserve(I32 cols) { Redim(*this, cols, real_part_, image_part_); }
void clsString::RedimPreserve       (I32 cols) { Redim(*this, cols, elements_); }
void clsVariant::RedimPreserve      (I32 cols) { Redim(*this, cols, elements_); }

void clsMatrix::CatRefresh        (const clsMatrix& more)  { Join(*this, more, Joint{elements_, more.elements_}); }
void clsLong::CatRefresh          (const clsLong& more)    { Join(*this, more, Joint{elements_, more.elements_}); }
void clsString::CatRefresh        (const clsString& more)  { Join(*this, more, Joint{elements_, more.elements_}); }
void clsVariant::CatRefreshVariant(const clsVariant& more) { Join(*this, more, Joint{elements_, more.GetRealAll()}); }
// clang-format on

void clsComplexMatrix::CatRefresh(const clsComplexMatrix& other)
{
    Join(*this, other, Joint{real_part_, other.real_part_}, Joint{image_part_, other.image_part_});
}

} // namespace lumora
