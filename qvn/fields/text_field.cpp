#include "qvn/fields/text_field.h"

#include <string>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/shown_number.h"
#include "qvn/toolkit/container.h"
#include "qvn/toolkit/platform.h"

namespace qvn::fields {

namespace {

/// The announcement before may have dropped the panel: only the box is touched, which lives until the key is done.
void keepPercent(toolkit::TextBox& box) {
  const std::string text = box.Text();
  std::string_view corrected = "0";
  if (!text.empty()) {
    if (int16Of(box) < 101) return;
    corrected = "100";
  }
  box.Text(corrected);
  Gest_SCHEDE::SelezionaTutto(box);
}

}  // namespace

void announce(const toolkit::Widget& widget, std::string_view property) {
  toolkit::Surface& panel = widget.owner();
  if (!panel.dropped()) panel.container().PropertyChanged(panel, property);
}

void wire(toolkit::TextBox& box, std::string_view property, Filter filter, std::int16_t limit) {
  box.Change = [&box, property] { announce(box, property); };
  box.GotFocus = [&box] {
    Gest_SCHEDE::SelezionaTutto(box);
    Gest_SCHEDE::ColoreFuoco(box, Gest_SCHEDE::kFocused);
  };
  box.KeyPress = [&box, filter, limit](std::int16_t& KeyAscii) { filter(box, KeyAscii, limit); };
  box.LostFocus = [&box] { Gest_SCHEDE::ColoreFuoco(box, Gest_SCHEDE::kAtRest); };
}

void colourThenSelect(toolkit::TextBox& box, std::int16_t state) {
  box.GotFocus = [&box, state] {
    Gest_SCHEDE::ColoreFuoco(box, state);
    Gest_SCHEDE::SelezionaTutto(box);
  };
}

void wireColouredFirst(toolkit::TextBox& box, std::string_view property, Filter filter, std::int16_t limit) {
  wire(box, property, filter, limit);
  colourThenSelect(box, Gest_SCHEDE::kFocused);
}

void wireAmount(toolkit::TextBox& box, Filter filter) {
  box.GotFocus = [&box] {
    Gest_SCHEDE::ColoreFuoco(box, Gest_SCHEDE::kFocused);
    rewrite(box, Pattern::TwoDecimals);
    Gest_SCHEDE::SelezionaTutto(box);
  };
  box.KeyPress = [&box, filter](std::int16_t& KeyAscii) { filter(box, KeyAscii, 2); };
  box.LostFocus = [&box] {
    Gest_SCHEDE::ColoreFuoco(box, Gest_SCHEDE::kAtRest);
    rewrite(box, Pattern::Currency);
  };
}

void wirePercent(toolkit::TextBox& box, std::string_view property) {
  wire(box, property, Gest_SCHEDE::FiltroCifre, 3);
  box.Change = [&box, property] {
    announce(box, property);
    keepPercent(box);
  };
}

void show(toolkit::TextBox& box, std::string_view text) {
  if (box.Text() != text) box.Text(text);
}

void showAmount(toolkit::TextBox& box, Currency amount) {
  if (currencyOf(box) != amount) box.Text(format(amount, Pattern::Currency, box.owner().platform().locale()));
}

void rewrite(toolkit::TextBox& box, Pattern pattern) {
  box.Text(formatText(box.Text(), pattern, box.owner().platform().locale()));
}

}  // namespace qvn::fields
