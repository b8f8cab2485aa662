// How a date is typed over its mask "##/##/####". The slashes stand by themselves; a digit takes the place at the
// caret, and what is deleted leaves "#" in its place, so that nothing behind it moves.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qvn::fields {

inline constexpr std::string_view kBlankDate = "##/##/####";

/// Whether the text is of the mask: its slashes, and in each other place a digit or, where allowed, "#".
bool fitsDateMask(std::string_view text, bool placeholders);

/// What an operator edits: a text of the mask and the selection in it, a caret where its length is 0.
struct DateEntry {
  std::string text{kBlankDate};
  std::int32_t start = 0;
  std::int32_t length = 0;

  /// Takes a digit at the caret or in place of the selection; the caret goes behind it and behind the slash after it. A
  /// separator (one of "/.-,") leads to the next part and fills a day or month of one digit up with a zero in front; it
  /// does nothing where the part before is just done. False, with nothing done, for any other character, for a digit at
  /// the end and for a separator anywhere else: over a selection, at the head of a part, in one that is blank or a lone
  /// zero, or in the year.
  bool type(char32_t character);
  /// Blank the selection, or the place before the caret, which goes there, or the place behind it. True if a digit
  /// went.
  bool backspace();
  bool erase();

  /// Move the caret, past the slashes; with something selected, left and right go to that end of the selection.
  void left();
  void right();
  void home() { caretTo(0); }
  /// Behind the last digit.
  void end();

 private:
  bool blank(std::int32_t from, std::int32_t to);
  bool separate();
  void caretTo(std::int32_t place);
};

/// The eight digits, day first, of a whole date as other programs write it: day, month and a year of four digits with
/// separators between ("5/3/2026", "05-03-2026", "05.03.2026"), the year in front ("2026-03-05"), or the eight digits;
/// blanks around it are passed over. Nothing for any other text.
std::optional<std::string> digitsOfWholeDate(std::string_view text);

}  // namespace qvn::fields
