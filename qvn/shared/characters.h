// Texts are UTF-8 and are measured in characters.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace qvn {

/// Whether a byte goes on with the character before it.
constexpr bool continuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

/// The length of a text in characters.
constexpr std::size_t characterCount(std::string_view text) {
  return text.size() - static_cast<std::size_t>(std::ranges::count_if(text, continuesCharacter));
}

}  // namespace qvn
