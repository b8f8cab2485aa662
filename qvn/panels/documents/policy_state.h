// Whether a policy or a claim that a search has found has come to its end.
#pragma once

#include "qvn/shared/variant.h"
#include "qvn/toolkit/surface.h"

namespace qvn::documents {

/// Shows the state of a letter, exact in case, in `LblSTATO`: "A" "ANNULLATA"; "D" "SVINCOLATA" where the branch that
/// `LblCOD_GR` tells is one of guarantees, RAMI.TIPO_SK 4, and "DISDETTA" where it is not or is unknown. Any other
/// value empties it. "D" alone looks something up, and fails as the look-up does; the state that is shown stays then.
void showPolicyState(toolkit::Surface& panel, const Variant& letter);

}  // namespace qvn::documents
