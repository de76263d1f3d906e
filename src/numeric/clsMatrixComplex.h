#pragma once

#include "base/Array.h"
#include "base/Ref.h"
#include "base/Variant.h"

#include <cstdint>
#include <memory>
#include <string>

namespace lumora {

/// Complex matrix as references to clsComplex objects: for a caller who wants each element as an
/// object. It owns them: a copy of the matrix has objects of its own. Initial_matrix allocates
/// empty references, and the use of such an element is error 91. Shapes, indices and messages as
/// clsMatrix.
class clsMatrixComplex : public std::enable_shared_from_this<clsMatrixComplex> {
public:
    /// Public fields; the tag says which class it is. Sizes are 0 until the first Initial_matrix,
    /// SetRealAll or copy.
    std::int32_t size1 = 0; ///< rows
    std::int32_t size2 = 0; ///< columns
    std::string Name;
    std::string TypeOfMatrix = "mc";

    /// The store itself, for kernels.
    const Array<Ref<clsComplex>>& Elements() const { return elements_; }

    /// Deliberate: present, do nothing, give empty. A clsComplexMatrix has the transforms.
    Variant fftm(std::int32_t n_fft) const;
    Variant ifftm(std::int32_t n_fft) const;

    /// As those of clsComplexMatrix. Power gives a clsMatrixComplex for a clsMatrixComplex operand
    /// and a clsComplexMatrix for every other.
    Ref<clsMatrixComplex> SinM() const;
    Ref<clsMatrixComplex> AsinM() const;
    Ref<clsMatrixComplex> SinhM() const;
    Ref<clsMatrixComplex> AsinhM() const;
    Ref<clsMatrixComplex> CosM() const;
    Ref<clsMatrixComplex> AcosM() const;
    Ref<clsMatrixComplex> CoshM() const;
    Ref<clsMatrixComplex> AcoshM() const;
    Ref<clsMatrixComplex> TanM() const;
    Ref<clsMatrixComplex> AtanM() const;
    Ref<clsMatrixComplex> TanhM() const;
    Ref<clsMatrixComplex> AtanhM() const;
    Ref<clsMatrixComplex> CotM() const;
    Ref<clsMatrixComplex> AcotM() const;
    Ref<clsMatrixComplex> CothM() const;
    Ref<clsMatrixComplex> AcothM() const;
    Ref<clsMatrixComplex> SecM() const;
    Ref<clsMatrixComplex> AsecM() const;
    Ref<clsMatrixComplex> SechM() const;
    Ref<clsMatrixComplex> AsechM() const;
    Ref<clsMatrixComplex> CscM() const;
    Ref<clsMatrixComplex> AcscM() const;
    Ref<clsMatrixComplex> CschM() const;
    Ref<clsMatrixComplex> AcschM() const;
    Ref<clsMatrixComplex> LogM() const;
    Ref<clsMatrixComplex> Log2M() const;
    Ref<clsMatrixComplex> Log10M() const;
    Variant Power(const Variant& Obj) const;
    Ref<clsMatrixComplex> LogBaseM(const Variant& base) const;
    Ref<clsMatrixComplex> ExpM() const;
    Ref<clsMatrixComplex> SqrM() const;

