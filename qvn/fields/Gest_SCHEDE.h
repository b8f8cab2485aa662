// What every input field does alike: key filters, focus colour, selection, the way of the Enter key, dates completed.
//
// Each routine takes the control that it acts on; nothing here keeps state. A filter is called from KeyPress with the
// key's code and sets it to 0 to refuse the key, with a beep. Enter is never put into a field: it goes to
// ProssimoCampo.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qvn/toolkit/form.h"
#include "qvn/toolkit/widget.h"

namespace qvn::Gest_SCHEDE {

/// The code of the Enter key.
inline constexpr std::int16_t kEnter = 13;

/// States of ColoreFuoco.
inline constexpr std::int16_t kAtRest = 0;
inline constexpr std::int16_t kFocused = 1;
inline constexpr std::int16_t kFocusedWithList = 2;

/// Numbers with a sign: digits, "-" at the head, one decimal sign, at most so many decimals. The point becomes a comma.
void FiltroImporto(toolkit::TextBox& control, std::int16_t& KeyAscii, std::int16_t decimals);

/// Numbers without a sign, otherwise as FiltroImporto.
void FiltroNumero(toolkit::TextBox& control, std::int16_t& KeyAscii, std::int16_t decimals);

/// Digits, at most so many; a maximum below 1 is none.
void FiltroCifre(toolkit::TextBox& control, std::int16_t& KeyAscii, std::int16_t maximum);

/// Any text of at most so many characters, "a" to "z" turned into capitals.
void FiltroTesto(toolkit::TextBox& control, std::int16_t& KeyAscii, std::int16_t maximum);

/// Selects the whole text.
void SelezionaTutto(toolkit::EditableText& control);

/// Paints the field's background: white at rest, cyan with the focus, yellow with the focus on a field with a pick
/// list.
void ColoreFuoco(toolkit::Widget& control, std::int16_t state);

/// Completes a partly typed date from today's; what cannot be completed stays as typed.
void CompletaData(toolkit::DateControl& control);

/// Gives the focus to the next field in tab order, behind the last to the first: the enabled, visible text box, combo
/// box, check box or date control with the next TabIndex. Goes on from a text box or a combo box only; from a check box
/// it fails with "invalid call", from anything else it does nothing. It fails so too where no field can be found, and
/// where the one found cannot take the focus for its frame or panel; a filter that was given the Enter fails with it.
void ProssimoCampo(toolkit::Widget& control);

/// Replaces every occurrence, searching from the start after each, and returns the text. A replacement that contains
/// what it replaces fails with "invalid call" if there is anything to replace, as it would never end; one that makes up
/// new occurrences with the text beside it is the caller's to avoid.
/// What to find and the replacement must not view the text itself.
std::string TestoSostituisci(std::string& text, std::string_view find, std::string_view replacement);

/// 1 if a form of that name, in any case, is loaded, 0 otherwise.
std::int16_t FormCaricata(std::string_view name);

/// Puts the form into the middle of the screen, left edge first.
void CentraForm(toolkit::Form& form);

}  // namespace qvn::Gest_SCHEDE
