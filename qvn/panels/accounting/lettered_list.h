// Closed lists whose items a property tells by one letter each.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "qvn/toolkit/widget.h"

namespace qvn::accounting {

/// One item of a list and its letter.
struct Lettered {
  std::string_view letter;
  std::string_view item;
};

/// Credit and debit.
inline constexpr std::array<Lettered, 2> kSides{{{"A", "AVERE"}, {"D", "DARE"}}};

/// The items alone, as a layout takes them.
template <std::size_t N>
constexpr std::array<std::string_view, N> itemsOf(const std::array<Lettered, N>& lettered) {
  std::array<std::string_view, N> items{};
  for (std::size_t i = 0; i < N; ++i) items[i] = lettered[i].item;
  return items;
}

/// The letter of the item that the list shows, empty where it shows none of these.
inline std::string letterOf(const toolkit::ComboBox& list, std::span<const Lettered> lettered) {
  const std::string shown = list.Text();
  for (const Lettered& one : lettered) {
    if (one.item == shown) return std::string(one.letter);
  }
  return {};
}

/// Shows the item of a letter, without looking at what is shown; any other letter does nothing.
inline void choose(toolkit::ComboBox& list, std::span<const Lettered> lettered, std::string_view letter) {
  for (const Lettered& one : lettered) {
    if (one.letter == letter) list.Text(one.item);
  }
}

}  // namespace qvn::accounting
