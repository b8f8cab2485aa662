// What the office's database holds, as it is stored.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace qvn::ufficio {

/// Null, a whole number, a fraction or a text.
using Value = std::variant<std::monostate, std::int64_t, double, std::string>;

/// What tells a record apart: the values of its table's key columns, in their order.
using Key = std::vector<Value>;

/// One row as it was read.
struct Row {
  std::vector<std::string> columns;
  std::vector<Value> values;
  bool isNew = false;  ///< not in the table yet

  /// The value of a column, without regard to case; of two with that name the first. StoreFailure if there is none.
  const Value& at(std::string_view column) const;
  Value& at(std::string_view column);
};

/// The value as text; Null is the empty one.
std::string textOf(const Value& value);

}  // namespace qvn::ufficio
