// Numbers that a database keeps as text.
#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "qvn/shared/conversions.h"
#include "qvn/shared/decimal.h"
#include "qvn/shared/locale.h"
#include "qvn/shared/patterns.h"
#include "qvn/shared/variant.h"

namespace qvn {

/// How a database writes a number that it keeps as text: a point, no grouping, no symbol.
inline constexpr Locale kDatabaseForm{.decimalSign = '.', .groupingSign = '\0', .symbol = ""};

/// Whether the value is a text that the database itself reads as a number.
inline bool isInDatabaseForm(const Variant& value) {
  constexpr std::string_view kCharacters = "0123456789.+-eE";
  const auto* text = std::get_if<std::string>(&value);
  return text != nullptr && text->find_first_not_of(kCharacters) == std::string::npos && isNumber(*text, kDatabaseForm);
}

/// A value from a database as formatValue() writes it, except that a number kept as text is read in the database's form
/// before the office's is tried. Such a one fails as toDecimal() and format() do.
inline std::string formatStored(const Variant& stored, Pattern pattern, const Locale& office) {
  if (!isInDatabaseForm(stored)) return formatValue(stored, pattern, office);
  return format(as<Decimal>(stored, kDatabaseForm), pattern, office).str();
}

}  // namespace qvn
