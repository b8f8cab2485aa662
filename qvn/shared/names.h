// Names of members, columns and forms are compared without regard to the case of their ASCII letters.
#pragma once

#include <algorithm>
#include <string_view>

namespace qvn {

constexpr char lowered(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

constexpr bool sameName(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, lowered, lowered);
}

}  // namespace qvn
