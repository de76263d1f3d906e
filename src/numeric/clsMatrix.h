#pragma once

#include "base/Array.h"
#include "base/Ref.h"
#include "base/Variant.h"

#include <cstdint>
#include <memory>
#include <string>

namespace lumora {

/// Matrix of 64-bit floats. Indices count from 1; element (i, j) has row i and column j. One row is
/// kept as a one-dimensional array, anything else as a two-dimensional one, column-major, and a
/// store whose dimensions disagree with size1 fails with error 9 at its next use. Objects live in a
/// Ref (MakeRef); an operation returns a new object and leaves its operands alone unless it says
/// otherwise. "Empty" is an empty Ref or Variant, whose use is error 91.
class clsMatrix : public std::enable_shared_from_this<clsMatrix> {
public:
    /// Public fields; the tag says which class it is. Sizes are 0 until the first Initial_matrix,
    /// SetRealAll or copy.
    std::int32_t size1 = 0; ///< rows
    std::int32_t size2 = 0; ///< columns
    std::string Name;       ///< a label; nothing reads it
    std::string TypeOfMatrix = "r";

    /// The store itself, for kernels: read in place, not copied.
    const Array<double>& Elements() const { return elements_; }

    // Operations on the receiver as a vector of samples, which stays as it is. A vector is a row or
    // a column unless one of them is named; another matrix in its place is error 9. Samples and
    // frames count from 1. Errors: 6 where finite samples overflow, 13 for a Variant that is no
    // number.

    /// As Compression_Expansion, with round(|koef|*N) samples, halves to the even number; fewer
    /// than one is the case of "it is  very Small". What lies behind the last sample repeats it.
    Ref<clsMatrix> Compression_ExpansionPrec(double koef) const;
    /// As ExstremumValueAndIndexMax, the largest values first and of equal ones the earlier sample,
    /// at most Quantity rows. Quantity below 1 becomes 1 in the caller's variable.
    Ref<clsMatrix> SortExstremumMax(std::int32_t& Quantity, const Variant& Level = {}) const;
    /// A row minus the mean of its first Num samples. Num is rounded; errors 11 for 0 and 9 beyond
    /// the vector; of a negative number of samples the mean is 0.
    /// Deliberate: of a column only the first sample is computed, the others are 0.
    Ref<clsMatrix> SoundMinusAverage1(const Variant& Num) const;
    /// K by 2: value and index of the local maxima, in the order of the samples; 1 by 2 zeros if
    /// there is none.
    Ref<clsMatrix> ExstremumValueAndIndexMax(const Variant& Level = {}) const;
    /// Index of the first element not below Num among Left..Right of a vector that rises there, by
    /// bisection: Left where Num lies before it or within Tolerance of it, Right where it is not
    /// below it, 0 if Left is above Right. The caller's bounds are narrowed on the way, and from
    /// the first time on equal means within 1e-8. Errors: 9 for a bound outside the vector that is
    /// looked at, 5 where elements that are no finite numbers leave it undecided.
    std::int32_t BinSearchInArray(std::int32_t& Left, std::int32_t& Right, double Num,
                                  double Tolerance) const;
    /// A row of the indices of local maxima, not below Level if that is given; a 1 by 1 zero if
    /// there is none. A plateau counts by its left end, and not at all at the end of the vector;
    /// the first and the last sample never do. A matrix, and a vector of less than 3, has none.
    Ref<clsLong> FoundIndexesExstremumInVector_Max(const Variant& Level = {}) const;
    /// As Minmax.
    Ref<clsMatrix> MinmaxIndex() const;

    /// Discrete Fourier transform of a vector, cut or padded with zeros to n_fft elements: a
    /// clsComplexMatrix row, element k + 1 being the sum of x(n + 1)*exp(-2 pi i k n / n_fft). A
    /// vector of nothing but zeros gives a clsMatrix row of n_fft zeros.
    /// Deliberate: ifftm has the same sign in the exponent and divides by n_fft, which of a real
    /// vector is the conjugate of the inverse transform.
    /// n_fft is a power of two. Errors: 9 for another (unless all is zero) and for one below 1, for
    /// a matrix of several rows and columns, and without elements; 6 on overflow.
    Variant fftm(std::int32_t n_fft) const;
    Variant ifftm(std::int32_t n_fft) const;

