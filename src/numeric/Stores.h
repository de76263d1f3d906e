#pragma once

#include "base/Array.h"
#include "base/Messages.h"
#include "base/Numbers.h"
#include "base/Ref.h"
#include "base/Variant.h"
#include "numeric/NumericMessages.h"

#include <cstdint>
#include <string>
#include <utility>

namespace lumora {

/// The text field by which a class is told from the others.
template <class M> inline constexpr const char* kTag = "";
template <> inline constexpr const char* kTag<clsMatrix> = "r";
template <> inline constexpr const char* kTag<clsLong> = "L";
template <> inline constexpr const char* kTag<clsComplexMatrix> = "c";
template <> inline constexpr const char* kTag<clsMatrixComplex> = "mc";
template <> inline constexpr const char* kTag<clsString> = "s";
template <> inline constexpr const char* kTag<clsVariant> = "v";

/// Rows and columns. One row is a one-dimensional store.
struct Sizes {
    std::int32_t rows = 0;
    std::int32_t columns = 0;
    bool operator==(const Sizes&) const = default;
};

template <class M> Sizes SizesOf(const M& m)
{
    return {m.size1, m.size2};
}

/// An array as a matrix: one dimension is one row. Error 9 for an array without dimension.
template <class T> Sizes SizesOf(const Array<T>& array)
{
    const auto count = [&array](int dimension) {
        return CLng(array.UBound(dimension) - array.LBound(dimension) + 1);
    };
    if (array.Dimensions() < 2) return {1, count(1)};
    return {count(1), count(2)};
}

/// A store of this shape with whatever contents. Errors 9 for an empty shape, and 7.
template <class T> Array<T> UnwrittenStore(Sizes sizes)
{
    Array<T> store;
    if (sizes.rows == 1)
        store.ReDimForOverwrite({1, sizes.columns});
    else
        store.ReDimForOverwrite({1, sizes.rows}, {1, sizes.columns});
    return store;
}

template <class T> Array<T> ZeroStore(Sizes sizes)
{
    return sizes.rows == 1 ? Array<T>(sizes.columns) : Array<T>(sizes.rows, sizes.columns);
}

/// The same elements as a store of this shape.
template <class T> Array<T> Reshaped(Array<T> array, Sizes sizes)
{
    if (sizes.rows == 1)
        array.Rebase({1, sizes.columns});
    else
        array.Rebase({1, sizes.rows}, {1, sizes.columns});
    return array;
}

/// `store` becomes the elements of `array`, and the fields of m tell their shape.
template <class M, class T>
void Adopt(M& m, Array<T>& store, Array<T> array, const std::string& name)
{
    const Sizes sizes = SizesOf(array);
    store = Reshaped(std::move(array), sizes);
    m.size1 = sizes.rows;
    m.size2 = sizes.columns;
    m.Name = name;
    m.TypeOfMatrix = kTag<M>;
}

/// Adopt as SetRealAll does it: on an object that already has columns a one-dimensional array is
/// taken for rows, because only a fresh object is asked for its second bound.
template <class M, class T>
void AdoptDirectly(M& m, Array<T>& store, Array<T> array, const std::string& name)
{
    const bool mistaken = array.Dimensions() == 1 && m.size2 >= 1;
    const std::int32_t columns = m.size2;
    Adopt(m, store, std::move(array), name);
    if (!mistaken) return;
    m.size1 = m.size2;
    m.size2 = columns;
}

/// Element (i, j) of a store with the sizes of m. Outside them the message, then error 9.
template <class M, class Store>
auto& ElementAt(const M& m, Store& store, std::int32_t i, std::int32_t j)
{
    if (i < 1 || i > m.size1 || j < 1 || j > m.size2) {
        ShowPlainMessage(kIndexExceeds);
        Raise(ErrorNumber::Subscript);
    }
    return m.size1 == 1 ? store(j) : store(i, j);
}

/// The object as a Variant; an empty Ref is an empty Variant.
template <class M> Variant OrEmpty(Ref<M> object)
{
    return object ? Variant(std::move(object)) : Variant();
}

/// A new matrix that holds a store.
template <class M, class... Stores> Ref<M> NewMatrix(Stores... stores)
{
    Ref<M> m = MakeRef<M>();
    if constexpr (sizeof...(Stores) == 1)
        m->SetRealAll(std::move(stores)...);
    else
        m->SetComplexAll(std::move(stores)...);
    return m;
}

} // namespace lumora
