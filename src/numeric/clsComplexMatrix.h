#pragma once

#include "base/Array.h"
#include "base/Ref.h"
#include "base/Variant.h"

#include <cstdint>
#include <memory>
#include <string>

namespace lumora {

/// Complex matrix as two parallel arrays of 64-bit floats: the computing form of complex matrices.
/// Shapes, indices and messages as clsMatrix.
class clsComplexMatrix : public std::enable_shared_from_this<clsComplexMatrix> {
public:
    /// Public fields; the tag says which class it is. Sizes are 0 until the first Initial_matrix,
    /// SetRealAll or copy.
    std::int32_t size1 = 0; ///< rows
    std::int32_t size2 = 0; ///< columns
    std::string Name;
    std::string TypeOfMatrix = "c";

    /// The stores themselves, for kernels.
    const Array<double>& RealPart() const { return real_part_; }
    const Array<double>& ImagePart() const { return image_part_; }

    /// As those of clsMatrix; all elements are zero when both parts are.
    /// Deliberate: ifftm is that of the real part, and the imaginary part counts for nothing.
    Variant ifftm(std::int32_t n_fft) const;
    Variant fftm(std::int32_t n_fft) const;

    /// The formulas of clsComplex on every element; a message comes once an operation. Power gives
    /// a clsComplexMatrix, in a Variant because it is empty after a message.
    Ref<clsComplexMatrix> SinM() const;
    Ref<clsComplexMatrix> AsinM() const;
    Ref<clsComplexMatrix> SinhM() const;
    Ref<clsComplexMatrix> AsinhM() const;
    Ref<clsComplexMatrix> CosM() const;
    Ref<clsComplexMatrix> AcosM() const;
    Ref<clsComplexMatrix> CoshM() const;
    Ref<clsComplexMatrix> AcoshM() const;
    Ref<clsComplexMatrix> TanM() const;
    Ref<clsComplexMatrix> AtanM() const;
    Ref<clsComplexMatrix> TanhM() const;
    Ref<clsComplexMatrix> AtanhM() const;
    Ref<clsComplexMatrix> CotM() const;
    Ref<clsComplexMatrix> AcotM() const;
    Ref<clsComplexMatrix> CothM() const;
    Ref<clsComplexMatrix> AcothM() const;
    Ref<clsComplexMatrix> SecM() const;
    Ref<clsComplexMatrix> AsecM() const;
    Ref<clsComplexMatrix> SechM() const;
    Ref<clsComplexMatrix> AsechM() const;
    Ref<clsComplexMatrix> CscM() const;
    Ref<clsComplexMatrix> AcscM() const;
    Ref<clsComplexMatrix> CschM() const;
    Ref<clsComplexMatrix> AcschM() const;
    Ref<clsComplexMatrix> LogM() const;
    Ref<clsComplexMatrix> Log2M() const;
    Ref<clsComplexMatrix> Log10M() const;
    Variant Power(const Variant& Obj) const;
    Ref<clsComplexMatrix> LogBaseM(const Variant& base) const;
    Ref<clsComplexMatrix> ExpM() const;
    Ref<clsComplexMatrix> SqrM() const;

    /// Adopts the parts of an array of objects (error 91 for an empty one); gives them back as new
    /// objects.
    clsComplexMatrix& SetComplexArray(const Array<Ref<clsComplex>>& Arr, const std::string& s = {});
    Array<Ref<clsComplex>> GetComplexArray() const;
    Ref<clsString> MatrixToString(const Variant& flag = {}) const;

    /// Adopt an array as one part, sizes included; the other part stays as it was, so set both.
    clsComplexMatrix& SetRealAll_L(const Array<std::int32_t>& Arr, const std::string& s = {});
    clsComplexMatrix& SetImageAll_L(const Array<std::int32_t>& Arr, const std::string& s = {});
    clsComplexMatrix& SetRealAll(Array<double> Arr, const std::string& s = {});
    clsComplexMatrix& SetImageAll(Array<double> Arr, const std::string& s = {});

    double Real(std::int32_t i, std::int32_t j) const;
    void Real(std::int32_t i, std::int32_t j, double value);
    double Image(std::int32_t i, std::int32_t j) const;
    void Image(std::int32_t i, std::int32_t j, double value);
    /// Writes both parts of one element. Outside the matrix the message and then error 9.
    void SetComplex(std::int32_t i, std::int32_t j, double re, double im);

    void RedimPreserve(std::int32_t new_size2);
    Ref<clsComplexMatrix> Transpose() const;
    /// With negated imaginary parts.
    Ref<clsComplexMatrix> CTranspose() const;
    void CatRefresh(const clsComplexMatrix& other);
    /// As clsMatrix, but no line changes its sign.
    Variant Rearrange(std::int32_t X, std::int32_t Y, std::int16_t& s) const;
    Ref<clsComplexMatrix> Conj() const;
    Array<double> GetRealAll() const;
    Array<double> GetImageAll() const;
    Ref<clsComplexMatrix> CopyObject(const std::string& s = {}) const;

