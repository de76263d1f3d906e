#pragma once

#include "base/Array.h"
#include "base/Ref.h"
#include "base/Variant.h"

#include <cstdint>
#include <memory>
#include <string>

namespace lumora {

/// Matrix of 32-bit whole numbers; everything else as clsMatrix.
class clsLong : public std::enable_shared_from_this<clsLong> {
public:
    /// Public fields; the tag says which class it is. Sizes are 0 until the first Initial_matrix,
    /// SetRealAll or copy.
    std::int32_t size1 = 0; ///< rows
    std::int32_t size2 = 0; ///< columns
    std::string Name;
    std::string TypeOfMatrix = "L";

    /// The store itself, for kernels.
    const Array<std::int32_t>& Elements() const { return elements_; }

    /// As those of clsMatrix, on the elements as floats.
    Ref<clsMatrix> SinM() const;
    Variant AsinM() const;
    Ref<clsMatrix> SinhM() const;
    Ref<clsMatrix> AsinhM() const;
    Ref<clsMatrix> CosM() const;
    Variant AcosM() const;
    Ref<clsMatrix> CoshM() const;
    Variant AcoshM() const;
    Ref<clsMatrix> TanM() const;
    Ref<clsMatrix> AtanM() const;
    Ref<clsMatrix> TanhM() const;
    Variant AtanhM() const;
    Ref<clsMatrix> CotM() const;
    Ref<clsMatrix> AcotM() const;
    Ref<clsMatrix> CothM() const;
    Variant AcothM() const;
    Ref<clsMatrix> SecM() const;
    Variant AsecM() const;
    Ref<clsMatrix> SechM() const;
    Variant AsechM() const;
    Ref<clsMatrix> CscM() const;
    Variant AcscM() const;
    Ref<clsMatrix> CschM() const;
    Ref<clsMatrix> AcschM() const;
    Ref<clsMatrix> ExpM() const;
    Variant LogM() const;
    Variant Log2M() const;
    Variant Log10M() const;
    Variant Power(const Variant& Obj) const;
    Variant LogBaseM(const Variant& base) const;
    Variant SqrM() const;
    Ref<clsLong> Conj() const;
    Ref<clsLong> Transpose() const;
    Ref<clsLong> CTranspose() const;
    Ref<clsString> MatrixToString(const Variant& flag = {}) const;

    /// Is the value a whole number, or a text that spells one?
    bool IsLong(const Variant& value) const;
    /// Adopts any array of numbers, each rounded to nearest, half to even: error 6 beyond 32 bits.
    /// Another value shows "Incorect type of matrix" and changes nothing.
    clsLong& SetArray(const Variant& Arr, const std::string& s = {});
    /// As those of clsMatrix; SetRealAll_D rounds to nearest, half to even (error 6).
    clsLong& SetRealAll_D(const Array<double>& Arr, const std::string& s = {});
    clsLong& SetRealAll(Array<std::int32_t> Arr, const std::string& s = {});
    Array<std::int32_t> GetRealAll() const;
    std::int32_t Real(std::int32_t i, std::int32_t j) const;
    void Real(std::int32_t i, std::int32_t j, std::int32_t value);
    void Initial_matrix(std::int32_t new_size1, std::int32_t new_size2,
                        const std::string& new_name = {});
    Ref<clsLong> CopyObject(const std::string& s = {}) const;
    clsLong& CopyObjectDoubleToLong(const clsMatrix& Source, const std::string& s = {});
    clsLong& CopyObjectComplexRealToLong(const clsComplexMatrix& Source, const std::string& s = {});
    clsLong& CopyObjectComplexImageToLong(const clsComplexMatrix& Source,
                                          const std::string& s = {});
    void Set_elements_matrix(std::int32_t i, std::int32_t j, std::int32_t value);
    Variant GetArr(const Variant& i, const Variant& j) const;
    void RedimPreserve(std::int32_t new_size2);
    void CatRefresh(const clsLong& other);
    /// As clsMatrix; the line that changes its sign raises error 6 at -2^31.
    Variant Rearrange(std::int32_t X, std::int32_t Y, std::int16_t& s) const;
    Ref<clsLong> OutMatrix(std::int32_t Top, std::int32_t Left, std::int32_t Buttom = 0,
                           std::int32_t Right = 0) const;
    Ref<clsLong> NewSizeOfMatrix(std::int32_t new_size1, std::int32_t new_size2);

    /// As those of clsMatrix. MinNum and MaxRNum give a clsLong: a number that wins is rounded to
    /// nearest, half to even (error 6).
    std::int32_t Min() const;
    std::int32_t Max() const;
    Ref<clsMatrix> Minmax() const;
    Ref<clsLong> MinDim(const Variant& dimention = {}) const;
    Ref<clsLong> MaxDim(const Variant& dimention = {}) const;
    Ref<clsLong> MinIndex(const Variant& dimention = {}) const;
    Ref<clsLong> MaxIndex(const Variant& dimention = {}) const;
    Ref<clsLong> MinLL(const clsLong& a) const;
    Ref<clsLong> MaxLL(const clsLong& a) const;
    Ref<clsLong> MinNum(double x) const;
    Ref<clsLong> MaxRNum(double x) const;
    Ref<clsComplexMatrix> MinComplexNum(const clsComplex& z) const;
    Ref<clsComplexMatrix> MaxComplexNum(const clsComplex& z) const;
    Ref<clsLong> All(const Variant& dimention = {}) const;
    bool AllAll() const;
    Ref<clsLong> AnyObj(const Variant& dimention = {}) const;
    bool AnyAny() const;

