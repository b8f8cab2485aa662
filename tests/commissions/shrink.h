// Making a failing list of steps short.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace qvn::test {

/// Takes out of a failing list all that it fails without: first large parts, then smaller ones, down to single items.
/// What comes back fails, and no longer does with any one item taken out.
template <class Item, class Fails>
std::vector<Item> shrunk(std::vector<Item> items, Fails fails) {
  std::size_t part = std::max<std::size_t>(1, items.size() / 2);
  while (!items.empty()) {
    bool removed = false;
    for (std::size_t from = 0; from < items.size();) {
      const auto begin = items.begin() + static_cast<std::ptrdiff_t>(from);
      const auto end = begin + static_cast<std::ptrdiff_t>(std::min(part, items.size() - from));
      std::vector<Item> rest(items.begin(), begin);
      rest.insert(rest.end(), end, items.end());
      if (fails(rest)) {
        items = std::move(rest);
        removed = true;
      } else {
        from += part;
      }
    }
    if (part == 1 && !removed) break;
    part = std::max<std::size_t>(1, part / 2);
  }
  return items;
}

}  // namespace qvn::test