    /// As Parcor_Burg, and a column may be one frame too.
    Variant Parcor_Burg1(std::int32_t Npred, std::int32_t& Window, std::int32_t& Shift) const;
    /// Another number of samples by linear interpolation, first and last kept where they fall: N
    /// become Int(|koef|*(N-1) + 1), sample i standing at (i-1)/|koef| + 1. A row along itself, a
    /// column and each column of a matrix down. A koef of 0 shows "Koef for Compression-Expansion
    /// equal zero", a result without samples "Koef for Compression-Expansion it is  very Small";
    /// both then give a 1 by 1 matrix of -1. Errors: 6 for more samples than 32 bits count, 7 for
    /// more than memory holds, 9 without elements.
    Ref<clsMatrix> Compression_Expansion(double koef) const;
    /// The same without interpolation: Int(N*koef) samples, sample i being the one at Int(i/koef)
    /// for koef below 1, at the next whole number from i/koef on otherwise. A negative koef leaves
    /// no samples. The messages name "Compression-Expansion_Matrix". Error 9 too where rounding
    /// puts i/koef behind the last sample.
    Ref<clsMatrix> Compression_Expansion_Matrix(double koef) const;
    /// All-pole synthesis, the inverse of Parcor_Resid for a Q_T of 1: a row. The receiver is the
    /// excitation, Parcor a table of Nint/10 + 2 rows (with any other number of rows it is
    /// transposed first), frames as in Parcor_Resid. Q_T scales the length of the vocal tract: the
    /// areas of P + 1 tubes become those of about P*Q_T + 1 by Compression_Expansion, and the order
    /// of the filter is P*Q_T + 1, rounded. The last samples of VectInit, as many as that, stand
    /// before the first one. With a Q_T of 0 every frame shows the message of Compression_Expansion
    /// and passes as it is, as it does with any Q_T that leaves one tube. Errors: 9 for an order
    /// below 1 (a Q_T below -0.5/P), 11 for a reflection of -1 and for neighbouring tubes of
    /// opposite areas, and those of Parcor_Resid.
    Ref<clsMatrix> Parcor_Direct(const clsMatrix& Parcor, const clsMatrix& VectInit, double Q_T,
                                 std::int32_t Nint) const;
    /// Residual of linear prediction, a row as long as the receiver. Parcor has P rows and a column
    /// for each frame of Nint samples; the last frame goes on to the end. The last P samples of
    /// VectInit stand before the first one. A single column of more than one row serves all frames;
    /// for a frame without column OutMatrix shows its message, then error 91. A vector shorter
    /// than Nint has no frame and a residual of 0 (in Parcor_Direct: is not filtered). Errors: 9 if
    /// VectInit, the receiver, or Nint with more than one frame is less than P; 11 for an Nint of
    /// 0, 5 for a negative one.
    Ref<clsMatrix> Parcor_Resid(const clsMatrix& Parcor, const clsMatrix& VectInit,
                                std::int32_t Nint) const;
    /// A row of predictor coefficients from reflection coefficients (step-up recursion of Levinson
    /// and Durbin; Markel and Gray, Linear Prediction of Speech, 1976).
    Ref<clsMatrix> Pred_Lat() const;
    /// Reflection coefficients by Burg's method (J. P. Burg, Maximum Entropy Spectral Analysis,
    /// 1975): an Npred by frames table in the order of the samples, all 0 for a frame without
    /// energy or of no more than Npred samples. Window counts the samples of a frame, Shift those
    /// between the starts of two. In the caller's variables Window becomes the length of the vector
    /// if it is 0 or longer, and Shift a third of Window if it is 0; with a Window shorter than the
    /// vector Shift is cut to Window and loses 1 if it leaves an odd rest. Then (Window - Shift)/2
    /// samples of silence stand before the sound, and the last frame is filled up with silence.
    /// Otherwise the vector, which must be a row, is one frame.
    /// Fewer than 10 samples show "Vector of sound is veri small" and give empty. Errors: 9 for an
    /// Npred below 1, for a negative Window or Shift, with which there is no frame, and for a
    /// column as one frame; 11 for a Shift that has become 0.
    Variant Parcor_Burg(std::int32_t Npred, std::int32_t& Window, std::int32_t& Shift) const;
    /// Sum of x(IndexFirst + k)*x(IndexSecond + k), k = 0..length1 - 1 (rounded), of a row; 0 for
    /// another matrix. Error 9 outside the row and, unless length1 is below 1, for a 1 by 1 matrix.
    double ScallProd(std::int32_t IndexFirst, std::int32_t IndexSecond,
                     const Variant& length1) const;
    /// 1 where the element is greater than the operand, else 0. The operand is a number or a text
    /// that spells one; an object of tag "", "r", "L", "c" or "cm", complex ones by their real
    /// part. A matrix of other sizes shows "Matrix dimensions must agree." and gives empty. Any
    /// other operand gives empty; error 13 where a tag belies its class.
    Ref<clsLong> Gt(const Variant& a) const;