    /// Fill the receiver and return it. With one source the other part is zero; two sources of
    /// different shapes show "Matrix dimensions must agree." and change nothing.
    clsComplexMatrix& CopyObjectDoubleToComplexReal(const clsMatrix& Source,
                                                    const std::string& s = {});
    clsComplexMatrix& CopyObjectDoubleToComplexImage(const clsMatrix& Source,
                                                     const std::string& s = {});
    clsComplexMatrix& CopyObjectTwoDoubleToComplex(const clsMatrix& RealSource,
                                                   const clsMatrix& ImageSource,
                                                   const std::string& s = {});
    clsComplexMatrix& CopyObjectLongToComplexReal(const clsLong& Source, const std::string& s = {});
    clsComplexMatrix& CopyObjectLongToComplexImage(const clsLong& Source,
                                                   const std::string& s = {});
    clsComplexMatrix& CopyObjectTwoLongToComplex(const clsLong& RealSource,
                                                 const clsLong& ImageSource,
                                                 const std::string& s = {});
    /// The parts of element objects; error 91 for an element that has none.
    clsComplexMatrix& CopyObject_mc(const clsMatrixComplex& Source, const std::string& s = {});
    clsComplexMatrix& CopyObject_mcArray(const Array<Ref<clsComplex>>& Source,
                                         const std::string& s = {});
    /// Both parts at once. Different shapes show "Matrix dimensions must agree." and store nothing.
    clsComplexMatrix& SetComplexAll(Array<double> re, Array<double> im, const std::string& s = {});
    clsComplexMatrix& SetComplexAll_L(const Array<std::int32_t>& re, const Array<std::int32_t>& im,
                                      const std::string& s = {});
    void Initial_matrix(std::int32_t new_size1, std::int32_t new_size2,
                        const std::string& new_name = {});
    void Set_elements_matrix(std::int32_t i, std::int32_t j, double re, double im);
    Ref<clsComplexMatrix> OutMatrix(std::int32_t Top, std::int32_t Left, std::int32_t Buttom = 0,
                                    std::int32_t Right = 0) const;
    Ref<clsComplexMatrix> NewSizeOfMatrix(std::int32_t new_size1, std::int32_t new_size2);

    /// The complex rule: the greater squared magnitude is the greater value; where
    /// MagnitudesDiffer says that they tie within Tolerance, the greater angle by Atan2. Of equal
    /// values the first stands, or the receiver's. MinDim and MaxDim hold a clsMatrix if no
    /// imaginary part is left in their result, else a clsComplexMatrix. Minmax is 1 by 6 as on
    /// clsMatrix, positions with imaginary part zero.
    Ref<clsComplex> Min(double Tolerance = 0.0) const;
    Ref<clsComplex> Max(double Tolerance = 0.0) const;
    Ref<clsComplexMatrix> Minmax(double Tolerance = 0.0) const;
    Variant MinDim(const Variant& dimention = {}, double Tolerance = 0.0) const;
    Variant MaxDim(const Variant& dimention = {}, double Tolerance = 0.0) const;
    Ref<clsLong> MinIndex(const Variant& dimention = {}, double Tolerance = 0.0) const;
    Ref<clsLong> MaxIndex(const Variant& dimention = {}, double Tolerance = 0.0) const;
    Ref<clsComplexMatrix> MinCC(const clsComplexMatrix& a, double Tolerance = 0.0) const;
    Ref<clsComplexMatrix> MaxCC(const clsComplexMatrix& a, double Tolerance = 0.0) const;
    Ref<clsComplexMatrix> MinCD(const clsMatrix& a, double Tolerance = 0.0) const;
    Ref<clsComplexMatrix> MaxCD(const clsMatrix& a, double Tolerance = 0.0) const;
    Ref<clsComplexMatrix> MinCL(const clsLong& a, double Tolerance = 0.0) const;
    Ref<clsComplexMatrix> MaxCL(const clsLong& a, double Tolerance = 0.0) const;
    Ref<clsComplexMatrix> MinNum(double x, double Tolerance = 0.0) const;
    Ref<clsComplexMatrix> MaxNum(double x, double Tolerance = 0.0) const;
    Ref<clsComplexMatrix> MinComplex(const clsComplex& z, double Tolerance = 0.0) const;
    Ref<clsComplexMatrix> MaxComplex(const clsComplex& z, double Tolerance = 0.0) const;
    Ref<clsComplexMatrix> MinMatrixComplex(const clsMatrixComplex& a, double Tolerance = 0.0) const;
    Ref<clsComplexMatrix> MaxMatrixComplex(const clsMatrixComplex& a, double Tolerance = 0.0) const;
    Ref<clsLong> All(const Variant& dimention = {}) const;
    bool AllAll() const;
    Ref<clsLong> AnyObj(const Variant& dimention = {}) const;
    bool AnyAny() const;
    Ref<clsMatrix> AbsM() const;

