// Which property of a panel shows which column of a table, and how either writes the value.
#pragma once

#include <cstdint>
#include <string_view>

#include "hosts/ufficio/row.h"
#include "qvn/shared/currency.h"
#include "qvn/shared/variant.h"

namespace qvn::ufficio {

/// What a column holds.
enum class Kind : std::uint8_t {
  Text,    ///< Null shows as the empty text; an empty text is stored as such
  Number,  ///< a whole number
  Amount,  ///< a number with up to four decimals, or a text that says one with a point
  Flag,    ///< any number but 0 is true; true is stored as 1
  Day,     ///< a text "yyyy-mm-dd", or Null where there is no date
};

struct Field {
  std::string_view property;  ///< of the panel, read and written by this name
  std::string_view column;    ///< of the table
  Kind kind;
};

/// A stored value as a panel's property takes it. Fails with the library's Failure on an amount that is no number and a
/// day that is none.
Variant shown(const Value& stored, Kind kind);

/// What a column of that kind holds in a row that nothing was written into.
Value blank(Kind kind);

/// A stored amount; fails as shown() does.
Currency amountOf(const Value& stored);

/// What a property has given, as it is stored. Fails with the library's Failure where it cannot be what the column
/// holds.
Value stored(const Variant& given, Kind kind);

}  // namespace qvn::ufficio
