#include "tests/commissions/text_field_model.h"

#include <algorithm>

namespace qvn::test {

void TextFieldModel::select(int from, int count) {
  const int whole = static_cast<int>(text.size());
  const int at = std::clamp(from, 0, whole);
  start = static_cast<std::size_t>(at);
  length = static_cast<std::size_t>(std::clamp(count, 0, whole - at));
}

void TextFieldModel::replace(std::u32string_view by) {
  text.replace(start, length, by);
  caret(start + by.size());
}

bool TextFieldModel::backspace() {
  if (length == 0) {
    if (start == 0) return false;
    --start;
    length = 1;
  }
  replace({});
  return true;
}

bool TextFieldModel::erase() {
  if (length == 0) {
    if (start == text.size()) return false;
    length = 1;
  }
  replace({});
  return true;
}

char32_t TextFieldModel::filtered(char32_t key) const {
  constexpr std::size_t kDecimals = 2;
  if (key == kBackspaceKey || key == kEscapeKey) return key;
  if (key == U'.') key = U',';
  if (key != U',' && (key < U'0' || key > U'9')) return 0;
  const std::size_t comma = text.find(U',');
  const bool hasComma = comma != std::u32string::npos;
  if (key == U',' && (start == 0 || hasComma)) return 0;
  if (length == 0 && hasComma && text.size() - comma - 1 >= kDecimals) return 0;
  return key;
}

std::u32string decoded(std::string_view text) {
  std::u32string characters;
  for (std::size_t i = 0; i < text.size();) {
    const auto lead = static_cast<unsigned char>(text[i++]);
    const int more = lead < 0x80 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
    char32_t character = more == 0 ? lead : lead & (0x3FU >> more);
    for (int k = 0; k < more; ++k) character = (character << 6U) | (static_cast<unsigned char>(text[i++]) & 0x3FU);
    characters.push_back(character);
  }
  return characters;
}

std::string encoded(std::u32string_view text) {
  std::string bytes;
  for (const char32_t character : text) {
    if (character < 0x80) {
      bytes.push_back(static_cast<char>(character));
      continue;
    }
    const int more = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
    const unsigned int head = 0xFF00U >> static_cast<unsigned int>(more + 1);
    bytes.push_back(static_cast<char>((head & 0xFFU) | (character >> static_cast<unsigned int>(6 * more))));
    for (int k = more - 1; k >= 0; --k) {
      bytes.push_back(static_cast<char>(0x80U | ((character >> static_cast<unsigned int>(6 * k)) & 0x3FU)));
    }
  }
  return bytes;
}

}  // namespace qvn::test
