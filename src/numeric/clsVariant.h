#pragma once

#include "base/Array.h"
#include "base/Ref.h"
#include "base/Variant.h"

#include <cstdint>
#include <memory>
#include <string>

namespace lumora {

/// Matrix of values of any kind: numbers, texts, matrix objects. It never shares its objects: they
/// are copied on the way in and on the way out. Shapes, indices and messages as clsMatrix.
class clsVariant : public std::enable_shared_from_this<clsVariant> {
public:
    /// Public fields; the tag says which class it is. Sizes are 0 until the first Initial_matrix,
    /// SetRealAll or copy.
    std::int32_t size1 = 0; ///< rows
    std::int32_t size2 = 0; ///< columns
    std::string Name;
    std::string TypeOfMatrix = "v";

    /// The store itself, for kernels: objects are not copied.
    const Array<Variant>& Elements() const { return elements_; }

    /// Is every element a text; a number; a whole number; a complex number? True without elements.
    bool IsString() const;
    bool IsDouble() const;
    bool IsLong() const;
    bool IsComplex() const;
    clsVariant& SetRealAll(const Array<Variant>& Arr, const std::string& s = {});
    Array<Variant> GetRealAll() const;
    Variant Real(std::int32_t i, std::int32_t j) const;
    Ref<clsVariant> CopyObjectVariant(const std::string& s = {}) const;
    /// Is there an element that is no number?
    bool FoundUnNumericElements() const;
    void Real(std::int32_t i, std::int32_t j, const Variant& value);
    void Initial_matrix(std::int32_t new_size1, std::int32_t new_size2,
                        const std::string& new_name = {});
    void Set_elements_matrix(std::int32_t i, std::int32_t j, const Variant& value);
    Variant GetArr(const Variant& i, const Variant& j) const;
    void RedimPreserve(std::int32_t new_size2);
    Ref<clsVariant> Transpose() const;
    Ref<clsVariant> CTranspose() const;
    void CatRefreshVariant(const clsVariant& other);
    /// Empties every element; the sizes stay.
    void Destructor();
    /// As clsMatrix, without signs.
    Variant Rearrange(std::int32_t X, std::int32_t Y, std::int16_t& s) const;
    Ref<clsVariant> OutMatrix(std::int32_t Top, std::int32_t Left, std::int32_t Buttom = 0,
                              std::int32_t Right = 0) const;
    Ref<clsVariant> NewSizeOfMatrix(std::int32_t new_size1, std::int32_t new_size2);

private:
    Array<Variant> elements_;
};

} // namespace lumora