    /// Elementary functions, element by element, angles in radians. Those that return a Variant
    /// hold a clsMatrix while all elements lie in the real domain, and otherwise a
    /// clsComplexMatrix in which elements inside the domain keep their real value and have an
    /// imaginary part of zero, some guards excepted. docs/elementary-functions.md lists formula,
    /// domain and guard of each. A guard shows its message once a call and goes on: "Divide by
    /// zero." and "Log of zero." with 10^306 (a logarithm with its negative), "Overflow." with 0.
    /// Errors: 6 where the formula overflows, 11 where it divides by a zero that has no guard, 5
    /// outside the domain of the underlying function, 9 for a matrix without elements.
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
    /// To the power of a number, an array or an object. A 1 by 1 exponent goes with every element;
    /// another must have the sizes of the matrix, or "Matrix dimensions must agree." is shown.
    /// Another kind shows "Incorrect type of object.". Empty after a message. The result is real
    /// unless one element is complex: a negative one with an exponent that is not whole. Anything
    /// to the power 0 is 1; zero to a power not above 0 shows "Divide by zero." once and gives
    /// 10^306. Error 6 on overflow.
    Variant Power(const Variant& Obj) const;
    Variant LogBaseM(const Variant& base) const;
    Variant SqrM() const;
    /// A copy.
    Ref<clsMatrix> Conj() const;

    /// New object with (j, i) from (i, j). CTranspose is the same on real classes.
    Ref<clsMatrix> Transpose() const;
    Ref<clsMatrix> CTranspose() const;

    /// A text for each element, all cells of one width. The flag has no effect.
    Ref<clsString> MatrixToString(const Variant& flag = {}) const;

    /// Adopts the shape and contents of an array, bounds rebased to 1, and returns the receiver. A
    /// one-dimensional array becomes one row. Error 9 for an array without dimension.
    /// Deliberate: on an object that already has columns, a one-dimensional array sets size1 to
    /// its length and leaves size2, and the next use fails; fresh objects are what callers use.
    clsMatrix& SetRealAll_L(const Array<std::int32_t>& Arr, const std::string& s = {});
    clsMatrix& SetRealAll(Array<double> Arr, const std::string& s = {});
    /// A copy of the whole store.
    Array<double> GetRealAll() const;

    Ref<clsMatrix> CopyObject(const std::string& s = {}) const;
    /// Fill the receiver from another class and return it.
    clsMatrix& CopyObjectLongToDouble(const clsLong& Source, const std::string& s = {});
    clsMatrix& CopyObjectComplexRealToDouble(const clsComplexMatrix& Source,
                                             const std::string& s = {});
    clsMatrix& CopyObjectComplexImageToDouble(const clsComplexMatrix& Source,
                                              const std::string& s = {});

