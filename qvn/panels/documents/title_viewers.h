// How an outstanding title divides among its companies and its producers.
#pragma once

#include "qvn/toolkit/surface.h"

namespace qvn::documents {

/// Lets the buttons `CmdCOMPAGNIE`, `CmdPRODUTTORI` and `CmdPRODUTTORI_ALT` open the viewer with the rows of the title
/// that `LblPROT` and `LblPROG` tell; both captions go into the statement as they are. Where the statement fails, the
/// viewer stays loaded and is not shown.
void openViewersOfTitle(toolkit::Surface& panel);

}  // namespace qvn::documents
