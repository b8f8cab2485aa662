// How a claim divides among its companies.
#pragma once

#include "qvn/toolkit/surface.h"

namespace qvn::documents {

/// Lets the button `CmdCOMPAGNIE` open the viewer with the estimated and the paid damage of each company of the claim
/// that `LblPROT` tells, headed "Stimato" and "Liquidato". The caption goes into the statement as it is, between
/// quotes, so that one with a quote breaks it; where the statement fails, the viewer stays loaded and is not shown.
void openViewerOfClaim(toolkit::Surface& panel);

}  // namespace qvn::documents
