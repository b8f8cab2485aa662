// The handlers and properties that plain fields have alike from panel to panel.
#pragma once

#include <cstdint>
#include <string_view>

#include "qvn/shared/currency.h"
#include "qvn/shared/patterns.h"
#include "qvn/toolkit/widget.h"

namespace qvn::fields {

/// Tells the container that a public property of the widget's panel has changed, unless the panel was dropped.
void announce(const toolkit::Widget& widget, std::string_view property);

/// A key filter of Gest_SCHEDE; the last argument is its limit of length or decimals.
using Filter = void (*)(toolkit::TextBox&, std::int16_t&, std::int16_t);

/// Wires a field without behaviour of its own: a change is announced under the property's name, gaining the focus
/// selects the text and colours the field, keys pass the filter, losing the focus takes the colour away. The name must
/// live as long as the program.
void wire(toolkit::TextBox& box, std::string_view property, Filter filter, std::int16_t limit);

/// Sets what gaining the focus does, for a field that is coloured by a state of ColoreFuoco before its text is
/// selected.
void colourThenSelect(toolkit::TextBox& box, std::int16_t state);

/// Wires a plain field as wire() does, but for the order: it is coloured before its text is selected.
void wireColouredFirst(toolkit::TextBox& box, std::string_view property, Filter filter, std::int16_t limit);

/// Wires a field of an amount of at most two decimals, but for its Change: gaining the focus colours it, rewrites it
/// under "0.00" and selects it, keys pass the filter, losing the focus takes the colour away and rewrites it under
/// "Currency".
void wireAmount(toolkit::TextBox& box, Filter filter);

/// Wires a field of whole percents: as wire() does, of at most three digits, and each change once announced is kept to
/// 100 at most. An empty field becomes "0", a value above 100 becomes "100", and what was corrected is selected, so
/// that the next digit replaces it. A text that is no number fails with "type mismatch", one beyond 16 bits with
/// "overflow", both naming the box, and stays.
void wirePercent(toolkit::TextBox& box, std::string_view property);

/// Writes the text if the box shows another.
void show(toolkit::TextBox& box, std::string_view text);

/// Writes the amount under "Currency" if the box's text is another; an equal one stays in the form that it has. Fails
/// as currencyOf() does on a text that is no amount.
void showAmount(toolkit::TextBox& box, Currency amount);

/// Writes the box's own text under a pattern; what is no number stays.
void rewrite(toolkit::TextBox& box, Pattern pattern);

}  // namespace qvn::fields
