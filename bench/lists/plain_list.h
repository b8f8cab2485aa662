// The rows of the list as a plain program gets them: a bare loop over the database's rows, copies of the texts, and
// the standard library's stable sort.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platforms/sqlite/handle.h"

namespace qvn::bench {

using PlainRow = std::array<std::string, 2>;  ///< name and code

class PlainDatabase {
 public:
  /// Open for reading, without mutexes and with the driver's cache.
  explicit PlainDatabase(const std::string& path);
  /// All clients, in the order in which they come.
  std::vector<PlainRow> clients() const;

 private:
  sqlite::DatabaseHandle database_;
};

/// As a list's rows compare: without regard to case.
bool before(std::string_view a, std::string_view b);

/// Puts what is compared by some text of its own in order; what compares equal stays as it stands.
template <class Each, class TextOf>
void sortBy(const TextOf& textOf, bool descending, std::vector<Each>& all) {
  if (descending) {
    std::ranges::stable_sort(all, [&](const Each& a, const Each& b) { return before(textOf(b), textOf(a)); });
  } else {
    std::ranges::stable_sort(all, [&](const Each& a, const Each& b) { return before(textOf(a), textOf(b)); });
  }
}

/// Sorts the rows by one of their columns, from 0.
inline void sortRows(std::size_t column, bool descending, std::vector<PlainRow>& rows) {
  sortBy([&](const PlainRow& row) -> const std::string& { return row[column]; }, descending, rows);
}

/// Sorts texts alone.
inline void sortTexts(bool descending, std::vector<std::string>& texts) { sortBy(std::identity(), descending, texts); }

}  // namespace qvn::bench
