#include "qvn/toolkit/layout.h"

#include <array>
#include <cstddef>

namespace qvn::toolkit {

std::string_view nameOf(WidgetKind kind) {
  static constexpr std::array<std::string_view, 10> names{
      "text box", "label", "combo box", "check box", "frame", "button", "date", "list", "grid", "data control"};
  return names.at(static_cast<std::size_t>(kind));
}

}  // namespace qvn::toolkit
