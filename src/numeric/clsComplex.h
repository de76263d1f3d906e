#pragma once

#include "base/Array.h"
#include "base/Ref.h"
#include "base/Variant.h"

#include <cstdint>
#include <string>

namespace lumora {

/// One complex number, the scalar of the family; it holds the complex formulas. Its tag is empty,
/// and that is how it is told from the matrices.
class clsComplex {
public:
    double Real = 0.0;
    double Image = 0.0;
    std::string Name;         ///< a label; nothing reads it
    std::string TypeOfMatrix; ///< stays empty

    clsComplex() = default;
    clsComplex(double re, double im) : Real(re), Image(im) {}

    void SetReal(double re);
    void SetImage(double im);
    void SetComplex(double re, double im);

    /// The formulas on z = a + bi; docs/elementary-functions.md lists them with their branches. A
    /// guard shows its message once and goes on: "Divide by zero." ("Divide by Zero." in CscM),
    /// "Singularity in Atan", "Singularity in Atanh" and "Singularity in Acot." with 10^306, "Log
    /// of zero." with -10^306, "Overflow." and "Overflow" with 0. Error 6 where a formula
    /// overflows. Power takes a number or a clsComplex and gives a clsComplex, or an array or a
    /// matrix and gives a clsComplexMatrix of its shape; another value shows "Parametr must be
    /// number or cls" and gives empty. LogBaseM takes a number or a clsComplex, else " Incorrect
    /// type of object.".
    Ref<clsComplex> SinM() const;
    Ref<clsComplex> AsinM() const;
    Ref<clsComplex> SinhM() const;
    Ref<clsComplex> AsinhM() const;
    Ref<clsComplex> CosM() const;
    Ref<clsComplex> AcosM() const;
    Ref<clsComplex> CoshM() const;
    Ref<clsComplex> AcoshM() const;
    Ref<clsComplex> TanM() const;
    Ref<clsComplex> AtanM() const;
    Ref<clsComplex> TanhM() const;
    Ref<clsComplex> AtanhM() const;
    Ref<clsComplex> CotM() const;
    Ref<clsComplex> AcotM() const;
    Ref<clsComplex> CothM() const;
    Ref<clsComplex> AcothM() const;
    Ref<clsComplex> SecM() const;
    Ref<clsComplex> AsecM() const;
    Ref<clsComplex> SechM() const;
    Ref<clsComplex> AsechM() const;
    Ref<clsComplex> CscM() const;
    Ref<clsComplex> AcscM() const;
    Ref<clsComplex> CschM() const;
    Ref<clsComplex> AcschM() const;
    Ref<clsComplex> LogM() const;
    Ref<clsComplex> Log2M() const;
    Ref<clsComplex> Log10M() const;
    Variant Power(const Variant& Obj) const;
    Ref<clsComplex> LogBaseM(const Variant& base) const;
    Ref<clsComplex> ExpM() const;
    Ref<clsComplex> SqrM() const;
    double AbsM() const;
    Ref<clsComplex> Conj() const;
    Ref<clsComplex> CTranspose() const;
    /// A copy.
    Ref<clsComplex> Transpose() const;

    /// Operators as those of clsMatrix, the receiver being a 1 by 1 left side. Matrix and array
    /// members give a clsComplexMatrix of the operand's shape. Times is Mtimes: a scalar has one
    /// kind of product.
    Ref<clsComplex> MtimesComplexNum(const clsComplex& b) const;
    Ref<clsComplex> MtimesNum(double b) const;
    Ref<clsComplexMatrix> MtimesR(const clsMatrix& b) const;
    Ref<clsComplexMatrix> MtimesL(const clsLong& b) const;
    Ref<clsComplexMatrix> MtimesC(const clsComplexMatrix& b) const;
    Ref<clsComplexMatrix> MtimesMC(const clsMatrixComplex& b) const;
    Ref<clsComplexMatrix> MtimesLArray(const Array<std::int32_t>& b) const;
    Ref<clsComplexMatrix> MtimesRArray(const Array<double>& b) const;
    Ref<clsComplexMatrix> MtimesCArray(const Array<Ref<clsComplex>>& b) const;
    Variant MTimes(const Variant& Obj) const;