    /// One element. Outside the matrix "Index exceeds matrix dimensions." is shown and then error 9
    /// is raised.
    double Real(std::int32_t i, std::int32_t j) const;
    void Real(std::int32_t i, std::int32_t j, double value);

    /// Allocates zeros, forgetting earlier contents. Error 9 for a size below 1, 7 without memory.
    void Initial_matrix(std::int32_t new_size1, std::int32_t new_size2,
                        const std::string& new_name = {});
    /// As the writing Real.
    void Set_elements_matrix(std::int32_t i, std::int32_t j, double value);
    /// As the reading Real, as a Variant; the indices are rounded.
    Variant GetArr(const Variant& i, const Variant& j) const;

    /// Another column count; what stays keeps its place, new columns are zero. Error 9 below 1.
    void RedimPreserve(std::int32_t new_size2);
    /// Grows the receiver by the other's columns and copies them there. Error 9 if the other has
    /// fewer rows.
    void CatRefresh(const clsMatrix& other);

    /// Identity of N rows and columns; of N rows and `second` columns; or, with a 1 by 2 matrix
    /// for N, of the sizes that it holds. Another object, or an object beside `second`, shows the
    /// titled message "Error using Eye"; then a 1 by 1 matrix of -1 on OK, empty on Cancel.
    Ref<clsMatrix> clsEye(const Variant& N, const Variant& second = {}) const;

    /// Exchanges two rows (s = 1) or columns (s = 2; anything else becomes 1 in the caller's
    /// variable). The line that moves from X to Y changes its sign when |X - Y| is odd: one step
    /// of a determinant, in which X and Y do not stand for each other. Beyond the matrix the titled
    /// message "Error using Rearrange"; then a 1 by 1 matrix of -1 on OK, empty on Cancel.
    Variant Rearrange(std::int32_t X, std::int32_t Y, std::int16_t& s) const;

    /// Cuts rows Top..Buttom and columns Left..Right. With the last two left out, a row or a column
    /// is cut from its Top-th to its Left-th element, and anything else shows "Missing two
    /// parametrs". A range outside the matrix shows its message. Empty after a message.
    Ref<clsMatrix> OutMatrix(std::int32_t Top, std::int32_t Left, std::int32_t Buttom = 0,
                             std::int32_t Right = 0) const;
    /// Same elements in the same column-major order, other sizes. Sizes of another product show
    /// "Parameters Must be as NewSize1*NewSize2=size1*size2" and give empty. One row asked of one
    /// row is the receiver itself, not a copy (error 91 if no Ref holds it).
    Ref<clsMatrix> NewSizeOfMatrix(std::int32_t new_size1, std::int32_t new_size2);
    /// Picks the rows (flag 1, of them columns Left..Right) or columns (else) that a clsLong lists.
    /// Left below 1 means 1, Right below 1 means size2. Messages as OutMatrix, "The first parametr
    /// must be object- (clsLong)" and "Subscript indices must be integer values."; then empty.
    Ref<clsMatrix> OutMatrixByVector(const Variant& Indices, std::int32_t Left, std::int32_t Right,
                                     std::int16_t flag) const;

    /// Smallest and largest element, the first of equal ones; by column (dimention 1) or by row
    /// (2), 2 by default on a row and 1 otherwise; their positions in each column or row, from 1.
    /// Another dimention gives empty. Error 9 without elements.
    double Min() const;
    Ref<clsMatrix> MinDim(const Variant& dimention = {}) const;
    Ref<clsMatrix> MaxDim(const Variant& dimention = {}) const;
    Ref<clsLong> MinIndex(const Variant& dimention = {}) const;
    Ref<clsLong> MaxIndex(const Variant& dimention = {}) const;
    double Max() const;
    /// 1 by 6: minimum, maximum, row of each, column of each; of equal elements the first counts,
    /// row by row.
    Ref<clsMatrix> Minmax() const;
    /// Element by element against a matrix of the same sizes ("Matrix dimensions must agree." and
    /// empty otherwise), a number, or a complex number, which is compared by the complex rule of
    /// clsComplexMatrix. The receiver's element stands where both are equal.
    Ref<clsMatrix> MinRR(const clsMatrix& a) const;
    Ref<clsMatrix> MaxRR(const clsMatrix& a) const;
    Ref<clsMatrix> MinRL(const clsLong& a) const;
    Ref<clsMatrix> MaxRL(const clsLong& a) const;
    Ref<clsMatrix> MinNum(double x) const;
    Ref<clsMatrix> MaxRNum(double x) const;
    Ref<clsComplexMatrix> MinComplexNum(const clsComplex& z) const;
    Ref<clsComplexMatrix> MaxComplexNum(const clsComplex& z) const;