    /// The object store (the very objects), and the parts as arrays.
    Array<Ref<clsComplex>> GetRealAll() const;
    Array<double> GetRealArrAll() const;
    Array<double> GetImageArrAll() const;
    Ref<clsMatrixComplex> CopyObject(const std::string& s = {}) const;
    /// Adopts the very objects of the array.
    clsMatrixComplex& SetRealAll(Array<Ref<clsComplex>> Arr, const std::string& s = {});
    /// One new object per element. Different shapes show "Matrix dimensions must agree." and store
    /// nothing.
    clsMatrixComplex& SetComplexAll(const Array<double>& re, const Array<double>& im,
                                    const std::string& s = {});
    clsMatrixComplex& CopyObject_C(const clsComplexMatrix& Source, const std::string& s = {});
    /// The element object itself; writing copies the parts into it.
    Ref<clsComplex> Real(std::int32_t i, std::int32_t j) const;
    void Real(std::int32_t i, std::int32_t j, const clsComplex& value);
    /// Lets go of every element object; the sizes stay.
    void Destructor();
    void Initial_matrix(std::int32_t new_size1, std::int32_t new_size2,
                        const std::string& new_name = {});
    void Set_elements_matrix(std::int32_t i, std::int32_t j, const clsComplex& value);
    /// The whole real or imaginary array, built element by element.
    Array<double> GetRealArr() const;
    Array<double> GetImageArr() const;
    Ref<clsMatrixComplex> Transpose() const;
    Ref<clsMatrixComplex> Conj() const;
    Ref<clsMatrixComplex> CTranspose() const;
    Ref<clsMatrixComplex> OutMatrix(std::int32_t Top, std::int32_t Left, std::int32_t Buttom = 0,
                                    std::int32_t Right = 0) const;
    Ref<clsMatrixComplex> NewSizeOfMatrix(std::int32_t new_size1, std::int32_t new_size2);

    /// By the complex rule of clsComplexMatrix; MinDim and MaxDim hold a clsMatrix if no imaginary
    /// part is left in their result, else a clsMatrixComplex.
    Ref<clsComplex> Min(double Tolerance = 0.0) const;
    Ref<clsComplex> Max(double Tolerance = 0.0) const;
    Ref<clsMatrixComplex> Minmax(double Tolerance = 0.0) const;
    Variant MinDim(const Variant& dimention = {}, double Tolerance = 0.0) const;
    Variant MaxDim(const Variant& dimention = {}, double Tolerance = 0.0) const;
    Ref<clsLong> MinIndex(const Variant& dimention = {}, double Tolerance = 0.0) const;
    Ref<clsLong> MaxIndex(const Variant& dimention = {}, double Tolerance = 0.0) const;
    Ref<clsMatrixComplex> MinMCMC(const clsMatrixComplex& a, double Tolerance = 0.0) const;
    Ref<clsMatrixComplex> MaxMCMC(const clsMatrixComplex& a, double Tolerance = 0.0) const;
    Ref<clsMatrixComplex> MinMCD(const clsMatrix& a, double Tolerance = 0.0) const;
    Ref<clsMatrixComplex> MaxMCD(const clsMatrix& a, double Tolerance = 0.0) const;
    Ref<clsMatrixComplex> MinMCL(const clsLong& a, double Tolerance = 0.0) const;
    Ref<clsMatrixComplex> MaxMCL(const clsLong& a, double Tolerance = 0.0) const;
    Ref<clsMatrixComplex> MinComplex(const clsComplex& z, double Tolerance = 0.0) const;
    Ref<clsMatrixComplex> MaxComplex(const clsComplex& z, double Tolerance = 0.0) const;
    Ref<clsMatrixComplex> MinNum(double x, double Tolerance = 0.0) const;
    Ref<clsMatrixComplex> MaxNum(double x, double Tolerance = 0.0) const;
    Ref<clsLong> All(const Variant& dimention = {}) const;
    bool AllAll() const;
    Ref<clsLong> AnyObj(const Variant& dimention = {}) const;
    bool AnyAny() const;
    Ref<clsMatrix> AbsM() const;

    /// The receiver becomes a clsComplexMatrix, which does the work and whose result this is; only
    /// two clsMatrixComplex give a clsMatrixComplex.
    Ref<clsMatrixComplex> MtimesMC(const clsMatrixComplex& b) const;
    Ref<clsComplexMatrix> MtimesC(const clsComplexMatrix& b) const;
    Ref<clsComplexMatrix> MtimesR(const clsMatrix& b) const;
    Ref<clsComplexMatrix> MtimesL(const clsLong& b) const;
    Ref<clsComplexMatrix> MtimesNum(double b) const;
    Ref<clsComplexMatrix> MtimesComplexNum(const clsComplex& b) const;
    Ref<clsComplexMatrix> MtimesCArray(const Array<Ref<clsComplex>>& b) const;
    Ref<clsComplexMatrix> MtimesRArray(const Array<double>& b) const;
    Ref<clsComplexMatrix> MtimesLArray(const Array<std::int32_t>& b) const;
    Variant MTimes(const Variant& Obj) const;

