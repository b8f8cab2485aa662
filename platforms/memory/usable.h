// Which widgets an operator can use at the moment.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qvn/toolkit/widget.h"

namespace qvn::memory {

/// Whether widgets of the kind can hold the focus at all.
bool takesFocus(toolkit::WidgetKind kind);

/// What keeps an operator from using the widget, in words: it, a frame around it or its panel is disabled or hidden,
/// or a form stands before it.
/// Empty if nothing does.
std::string_view obstacle(const toolkit::Widget& widget);

/// Whether the widget can hold the focus now.
inline bool canHoldFocus(const toolkit::Widget& widget) {
  return takesFocus(widget.Kind()) && obstacle(widget).empty();
}

/// "subscript out of range", naming the widget, on a place among its things, "rows" for one, that is not there.
void requirePlace(const toolkit::Widget& widget, std::string_view things, std::int32_t count, std::int32_t place);

/// The widget's name with its panel's in front, for messages.
std::string fullName(const toolkit::Widget& widget);

}  // namespace qvn::memory
