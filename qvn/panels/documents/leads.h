// The lead coinsurer and its producer, as the panels that show a document name them.
#pragma once

#include "qvn/toolkit/surface.h"

namespace qvn::documents {

/// Lets each code bring its description, however its caption came to change: `LblCOD_COMP_DEL` the company's name in
/// `LblDESC_COMP_DEL`, `LblCOD_PROD_DEL` the producer's in `LblDESC_PROD_DEL`. A look-up that fails leaves the former
/// description, and fails the write of the code.
void describeLeads(toolkit::Surface& panel);

}  // namespace qvn::documents
