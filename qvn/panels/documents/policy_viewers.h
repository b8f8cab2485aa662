// How a policy divides among its companies and its producers, by the figures of its current calculation.
#pragma once

#include "qvn/toolkit/surface.h"

namespace qvn::documents {

/// Lets the buttons `CmdCOMPAGNIE`, `CmdPRODUTTORI` and `CmdPRODUTTORI_ALT` open the viewer with the rows of the policy
/// that `LblPROT` tells; the caption goes into the statements as it is. POLIZZE.U_CALCOLO chooses between the figures:
/// those of _TRF for "TRF", exact in case, and of _TAF for anything else. A policy that is not there fails with
/// "database", and no form is loaded; where the statement of the rows fails, the viewer stays loaded and is not shown.
void openViewersOfPolicy(toolkit::Surface& panel);

}  // namespace qvn::documents