    /// 1 for each column (dimention 1) or row (2) in which all, or any, elements are non-zero; the
    /// default and another dimention as for MinDim. Then the same of the whole matrix: AllAll is
    /// true and AnyAny false without elements.
    Ref<clsLong> All(const Variant& dimention = {}) const;
    bool AllAll() const;
    Ref<clsLong> AnyObj(const Variant& dimention = {}) const;
    bool AnyAny() const;

    /// Magnitudes.
    Ref<clsMatrix> AbsM() const;

    /// Operators, the receiver on the left. A suffix names the operand: R clsMatrix, L clsLong,
    /// C clsComplexMatrix, MC clsMatrixComplex, Num a number, ComplexNum a clsComplex, and RArray,
    /// LArray, CArray plain arrays. A 1 by 1 side goes with every element of the other; otherwise
    /// the sizes must agree (Mtimes: the receiver's columns with the operand's rows), or "Error
    /// using ==> Plus(*) Inner matrix dimensions must agree." (with the operator's name) is shown
    /// and the result is empty. The forms without suffix take anything: error 13 where an object's
    /// tag belies its class, "Incorrect type of object" and empty for what is no operand, empty
    /// without a message for an array of neither numbers nor complex values. Errors: 6 where
    /// finite operands give no finite result (or a whole result leaves 32 bits), 9 for operands
    /// without elements.
    /// Rdivide: a divisor of zero (of either sign; for complex divisors a zero sum of the squares)
    /// shows "Divide by zero." once a call and gives 10^306.
    /// Deliberate: PlusNum, PlusL, PlusLArray and MtimesLArray compute their result and then stop
    /// with error 13, because it is not of the class that they declare.
    Ref<clsMatrix> MtimesR(const clsMatrix& b) const;
    Ref<clsMatrix> MtimesL(const clsLong& b) const;
    Ref<clsComplexMatrix> MtimesC(const clsComplexMatrix& b) const;
    Ref<clsComplexMatrix> MtimesMC(const clsMatrixComplex& b) const;
    Ref<clsMatrix> MtimesNum(double b) const;
    Ref<clsComplexMatrix> MtimesComplexNum(const clsComplex& b) const;
    Ref<clsComplexMatrix> MtimesCArray(const Array<Ref<clsComplex>>& b) const;
    Ref<clsMatrix> MtimesRArray(const Array<double>& b) const;
    Ref<clsLong> MtimesLArray(const Array<std::int32_t>& b) const;
    Variant MTimes(const Variant& Obj) const;

    Ref<clsComplexMatrix> TimesC(const clsComplexMatrix& b) const;
    Ref<clsMatrix> TimesR(const clsMatrix& b) const;
    Ref<clsMatrix> TimesL(const clsLong& b) const;
    Ref<clsMatrix> TimesNum(double b) const;
    Ref<clsComplexMatrix> TimesComplexNum(const clsComplex& b) const;
    Ref<clsComplexMatrix> TimesMC(const clsMatrixComplex& b) const;
    Ref<clsMatrix> TimesRArray(const Array<double>& b) const;
    Ref<clsMatrix> TimesLArray(const Array<std::int32_t>& b) const;
    Ref<clsComplexMatrix> TimesCArray(const Array<Ref<clsComplex>>& b) const;
    Variant Times(const Variant& Obj) const;
    Ref<clsComplexMatrix> PlusC(const clsComplexMatrix& b) const;
    Ref<clsMatrix> PlusR(const clsMatrix& b) const;
    Ref<clsMatrix> PlusL(const clsLong& b) const;
    Ref<clsMatrix> PlusNum(double b) const;
    Ref<clsComplexMatrix> PlusComplexNum(const clsComplex& b) const;
    Ref<clsComplexMatrix> PlusMC(const clsMatrixComplex& b) const;
    Ref<clsMatrix> PlusRArray(const Array<double>& b) const;
    Ref<clsMatrix> PlusLArray(const Array<std::int32_t>& b) const;
    Ref<clsComplexMatrix> PlusCArray(const Array<Ref<clsComplex>>& b) const;
    Variant Plus(const Variant& Obj) const;

