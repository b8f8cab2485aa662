// What the panels that show a document write into their labels.
#pragma once

#include "qvn/shared/currency.h"
#include "qvn/shared/variant.h"
#include "qvn/toolkit/widget.h"

namespace qvn::documents {

/// Shows the value as text. Fails as conversions to text do, naming the label: a Null with "invalid use of null".
void show(toolkit::Label& label, const Variant& value);

/// Shows the amount under "Currency".
void show(toolkit::Label& label, Currency amount);

/// Shows the date under "dd/mm/yyyy", and nothing for the no-date mark, Null or Empty. A text that is no date is shown
/// as it is; what has no text fails with "type mismatch", naming the label.
void showDate(toolkit::Label& label, const Variant& date);

}  // namespace qvn::documents
