// Where the widgets of the commission panel lie.
#pragma once

#include <array>
#include <string_view>

#include "qvn/toolkit/layout.h"

namespace qvn::commissions {

/// What a producer's percents are of, as the lists of bases offer it; the first character is the mode.
inline constexpr std::array<std::string_view, 2> kBases{"1 - Premi Polizza", "2 - Provv. Ufficio"};

/// The layout of ctlPROV_POLIZZE: the participant's quota and premiums above, the office and the summary in the middle,
/// the two producers below. Its rows stand in tab order.
const toolkit::PanelLayout& layout();

}  // namespace qvn::commissions
