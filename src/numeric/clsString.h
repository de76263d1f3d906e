#pragma once

#include "base/Array.h"
#include "base/Ref.h"
#include "base/Variant.h"

#include <cstdint>
#include <memory>
#include <string>

namespace lumora {

/// Matrix of texts. Shapes, indices and messages as clsMatrix.
class clsString : public std::enable_shared_from_this<clsString> {
public:
    /// Public fields; the tag says which class it is. Sizes are 0 until the first Initial_matrix,
    /// SetRealAll or copy.
    std::int32_t size1 = 0; ///< rows
    std::int32_t size2 = 0; ///< columns
    std::string Name;
    Variant PowerOfExp; ///< emptied by Initial_matrix, read by nothing
    std::string TypeOfMatrix = "s";

    /// The store itself, for kernels.
    const Array<std::string>& Elements() const { return elements_; }

    /// Fills the receiver with the cells of a complex matrix, as its MatrixToString.
    clsString& ComplexMatrixToString(const clsComplexMatrix& Source);
    /// Is every text numeric or a complex form that ends in "i"? Is every text numeric? True
    /// without elements.
    bool FoundComplexElements() const;
    bool FoundNumericElements() const;
    Ref<clsString> CopyObject(const std::string& s = {}) const;
    clsString& SetRealAll(Array<std::string> Arr, const std::string& s = {});
    /// FoundNumericElements of a plain array.
    bool Numeric(const Array<std::string>& Arr) const;
    Array<std::string> GetRealAll() const;
    std::string Real(std::int32_t i, std::int32_t j) const;
    void Real(std::int32_t i, std::int32_t j, const std::string& value);
    void Initial_matrix(std::int32_t new_size1, std::int32_t new_size2,
                        const std::string& new_name = {});
    void Set_elements_matrix(std::int32_t i, std::int32_t j, const std::string& value);
    Variant GetArr(const Variant& i, const Variant& j) const;
    void RedimPreserve(std::int32_t new_size2);
    Ref<clsString> Transpose() const;
    Ref<clsString> CTranspose() const;
    void CatRefresh(const clsString& other);
    /// As clsMatrix, without signs.
    Variant Rearrange(std::int32_t X, std::int32_t Y, std::int16_t& s) const;
    Ref<clsString> OutMatrix(std::int32_t Top, std::int32_t Left, std::int32_t Buttom = 0,
                             std::int32_t Right = 0) const;
    Ref<clsString> NewSizeOfMatrix(std::int32_t new_size1, std::int32_t new_size2);

    /// As those of clsMatrix; texts compare byte by byte. Minmax is a 1 by 6 clsVariant.
    std::string Min() const;
    std::string Max() const;
    Ref<clsVariant> Minmax() const;
    Ref<clsString> MinDim(const Variant& dimention = {}) const;
    Ref<clsString> MaxDim(const Variant& dimention = {}) const;
    Ref<clsLong> MinIndex(const Variant& dimention = {}) const;
    Ref<clsLong> MaxIndex(const Variant& dimention = {}) const;
    Ref<clsString> MinSS(const clsString& a) const;
    Ref<clsString> MaxSS(const clsString& a) const;
    Ref<clsString> MinString(const std::string& x) const;
    Ref<clsString> MaxString(const std::string& x) const;
    /// An empty text and a text that spells zero count as zero.
    Ref<clsLong> All(const Variant& dimention = {}) const;
    bool AllAll() const;
    Ref<clsLong> AnyObj(const Variant& dimention = {}) const;
    bool AnyAny() const;

private:
    Array<std::string> elements_;
};

} // namespace lumora
