#include "numeric/clsString.h"

#include "numeric/clsVariant.h"
#include "numeric/order/Extremes.h"
#include "numeric/order/Pairwise.h"
#include "numeric/order/Quantifiers.h"

// Order statistics: result, member, what it does.

namespace lumora {

// clang-format off
std::string     clsString::Min      ()                         const { return FirstExtreme(SheetOf(*this), Smaller()).value; }
std::string     clsString::Max      ()                         const { return FirstExtreme(SheetOf(*this), Larger()).value; }
Ref<clsVariant> clsString::Minmax   ()                         const { return MinmaxRow<clsVariant>(FirstExtreme(SheetOf(*this), Smaller()), FirstExtreme(SheetOf(*this), Larger())); }
Ref<clsString>  clsString::MinDim   (const Variant& dimention) const { return ExtremesAlong(*this, dimention, Smaller()); }
Ref<clsString>  clsString::MaxDim   (const Variant& dimention) const { return ExtremesAlong(*this, dimention, Larger()); }
Ref<clsLong>    clsString::MinIndex (const Variant& dimention) const { return PlacesAlong(*this, dimention, Smaller()); }
Ref<clsLong>    clsString::MaxIndex (const Variant& dimention) const { return PlacesAlong(*this, dimention, Larger()); }

Ref<clsString>  clsString::MinSS    (const clsString& a)       const { return Pairwise<clsString>(SheetOf(*this), SheetOf(a), Smaller()); }
Ref<clsString>  clsString::MaxSS    (const clsString& a)       const { return Pairwise<clsString>(SheetOf(*this), SheetOf(a), Larger()); }
Ref<clsString>  clsString::MinString(const std::string& x)     const { return Pairwise<clsString>(SheetOf(*this), Single{x}, Smaller()); }
Ref<clsString>  clsString::MaxString(const std::string& x)     const { return Pairwise<clsString>(SheetOf(*this), Single{x}, Larger()); }

Ref<clsLong>    clsString::All      (const Variant& dimention) const { return AskedAlong(*this, dimention, Quantifier::All); }
Ref<clsLong>    clsString::AnyObj   (const Variant& dimention) const { return AskedAlong(*this, dimention, Quantifier::Any); }
bool            clsString::AllAll   ()                         const { return Asked(*this, Quantifier::All); }
bool            clsString::AnyAny   ()                         const { return Asked(*this, Quantifier::Any); }
// clang-format on

} // namespace lumora
