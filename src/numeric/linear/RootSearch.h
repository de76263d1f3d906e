#pragma once

#include "numeric/linear/Polynomial.h"

#include <optional>
#include <vector>

namespace lumora {

/// One root of a polynomial of degree 1 or more whose first coefficient is not zero, by Laguerre's
/// method: it comes from nearly everywhere to some root, and with three times the digits a round
/// to a simple one. Starts: 0.1 + 0.1i with 1000 rounds, then the unit circle from 45 degrees on,
/// degree by degree, 150 rounds each. A round ends the search where the polynomial is lost in its
/// rounding errors or the step is below 1e-14 of the place; a step of 1e5 or more in a part, or a
/// value above 1e130, fails the start. Where all starts fail (roots far from 1), the same is done
/// in a unit of length that makes the roots' mean magnitude 1. Nothing if that fails too: then
/// there is no finite root, or no finite coefficient.
std::optional<ComplexValue> FindRoot(const Polynomial& p);

/// Brings all roots of p, which are known roughly, as close as its coefficients in double precision
/// tell them (O. Aberth, Math. Comp. 27, 1973): each takes Newton's steps while the others hold it
/// off, so that no two fall into one. At most 100 rounds. p has neither first nor last coefficient
/// zero.
void Polish(const Polynomial& p, std::vector<ComplexValue>& roots);

} // namespace lumora
