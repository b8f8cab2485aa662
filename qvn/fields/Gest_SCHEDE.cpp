#include "qvn/fields/Gest_SCHEDE.h"

#include "qvn/shared/Globale.h"
#include "qvn/shared/characters.h"
#include "qvn/shared/failure.h"
#include "qvn/shared/names.h"
#include "qvn/toolkit/platform.h"

namespace qvn::Gest_SCHEDE {

namespace {

constexpr std::int16_t kBackspace = 8;
constexpr std::int16_t kEscape = 27;

constexpr bool isDigit(std::int16_t key) { return key >= '0' && key <= '9'; }

void refuse(toolkit::Widget& control, std::int16_t& KeyAscii) {
  KeyAscii = 0;
  control.owner().platform().beep();
}

/// Every filter looks at Enter first: it leaves the field and is never put into it.
bool leavesOnEnter(toolkit::Widget& control, std::int16_t& KeyAscii) {
  if (KeyAscii != kEnter) return false;
  KeyAscii = 0;
  ProssimoCampo(control);
  return true;
}

enum class Sign : bool { Refused, Taken };

void filterNumber(toolkit::TextBox& control, std::int16_t& KeyAscii, std::int16_t decimals, Sign sign) {
  if (leavesOnEnter(control, KeyAscii)) return;
  const bool edits = KeyAscii == kBackspace || KeyAscii == kEscape;
  const bool isSign = KeyAscii == '-' && sign == Sign::Taken;
  if (!isDigit(KeyAscii) && !isSign && KeyAscii != '.' && KeyAscii != ',' && !edits) return refuse(control, KeyAscii);
  if (KeyAscii == '.') KeyAscii = ',';

  const std::string text = control.Text();
  const std::size_t comma = text.find(',');
  const bool hasComma = comma != std::string::npos;
  const std::int32_t start = control.SelStart();
  if (KeyAscii == ',') {
    const bool straightBehindSign = sign == Sign::Taken && text.starts_with('-') && start == 1;
    if (start == 0 || hasComma || straightBehindSign) return refuse(control, KeyAscii);
  }
  if (isSign && start > 0) return refuse(control, KeyAscii);

  // The length of the decimals counts, not the caret's place: a complete number takes no digit anywhere.
  if (hasComma && !edits && control.SelLength() == 0) {
    const auto typed = static_cast<std::ptrdiff_t>(characterCount(std::string_view(text).substr(comma + 1)));
    if (typed >= decimals) refuse(control, KeyAscii);
  }
}

std::int32_t lengthOf(const toolkit::EditableText& control) {
  return static_cast<std::int32_t>(characterCount(control.Text()));
}

}  // namespace

void FiltroImporto(toolkit::TextBox& control, std::int16_t& KeyAscii, std::int16_t decimals) {
  filterNumber(control, KeyAscii, decimals, Sign::Taken);
}

void FiltroNumero(toolkit::TextBox& control, std::int16_t& KeyAscii, std::int16_t decimals) {
  filterNumber(control, KeyAscii, decimals, Sign::Refused);
}

void FiltroCifre(toolkit::TextBox& control, std::int16_t& KeyAscii, std::int16_t maximum) {
  if (leavesOnEnter(control, KeyAscii)) return;
  if (KeyAscii == kBackspace || KeyAscii == kEscape) return;
  // A digit typed over a selection replaces it, so the length is not looked at.
  const bool full = control.SelLength() == 0 && maximum >= 1 && lengthOf(control) == maximum;
  if (full || !isDigit(KeyAscii)) refuse(control, KeyAscii);
}

void FiltroTesto(toolkit::TextBox& control, std::int16_t& KeyAscii, std::int16_t maximum) {
  if (leavesOnEnter(control, KeyAscii)) return;
  // Equality only: a longer text that the host put in goes on taking keys.
  if (KeyAscii != kBackspace && KeyAscii != kEscape && control.SelLength() == 0 && lengthOf(control) == maximum) {
    return refuse(control, KeyAscii);
  }
  if (KeyAscii >= 'a' && KeyAscii <= 'z') KeyAscii = static_cast<std::int16_t>(KeyAscii - 32);
}

void SelezionaTutto(toolkit::EditableText& control) {
  control.SelStart(0);
  control.SelLength(lengthOf(control));
}

void ColoreFuoco(toolkit::Widget& control, std::int16_t state) {
  constexpr std::uint32_t kCyan = 0xFFFF00;
  constexpr std::uint32_t kYellow = 0x00FFFF;
  control.BackColor(state == kFocused ? kCyan : state == kFocusedWithList ? kYellow : toolkit::kWhite);
}

std::string TestoSostituisci(std::string& text, std::string_view find, std::string_view replacement) {
  const bool endless = replacement.find(find) != std::string_view::npos;
  for (std::size_t at = text.find(find); at != std::string::npos; at = text.find(find)) {
    if (endless) {
      throw Failure(
          FailureKind::InvalidCall,
          std::string("replacing \"").append(find).append("\" by \"").append(replacement).append("\" would never end"));
    }
    text.replace(at, find.size(), replacement);
  }
  return text;
}

std::int16_t FormCaricata(std::string_view name) {
  const toolkit::Forms& forms = Globale::platform().forms();
  for (std::int32_t i = 0; i < forms.count(); ++i) {
    if (sameName(forms.at(i).Name(), name)) return 1;
  }
  return 0;
}

void CentraForm(toolkit::Form& form) {
  const toolkit::ScreenSize screen = Globale::platform().screen();
  toolkit::Place place = form.place();
  place.left = (screen.width - place.width) / 2;
  form.place(place);
  place.top = (screen.height - place.height) / 2;
  form.place(place);
}

}  // namespace qvn::Gest_SCHEDE
