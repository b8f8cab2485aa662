#include "qvn/fields/text_field.h"

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/shared/conversions.h"
#include "qvn/shared/failure.h"
#include "qvn/toolkit/container.h"
#include "qvn/toolkit/platform.h"

namespace qvn::fields {

namespace {

const Locale& localeOf(const toolkit::Widget& widget) { return widget.owner().platform().locale(); }

/// A conversion of the box's text whose failure names the box.
template <class Convert>
auto read(const toolkit::TextBox& box, Convert&& convert) {
  try {
    return convert(box.Text(), localeOf(box));
  } catch (const Failure& failure) {
    throw failure.within(box.Name());
  }
}

/// The announcement before may have dropped the panel: only the box is touched, which lives until the key is done.
void keepPercent(toolkit::TextBox& box) {
  const std::string text = box.Text();
  std::string_view corrected = "0";
  if (!text.empty()) {
    if (read(box, [](std::string_view t, const Locale& locale) { return toInt16(t, locale); }) < 101) return;
    corrected = "100";
  }
  box.Text(corrected);
  Gest_SCHEDE::SelezionaTutto(box);
}

}  // namespace

void announce(const toolkit::Widget& widget, std::string_view property) {
  toolkit::Surface& panel = widget.owner();
  panel.container().PropertyChanged(panel, property);
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

std::uint8_t byteOf(const toolkit::TextBox& box) {
  return read(box, [](std::string_view t, const Locale& locale) { return toByte(t, locale); });
}

}  // namespace qvn::fields
