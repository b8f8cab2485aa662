// A single-line field as its text with a selection, counted in characters, and the key filter of numbers.
#pragma once

#include <cstddef>
#include <string>

namespace qvn::test {

struct TextFieldModel {
  std::u32string text;
  std::size_t start = 0;
  std::size_t length = 0;

  void caret(std::size_t at) {
    start = at;
    length = 0;
  }
  void select(int from, int count);
  void selectAll() {
    start = 0;
    length = text.size();
  }
  /// Puts the text in the place of the selection, and the caret behind it.
  void replace(std::u32string_view by);
  /// False if there is nothing to delete.
  bool backspace();
  bool erase();
  void left() { caret(length > 0 || start == 0 ? start : start - 1); }
  void right() { caret(length > 0 ? start + length : start + (start < text.size() ? 1 : 0)); }

  /// What the filter of numbers of two decimals makes of a key other than Enter: the character to take, 0 to refuse.
  char32_t filtered(char32_t key) const;
};

inline constexpr char32_t kBackspaceKey = 8;
inline constexpr char32_t kEscapeKey = 27;

std::u32string decoded(std::string_view text);
std::string encoded(std::u32string_view text);

}  // namespace qvn::test
