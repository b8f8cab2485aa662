// The text of a field with its selection, as programs write it and keys edit it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qvn::memory {

/// A valid UTF-8 text and the selection in it, counted in characters; a selection of length 0 is the caret.
class TextBuffer {
 public:
  const std::string& text() const { return text_; }
  std::int32_t selStart() const { return start_; }
  std::int32_t selLength() const { return length_; }

  /// Selects; negative values count as 0, values beyond the text are cut to it.
  void select(std::int32_t start, std::int32_t length);

  /// Replaces the whole text and puts the caret at the start. False, with nothing done, if the text is there already.
  bool set(std::string_view text);

  /// Puts a character in the place of the selection, and the caret behind it. Always true: any has a place.
  bool type(char32_t character);
  /// Deletes the selection, or the character before or behind the caret. False if there is nothing to delete.
  bool backspace();
  bool erase();

  /// Move the caret; with something selected, left and right go to that end of the selection.
  void left();
  void right();
  void home() { select(0, 0); }
  void end() { select(characters(), 0); }

 private:
  std::int32_t characters() const;
  void replaceSelection(std::string_view by);

  std::string text_;
  std::int32_t start_ = 0;
  std::int32_t length_ = 0;
};

}  // namespace qvn::memory
