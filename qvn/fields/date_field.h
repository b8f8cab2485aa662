// The handlers and the property that date fields have alike from panel to panel.
#pragma once

#include <cstdint>
#include <string_view>

#include "qvn/shared/variant.h"
#include "qvn/toolkit/widget.h"

namespace qvn::fields {

/// What a date field is left with of an Enter, once the date is completed.
enum class EnterKey : std::uint8_t { Cancelled, LeftToTheField };

/// Wires a date field: a change is announced under the property's name, gaining the focus colours the field and selects
/// the date, Enter completes and selects it, losing the focus takes the colour away. No key leads on from a date field.
/// The name must live as long as the program.
void wire(toolkit::DateControl& field, std::string_view property, EnterKey enter);

/// Whether the value stands for no date: the date of zero, in whatever kind of value it comes, or its text "0.00.00".
bool isNoDate(const Variant& value);

/// Writes a date under "dd/mm/yyyy" if the field shows another or none; the no-date mark blanks it. Null is passed
/// over: a date that is shown stays. Fails with "type mismatch", naming the field and quoting the text, on what is no
/// date.
void showDate(toolkit::DateControl& field, const Variant& date);

}  // namespace qvn::fields
