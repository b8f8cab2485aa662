// The handlers that closed lists have alike from panel to panel.
#pragma once

#include <string_view>

#include "qvn/toolkit/widget.h"

namespace qvn::fields {

/// Wires a closed list: a choice, by hand or by program, is announced under the property's name, gaining the focus
/// colours the list, losing it takes the colour away. Keys are the list's own. The name must live as long as the
/// program.
void wire(toolkit::ComboBox& list, std::string_view property);

}  // namespace qvn::fields