    /// As those of clsMatrix; the result is always complex.
    Variant MTimes(const Variant& Obj) const;
    Ref<clsComplexMatrix> MtimesC(const clsComplexMatrix& b) const;
    Ref<clsComplexMatrix> MtimesR(const clsMatrix& b) const;
    Ref<clsComplexMatrix> MtimesL(const clsLong& b) const;
    Ref<clsComplexMatrix> MtimesMC(const clsMatrixComplex& b) const;
    Ref<clsComplexMatrix> MtimesCArray(const Array<Ref<clsComplex>>& b) const;
    Ref<clsComplexMatrix> MtimesRArray(const Array<double>& b) const;
    Ref<clsComplexMatrix> MtimesLArray(const Array<std::int32_t>& b) const;
    Ref<clsComplexMatrix> MtimesNum(double b) const;
    Ref<clsComplexMatrix> MtimesComplexNum(const clsComplex& b) const;
    Ref<clsComplexMatrix> TimesC(const clsComplexMatrix& b) const;
    Ref<clsComplexMatrix> TimesR(const clsMatrix& b) const;
    Ref<clsComplexMatrix> TimesL(const clsLong& b) const;
    Ref<clsComplexMatrix> TimesNum(double b) const;
    Ref<clsComplexMatrix> TimesComplexNum(const clsComplex& b) const;
    Ref<clsComplexMatrix> TimesMC(const clsMatrixComplex& b) const;
    Ref<clsComplexMatrix> TimesRArray(const Array<double>& b) const;
    Ref<clsComplexMatrix> TimesLArray(const Array<std::int32_t>& b) const;
    Ref<clsComplexMatrix> TimesCArray(const Array<Ref<clsComplex>>& b) const;
    Variant Times(const Variant& Obj) const;

    Ref<clsComplexMatrix> PlusC(const clsComplexMatrix& b) const;
    Ref<clsComplexMatrix> PlusR(const clsMatrix& b) const;
    Ref<clsComplexMatrix> PlusL(const clsLong& b) const;
    Ref<clsComplexMatrix> PlusNum(double b) const;
    Ref<clsComplexMatrix> PlusComplexNum(const clsComplex& b) const;
    Ref<clsComplexMatrix> PlusMC(const clsMatrixComplex& b) const;
    Ref<clsComplexMatrix> PlusRArray(const Array<double>& b) const;
    Ref<clsComplexMatrix> PlusLArray(const Array<std::int32_t>& b) const;
    Ref<clsComplexMatrix> PlusCArray(const Array<Ref<clsComplex>>& b) const;
    Variant Plus(const Variant& Obj) const;

    Ref<clsComplexMatrix> MinusC(const clsComplexMatrix& b) const;
    Ref<clsComplexMatrix> MinusR(const clsMatrix& b) const;
    Ref<clsComplexMatrix> MinusL(const clsLong& b) const;
    Ref<clsComplexMatrix> MinusNum(double b) const;
    Ref<clsComplexMatrix> MinusComplexNum(const clsComplex& b) const;
    Ref<clsComplexMatrix> MinusMC(const clsMatrixComplex& b) const;
    Ref<clsComplexMatrix> MinusRArray(const Array<double>& b) const;
    Ref<clsComplexMatrix> MinusLArray(const Array<std::int32_t>& b) const;
    Ref<clsComplexMatrix> MinusCArray(const Array<Ref<clsComplex>>& b) const;
    Variant Minus(const Variant& Obj) const;

    Ref<clsComplexMatrix> RdivideC(const clsComplexMatrix& b) const;
    Ref<clsComplexMatrix> RdivideR(const clsMatrix& b) const;
    Ref<clsComplexMatrix> RdivideL(const clsLong& b) const;
    Ref<clsComplexMatrix> RdivideNum(double b) const;
    Ref<clsComplexMatrix> RdivideComplexNum(const clsComplex& b) const;
    Ref<clsComplexMatrix> RdivideMC(const clsMatrixComplex& b) const;
    Ref<clsComplexMatrix> RdivideRArray(const Array<double>& b) const;
    Ref<clsComplexMatrix> RdivideLArray(const Array<std::int32_t>& b) const;
    Ref<clsComplexMatrix> RdivideCArray(const Array<Ref<clsComplex>>& b) const;
    Variant Rdivide(const Variant& Obj) const;

    Ref<clsComplexMatrix> OutMatrixByVector(const Variant& Indices, std::int32_t Left,
                                            std::int32_t Right, std::int16_t flag) const;

private:
    Array<double> real_part_;
    Array<double> image_part_;
};

} // namespace lumora
