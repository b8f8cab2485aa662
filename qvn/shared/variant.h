// A value whose kind is known only at run time: a database column, a property that the host may leave unset.
#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "qvn/shared/currency.h"
#include "qvn/shared/date.h"
#include "qvn/shared/decimal.h"

namespace qvn {

class clsQVN_Eventi;

/// Nothing was ever put here: converts to the empty text or 0.
struct Empty {
  friend constexpr bool operator==(Empty, Empty) = default;
};

/// The value is unknown: converts to nothing, and compares with nothing.
struct Null {
  friend constexpr bool operator==(Null, Null) = default;
};

/// A table of amounts with one or two dimensions, indexes from 0; rows of a two-dimensional one are equally long.
struct CurrencyArray {
  std::vector<std::size_t> extents;  ///< one or two extents, first index outermost
  std::vector<Currency> values;      ///< row after row

  /// Fail with "subscript out of range", naming the indexes, if the array has other dimensions or no such element.
  const Currency& at(std::size_t i) const;
  const Currency& at(std::size_t i, std::size_t j) const;

  friend bool operator==(const CurrencyArray&, const CurrencyArray&) = default;
};

/// A reference to the event object, as the panels' `Events` gives it.
using EventsReference = std::shared_ptr<clsQVN_Eventi>;

using Variant = std::variant<Empty, Null, bool, std::uint8_t, std::int16_t, std::int32_t, double, Currency, Decimal,
                             Date, std::string, CurrencyArray, EventsReference>;

inline bool isNull(const Variant& value) { return std::holds_alternative<Null>(value); }
inline bool isEmpty(const Variant& value) { return std::holds_alternative<Empty>(value); }

/// What a variant holds, in words for messages and member tables: "Empty", "Null", "boolean", "text", …
std::string_view kindName(const Variant& value);

/// How two values stand to each other. Unordered where either is Null: every test on it is then false. Empty compares
/// as the empty text with a text and as 0 otherwise; numbers, booleans and dates compare by value, two doubles exactly
/// and a double with any other by its 15 significant digits, so that doubles which differ may both equal one amount;
/// texts compare exactly; a number stands before any text. Equal arrays are equivalent, as are references to one
/// object; otherwise an array or a reference is unordered to anything else.
std::partial_ordering compare(const Variant& a, const Variant& b);

}  // namespace qvn
