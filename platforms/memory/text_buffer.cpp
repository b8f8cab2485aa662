#include "platforms/memory/text_buffer.h"

#include <algorithm>
#include <utility>

#include "platforms/memory/utf8.h"
#include "qvn/shared/characters.h"

namespace qvn::memory {

std::int32_t TextBuffer::characters() const { return static_cast<std::int32_t>(characterCount(text_)); }

void TextBuffer::select(std::int32_t start, std::int32_t length) {
  const std::int32_t whole = characters();
  start_ = std::clamp(start, 0, whole);
  length_ = std::clamp(length, 0, whole - start_);
}

bool TextBuffer::set(std::string_view text) {
  if (text == text_) return false;
  std::string written = utf8::valid(text);
  if (written == text_) return false;
  text_ = std::move(written);
  select(0, 0);
  return true;
}

void TextBuffer::replaceSelection(std::string_view by) {
  const auto start = static_cast<std::size_t>(start_);
  const auto length = static_cast<std::size_t>(length_);
  const std::size_t from = utf8::offset(text_, start);
  text_.replace(from, utf8::offset(text_, start + length) - from, by);
  length_ = 0;
}

bool TextBuffer::type(char32_t character) {
  std::string encoded;
  utf8::append(encoded, character);
  replaceSelection(encoded);
  ++start_;
  return true;
}

bool TextBuffer::backspace() {
  if (length_ == 0) {
    if (start_ == 0) return false;
    select(start_ - 1, 1);
  }
  replaceSelection({});
  return true;
}

bool TextBuffer::erase() {
  if (length_ == 0) {
    if (start_ == characters()) return false;
    length_ = 1;
  }
  replaceSelection({});
  return true;
}

void TextBuffer::left() { select(length_ > 0 ? start_ : start_ - 1, 0); }
void TextBuffer::right() { select(length_ > 0 ? start_ + length_ : start_ + 1, 0); }

}  // namespace qvn::memory
