// The handlers that fields of the statement line and of the credit line have alike.
#pragma once

#include <cstdint>
#include <string_view>

#include "qvn/fields/text_field.h"
#include "qvn/lookups/field_with_list.h"
#include "qvn/toolkit/widget.h"

namespace qvn::documents {

/// Wires a field with a pick list, but for its keys: a plain field that is yellow with the focus. The name must live as
/// long as the program.
void wireWithList(toolkit::TextBox& box, std::string_view property);

/// Wires one of a code of at most so many characters: as above, and "?" opens the list for what is in the field.
void wireCode(toolkit::TextBox& box, std::string_view property, lookups::ListFunction list, std::int16_t limit);

}  // namespace qvn::documents
