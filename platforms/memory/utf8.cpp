#include "platforms/memory/utf8.h"

#include <algorithm>
#include <array>

#include "qvn/shared/characters.h"

namespace qvn::memory::utf8 {

namespace {

/// How characters of one encoded length are told and bounded.
struct Form {
  unsigned char mask;
  unsigned char head;
  std::size_t bytes;
  char32_t least;
};

constexpr std::array<Form, 4> kForms{
    {{0x80, 0x00, 1, 0}, {0xE0, 0xC0, 2, 0x80}, {0xF0, 0xE0, 3, 0x800}, {0xF8, 0xF0, 4, 0x10000}}};

constexpr bool isSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }

}  // namespace

char32_t takeFirst(std::string_view& text) {
  const auto first = static_cast<unsigned char>(text.front());
  for (const Form& form : kForms) {
    if ((first & form.mask) != form.head) continue;
    if (text.size() < form.bytes) break;
    char32_t c = first & static_cast<unsigned char>(~form.mask);
    const std::string_view tail = text.substr(1, form.bytes - 1);
    if (!std::ranges::all_of(tail, continuesCharacter)) break;
    for (const char byte : tail) c = (c << 6U) | (static_cast<unsigned char>(byte) & 0x3FU);
    if (c < form.least || c > 0x10FFFF || isSurrogate(c)) break;
    text.remove_prefix(form.bytes);
    return c;
  }
  text.remove_prefix(1);
  return kReplacement;
}

void append(std::string& text, char32_t character) {
  if (character > 0x10FFFF || isSurrogate(character)) character = kReplacement;
  std::size_t bytes = kForms.size();
  while (bytes > 1 && character < kForms[bytes - 1].least) --bytes;
  const auto shifted = [&](std::size_t byte) { return character >> (6U * (bytes - 1 - byte)); };
  text.push_back(static_cast<char>(kForms[bytes - 1].head | shifted(0)));
  for (std::size_t byte = 1; byte < bytes; ++byte) text.push_back(static_cast<char>(0x80U | (shifted(byte) & 0x3FU)));
}

bool isValid(std::string_view text) {
  constexpr std::size_t kReplacementBytes = 3;
  while (!text.empty()) {
    if (static_cast<unsigned char>(text.front()) < 0x80) {
      text.remove_prefix(1);
      continue;
    }
    const std::size_t before = text.size();
    if (takeFirst(text) == kReplacement && before - text.size() != kReplacementBytes) return false;
  }
  return true;
}

std::string valid(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) append(result, takeFirst(text));
  return result;
}

std::size_t offset(std::string_view text, std::size_t index) {
  std::size_t at = 0;
  for (; at < text.size(); ++at) {
    if (continuesCharacter(text[at])) continue;
    if (index == 0) return at;
    --index;
  }
  return at;
}

char32_t lowered(char32_t c) {
  const bool capital = (c >= U'A' && c <= U'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7);
  return capital ? c + 0x20 : c;
}

}  // namespace qvn::memory::utf8
