#include "numeric/clsString.h"

#include "numeric/TableNames.h"
#include "numeric/clsVariant.h"
#include "numeric/order/Extremes.h"
#include "numeric/order/Pairwise.h"
#include "numeric/order/Quantifiers.h"

// Order statistics: result, member, what it does.

namespace lumora {

// clang-format off
std::string     Texts::Min     ()                         const { return SmallestOf(*this); }
std::string     Texts::Max     ()                         const { return LargestOf(*this); }
Ref<clsVariant> Texts::Minmax  ()                         const { return MinmaxOf<clsVariant>(*this); }
Ref<Texts>      Texts::MinDim  (const Variant& dimention) const { return SmallestAlong(*this, dimention); }
Ref<Texts>      Texts::MaxDim  (const Variant& dimention) const { return LargestAlong(*this, dimention); }
Ref<Longs>      Texts::MinIndex(const Variant& dimention) const { return SmallestPlaces(*this, dimention); }
Ref<Longs>      Texts::MaxIndex(const Variant& dimention) const { return LargestPlaces(*this, dimention); }

Ref<Texts> Texts::MinSS    (const Texts& a)       const { return SmallerOf<Texts>(*this, a); }
Ref<Texts> Texts::MaxSS    (const Texts& a)       const { return LargerOf<Texts>(*this, a); }
Ref<Texts> Texts::MinString(const std::string& x) const { return SmallerOf<Texts>(*this, x); }
Ref<Texts> Texts::MaxString(const std::string& x) const { return LargerOf<Texts>(*this, x); }

Ref<Longs> Texts::All   (const Variant& dimention) const { return AskedAlong(*this, dimention, Quantifier::All); }
Ref<Longs> Texts::AnyObj(const Variant& dimention) const { return AskedAlong(*this, dimention, Quantifier::Any); }
bool       Texts::AllAll()                         const { return Asked(*this, Quantifier::All); }
bool       Texts::AnyAny()                         const { return Asked(*this, Quantifier::Any); }
// clang-format on

} // namespace lumora
