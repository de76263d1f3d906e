#include "numeric/clsComplex.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsMatrixComplex.h"
#include "numeric/clsString.h"
#include "numeric/clsVariant.h"
#include "numeric/shaping/ShapedStores.h"
#include "numeric/shaping/Shaping.h"

// Transpose, CTranspose and Conj of the matrix classes.

namespace lumora {

namespace {

/// The transpose of every store.
constexpr auto kTransposed = [](const auto& from) { return Transposed(from); };

/// Error 91 for an element without object.
Ref<clsComplex> Mirror(const Ref<clsComplex>& z)
{
    return MakeRef<clsComplex>(z->Real, -z->Image);
}

/// `shape` makes both parts of the result, the second with the other sign.
template <class Shape> Ref<clsComplexMatrix> Conjugate(const clsComplexMatrix& m, Shape shape)
{
    const ComplexSheet parts = SheetOf(m);
    return NewMatrix<clsComplexMatrix>(
        shape(Sheet<double>{parts.rows, parts.columns, parts.re}, std::identity()),
        shape(Sheet<double>{parts.rows, parts.columns, parts.im}, std::negate<double>()));
}

/// Element objects carry their sign themselves.
template <class Shape> Ref<clsMatrixComplex> Conjugate(const clsMatrixComplex& m, Shape shape)
{
    return NewMatrix<clsMatrixComplex>(shape(SheetOf(m), Mirror));
}

constexpr auto kTransposedBy = [](const auto& from, auto sign) { return Transposed(from, sign); };
constexpr auto kSameBy = [](const auto& from, auto sign) { return Same(from, sign); };

} // namespace

// clang-format off
Ref<clsMatrix>        clsMatrix::Transpose        () const { return Shaped(*this, kTransposed); }
Ref<clsLong>          clsLong::Transpose          () const { return Shaped(*this, kTransposed); }
Ref<clsComplexMatrix> clsComplexMatrix::Transpose () const { return Shaped(*this, kTransposed); }
Ref<clsMatrixComplex> clsMatrixComplex::Transpose () const { return Shaped(*this, kTransposed); }
Ref<clsString>        clsString::Transpose        () const { return Shaped(*this, kTransposed); }
Ref<clsVariant>       clsVariant::Transpose       () const { return Shaped(*this, kTransposed); }

Ref<clsMatrix>        clsMatrix::CTranspose       () const { return Transpose(); }
Ref<clsLong>          clsLong::CTranspose         () const { return Transpose(); }
Ref<clsComplexMatrix> clsComplexMatrix::CTranspose() const { return Conjugate(*this, kTransposedBy); }
Ref<clsMatrixComplex> clsMatrixComplex::CTranspose() const { return Conjugate(*this, kTransposedBy); }
Ref<clsString>        clsString::CTranspose       () const { return Transpose(); }
Ref<clsVariant>       clsVariant::CTranspose      () const { return Transpose(); }

Ref<clsMatrix>        clsMatrix::Conj             () const { return CopyObject(); }
Ref<clsLong>          clsLong::Conj               () const { return CopyObject(); }
Ref<clsComplexMatrix> clsComplexMatrix::Conj      () const { return Conjugate(*this, kSameBy); }
Ref<clsMatrixComplex> clsMatrixComplex::Conj      () const { return Conjugate(*this, kSameBy); }
// clang-format on

} // namespace lumora