    /// Magnitudes, as floats.
    Ref<clsMatrix> AbsM() const;

    /// As those of clsMatrix; whole results beyond 32 bits are error 6. MtimesLongNum scales by a
    /// whole number and no dispatcher reaches it.
    /// Deliberate: PlusNum and TimesLArray compute their result and then stop with error 13.
    Ref<clsLong> MtimesL(const clsLong& b) const;
    Ref<clsMatrix> MtimesR(const clsMatrix& b) const;
    Ref<clsComplexMatrix> MtimesC(const clsComplexMatrix& b) const;
    Ref<clsComplexMatrix> MtimesMC(const clsMatrixComplex& b) const;
    Ref<clsLong> MtimesLongNum(std::int32_t b) const;
    Ref<clsMatrix> MtimesNum(double b) const;
    Ref<clsComplexMatrix> MtimesComplexNum(const clsComplex& b) const;
    Ref<clsComplexMatrix> MtimesCArray(const Array<Ref<clsComplex>>& b) const;
    Ref<clsMatrix> MtimesRArray(const Array<double>& b) const;
    Ref<clsLong> MtimesLArray(const Array<std::int32_t>& b) const;
    Variant MTimes(const Variant& Obj) const;
    Ref<clsComplexMatrix> TimesC(const clsComplexMatrix& b) const;
    Ref<clsMatrix> TimesR(const clsMatrix& b) const;
    Ref<clsLong> TimesL(const clsLong& b) const;
    Ref<clsMatrix> TimesNum(double b) const;
    Ref<clsComplexMatrix> TimesComplexNum(const clsComplex& b) const;
    Ref<clsComplexMatrix> TimesMC(const clsMatrixComplex& b) const;
    Ref<clsMatrix> TimesRArray(const Array<double>& b) const;
    Ref<clsMatrix> TimesLArray(const Array<std::int32_t>& b) const;
    Ref<clsComplexMatrix> TimesCArray(const Array<Ref<clsComplex>>& b) const;
    Variant Times(const Variant& Obj) const;

    Ref<clsComplexMatrix> PlusC(const clsComplexMatrix& b) const;
    Ref<clsMatrix> PlusR(const clsMatrix& b) const;
    Ref<clsLong> PlusL(const clsLong& b) const;
    Ref<clsMatrix> PlusNum(double b) const;
    Ref<clsComplexMatrix> PlusComplexNum(const clsComplex& b) const;
    Ref<clsComplexMatrix> PlusMC(const clsMatrixComplex& b) const;
    Ref<clsMatrix> PlusRArray(const Array<double>& b) const;
    Ref<clsLong> PlusLArray(const Array<std::int32_t>& b) const;
    Ref<clsComplexMatrix> PlusCArray(const Array<Ref<clsComplex>>& b) const;
    Variant Plus(const Variant& Obj) const;

    Ref<clsComplexMatrix> MinusC(const clsComplexMatrix& b) const;
    Ref<clsMatrix> MinusR(const clsMatrix& b) const;
    Ref<clsLong> MinusL(const clsLong& b) const;
    Ref<clsMatrix> MinusNum(double b) const;
    Ref<clsComplexMatrix> MinusComplexNum(const clsComplex& b) const;
    Ref<clsComplexMatrix> MinusMC(const clsMatrixComplex& b) const;
    Ref<clsMatrix> MinusRArray(const Array<double>& b) const;
    Ref<clsLong> MinusLArray(const Array<std::int32_t>& b) const;
    Ref<clsComplexMatrix> MinusCArray(const Array<Ref<clsComplex>>& b) const;
    Variant Minus(const Variant& Obj) const;

    Ref<clsComplexMatrix> RdivideC(const clsComplexMatrix& b) const;
    Ref<clsMatrix> RdivideR(const clsMatrix& b) const;
    Ref<clsMatrix> RdivideL(const clsLong& b) const;
    Ref<clsMatrix> RdivideNum(double b) const;
    Ref<clsComplexMatrix> RdivideComplexNum(const clsComplex& b) const;
    Ref<clsComplexMatrix> RdivideMC(const clsMatrixComplex& b) const;
    Ref<clsMatrix> RdivideRArray(const Array<double>& b) const;
    Ref<clsMatrix> RdivideLArray(const Array<std::int32_t>& b) const;
    Ref<clsComplexMatrix> RdivideCArray(const Array<Ref<clsComplex>>& b) const;
    Variant Rdivide(const Variant& Obj) const;

    Ref<clsLong> OutMatrixByVector(const Variant& Indices, std::int32_t Left, std::int32_t Right,
                                   std::int16_t flag) const;

private:
    Array<std::int32_t> elements_;
};

} // namespace lumora