    Ref<clsComplexMatrix> MinusC(const clsComplexMatrix& b) const;
    Ref<clsMatrix> MinusR(const clsMatrix& b) const;
    Ref<clsMatrix> MinusL(const clsLong& b) const;
    Ref<clsMatrix> MinusNum(double b) const;
    Ref<clsComplexMatrix> MinusComplexNum(const clsComplex& b) const;
    Ref<clsComplexMatrix> MinusMC(const clsMatrixComplex& b) const;
    Ref<clsMatrix> MinusRArray(const Array<double>& b) const;
    Ref<clsMatrix> MinusLArray(const Array<std::int32_t>& b) const;
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

    /// Sums, the reverse order, and running sums from the first element, by column (dimention 1) or
    /// by row (2); the default and another dimention as for MinDim. Sum gives a plain number where
    /// one sum is all there is, and otherwise one element for each column or row; the others keep
    /// the sizes. Across a vector all three give a copy. `s` names a new matrix. Elements are added
    /// from the first to the last. Errors: 9 without elements, 6 on overflow, 13 for a dimention
    /// that is no number.
    Variant Sum(const Variant& dimention = {}, const std::string& s = {}) const;
    Variant Reverse(const Variant& dimention = {}, const std::string& s = {}) const;
    Variant Cumsum(const Variant& dimention = {}, const std::string& s = {}) const;

    /// The x with receiver*x = a, a column of as many rows, by elimination with partial pivoting
    /// (J. H. Wilkinson, J. ACM 8, 1961), and the inverse matrix. "Error using ==> SolutionOfSistem
    /// Matrix must be square." ("==> inv"), "Matrix is singular to working precision."; empty after
    /// them. A pivot counts as zero as told at Elimination. Errors: 9 for another a and without
    /// elements, 6 on overflow, 7 for more elements than memory holds beside them.
    Ref<clsMatrix> SolutionOfSistem(const clsMatrix& a) const;
    Ref<clsMatrix> Inv() const;
    /// The column x for which the squares of receiver*x - a have the smallest sum, from the normal
    /// equations: half the digits that a system of the same condition leaves. A receiver that is a
    /// row stands for a column, and a is a row then too. "Error using ==> Mtimes(*) Inner matrix
    /// dimensions must agree." for other rows than the receiver's, and the message of a singular
    /// matrix where its columns depend on each other; empty after them.
    Ref<clsMatrix> LeastSqures(const clsMatrix& a) const;

    /// The row with every peak above 1 in magnitude pressed down to 0.9, from the highest on: round
    /// it goes a notch of raised cosine, Twind milliseconds long at Fs samples per second, w =
    /// round(Fs*Twind/1000) samples, halves to the even number.
    /// Errors: 9 for what is no row; and, if there is a peak to press, 11 for w = 1, of which no
    /// cosine can be made, 5 for a peak that its notch leaves as high (w below 1 or 2, a 3 that
    /// misses it, an infinite peak), 6 for a w beyond 32 bits.
    Ref<clsMatrix> Hanning_Normaliz(const Variant& unused, double Twind, std::int32_t Fs) const;
    /// The receiver becomes the row 1, 2, ..., length1. Error 9 below 1.
    void FillObject(std::int32_t length1);

private:
    Array<double> elements_;
};

} // namespace lumora