    Ref<clsMatrixComplex> TimesMC(const clsMatrixComplex& b) const;
    Ref<clsComplexMatrix> TimesC(const clsComplexMatrix& b) const;
    Ref<clsComplexMatrix> TimesR(const clsMatrix& b) const;
    Ref<clsComplexMatrix> TimesL(const clsLong& b) const;
    Ref<clsComplexMatrix> TimesNum(double b) const;
    Ref<clsComplexMatrix> TimesComplexNum(const clsComplex& b) const;
    Ref<clsComplexMatrix> TimesCArray(const Array<Ref<clsComplex>>& b) const;
    Ref<clsComplexMatrix> TimesRArray(const Array<double>& b) const;
    Ref<clsComplexMatrix> TimesLArray(const Array<std::int32_t>& b) const;
    Variant Times(const Variant& Obj) const;

    Ref<clsMatrixComplex> PlusMC(const clsMatrixComplex& b) const;
    Ref<clsComplexMatrix> PlusC(const clsComplexMatrix& b) const;
    Ref<clsComplexMatrix> PlusR(const clsMatrix& b) const;
    Ref<clsComplexMatrix> PlusL(const clsLong& b) const;
    Ref<clsComplexMatrix> PlusNum(double b) const;
    Ref<clsComplexMatrix> PlusComplexNum(const clsComplex& b) const;
    Ref<clsComplexMatrix> PlusCArray(const Array<Ref<clsComplex>>& b) const;
    Ref<clsComplexMatrix> PlusRArray(const Array<double>& b) const;
    Ref<clsComplexMatrix> PlusLArray(const Array<std::int32_t>& b) const;
    Variant Plus(const Variant& Obj) const;

    Ref<clsMatrixComplex> MinusMC(const clsMatrixComplex& b) const;
    Ref<clsComplexMatrix> MinusC(const clsComplexMatrix& b) const;
    Ref<clsComplexMatrix> MinusR(const clsMatrix& b) const;
    Ref<clsComplexMatrix> MinusL(const clsLong& b) const;
    Ref<clsComplexMatrix> MinusNum(double b) const;
    Ref<clsComplexMatrix> MinusComplexNum(const clsComplex& b) const;
    Ref<clsComplexMatrix> MinusCArray(const Array<Ref<clsComplex>>& b) const;
    Ref<clsComplexMatrix> MinusRArray(const Array<double>& b) const;
    Ref<clsComplexMatrix> MinusLArray(const Array<std::int32_t>& b) const;
    Variant Minus(const Variant& Obj) const;

    Ref<clsMatrixComplex> RdivideMC(const clsMatrixComplex& b) const;
    Ref<clsComplexMatrix> RdivideC(const clsComplexMatrix& b) const;
    Ref<clsComplexMatrix> RdivideR(const clsMatrix& b) const;
    Ref<clsComplexMatrix> RdivideL(const clsLong& b) const;
    Ref<clsComplexMatrix> RdivideNum(double b) const;
    Ref<clsComplexMatrix> RdivideComplexNum(const clsComplex& b) const;
    Ref<clsComplexMatrix> RdivideCArray(const Array<Ref<clsComplex>>& b) const;
    Ref<clsComplexMatrix> RdivideRArray(const Array<double>& b) const;
    Ref<clsComplexMatrix> RdivideLArray(const Array<std::int32_t>& b) const;
    Variant Rdivide(const Variant& Obj) const;

    Ref<clsMatrixComplex> OutMatrixByVector(const Variant& Indices, std::int32_t Left,
                                            std::int32_t Right, std::int16_t flag) const;

private:
    Array<Ref<clsComplex>> elements_;
};

} // namespace lumora
