#include "qvn/fields/date_field.h"

#include <string>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/text_field.h"
#include "qvn/shared/failure.h"
#include "qvn/shared/patterns.h"
#include "qvn/toolkit/platform.h"

namespace qvn::fields {

void wire(toolkit::DateControl& field, std::string_view property, EnterKey enter) {
  field.Change = [&field, property] { announce(field, property); };
  field.GotFocus = [&field] {
    Gest_SCHEDE::ColoreFuoco(field, Gest_SCHEDE::kFocused);
    Gest_SCHEDE::SelezionaTutto(field);
  };
  field.KeyPress = [&field, enter](std::int16_t& KeyAscii) {
    if (KeyAscii != Gest_SCHEDE::kEnter) return;
    if (enter == EnterKey::Cancelled) KeyAscii = 0;
    Gest_SCHEDE::CompletaData(field);
    Gest_SCHEDE::SelezionaTutto(field);
  };
  field.LostFocus = [&field] { Gest_SCHEDE::ColoreFuoco(field, Gest_SCHEDE::kAtRest); };
}

bool isNoDate(const Variant& value) {
  const auto* text = std::get_if<std::string>(&value);
  return text != nullptr ? *text == toText(Date()) : compare(value, Date()) == std::partial_ordering::equivalent;
}

void showDate(toolkit::DateControl& field, const Variant& date) {
  if (isNull(date)) return;
  const Variant shown = field.Value();
  const std::string text =
      placed(field.Name(), [&] { return formatValue(date, Pattern::DayMonthYear, field.owner().platform().locale()); });
  if (!isNull(shown) && compare(text, shown) == std::partial_ordering::equivalent) return;
  if (isNoDate(date)) {
    field.Value(Null{});
  } else {
    field.Value(text);
  }
}

}  // namespace qvn::fields