    Ref<clsComplex> TimesComplexNum(const clsComplex& b) const;
    Ref<clsComplexMatrix> TimesC(const clsComplexMatrix& b) const;
    Ref<clsComplexMatrix> TimesCArray(const Array<Ref<clsComplex>>& b) const;
    Ref<clsComplexMatrix> TimesMC(const clsMatrixComplex& b) const;
    Ref<clsComplexMatrix> TimesL(const clsLong& b) const;
    Ref<clsComplexMatrix> TimesLArray(const Array<std::int32_t>& b) const;
    Ref<clsComplex> TimesNum(double b) const;
    Ref<clsComplexMatrix> TimesR(const clsMatrix& b) const;
    Ref<clsComplexMatrix> TimesRArray(const Array<double>& b) const;

    Ref<clsComplex> CopyObject(const std::string& s = {}) const;
    /// 1 by 1. The flag has no effect.
    Ref<clsString> MatrixToString(const Variant& flag = {}) const;

    /// (exp(x) + exp(-x))/2 and (exp(x) - exp(-x))/2; error 6 when exp overflows.
    double Hcos(double x) const;
    double Hsin(double x) const;
    Ref<clsComplex> Mul_z(const clsComplex& w) const;
    /// The angle, by the free Atan2.
    double Atan2_z() const;
    /// As SqrM.
    Ref<clsComplex> Sqrt_z() const;
    Ref<clsComplex> Minus_z(const clsComplex& w) const;
    Ref<clsComplex> Plus_z(const clsComplex& w) const;
    /// Deliberate: 0 for every value. Ask Atan2_z for the angle.
    double Angle_z() const;

    Variant Times(const Variant& Obj) const;
    Ref<clsComplex> PlusComplexNum(const clsComplex& b) const;
    Ref<clsComplex> PlusNum(double b) const;
    Ref<clsComplexMatrix> PlusR(const clsMatrix& b) const;
    Ref<clsComplexMatrix> PlusL(const clsLong& b) const;
    Ref<clsComplexMatrix> PlusC(const clsComplexMatrix& b) const;
    Ref<clsComplexMatrix> PlusMC(const clsMatrixComplex& b) const;
    Ref<clsComplexMatrix> PlusLArray(const Array<std::int32_t>& b) const;
    Ref<clsComplexMatrix> PlusRArray(const Array<double>& b) const;
    Ref<clsComplexMatrix> PlusCArray(const Array<Ref<clsComplex>>& b) const;
    Variant Plus(const Variant& Obj) const;

    Ref<clsComplex> MinusComplexNum(const clsComplex& b) const;
    Ref<clsComplex> MinusNum(double b) const;
    Ref<clsComplexMatrix> MinusR(const clsMatrix& b) const;
    Ref<clsComplexMatrix> MinusL(const clsLong& b) const;
    Ref<clsComplexMatrix> MinusC(const clsComplexMatrix& b) const;
    Ref<clsComplexMatrix> MinusMC(const clsMatrixComplex& b) const;
    Ref<clsComplexMatrix> MinusLArray(const Array<std::int32_t>& b) const;
    Ref<clsComplexMatrix> MinusRArray(const Array<double>& b) const;
    Ref<clsComplexMatrix> MinusCArray(const Array<Ref<clsComplex>>& b) const;
    Variant Minus(const Variant& Obj) const;

    Ref<clsComplex> RdivideComplexNum(const clsComplex& b) const;
    Ref<clsComplex> RdivideNum(double b) const;
    Ref<clsComplexMatrix> RdivideR(const clsMatrix& b) const;
    Ref<clsComplexMatrix> RdivideL(const clsLong& b) const;
    Ref<clsComplexMatrix> RdivideC(const clsComplexMatrix& b) const;
    Ref<clsComplexMatrix> RdivideMC(const clsMatrixComplex& b) const;
    Ref<clsComplexMatrix> RdivideLArray(const Array<std::int32_t>& b) const;
    Ref<clsComplexMatrix> RdivideRArray(const Array<double>& b) const;
    Ref<clsComplexMatrix> RdivideCArray(const Array<Ref<clsComplex>>& b) const;
    Variant Rdivide(const Variant& Obj) const;
};

} // namespace lumora
