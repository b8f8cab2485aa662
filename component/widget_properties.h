// What widgets show, by the names of their properties.
#pragma once

#include <string_view>

#include "qvn/shared/variant.h"
#include "qvn/toolkit/widget.h"

namespace qvn::component {

/// A property, named without regard to case. "no such member", naming panel and widget, if a widget of its kind has
/// none of that name.
Variant propertyOf(const toolkit::Widget& widget, std::string_view property);

}  // namespace qvn::component
