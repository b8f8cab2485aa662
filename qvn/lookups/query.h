// One question to the shared connection, as every lookup puts it.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "qvn/shared/variant.h"
#include "qvn/toolkit/database.h"

namespace qvn::lookups {

/// Asks the host for the database if it is closed: the first step of every lookup, even ahead of a look at its key.
void fireMancaDB();

/// Takes the quotes out of a text key, for the caller as well.
void removeQuotes(std::string& key);

/// The pieces of a statement or of a message, one behind the other.
std::string joined(std::initializer_list<std::string_view> pieces);

/// How the result set is opened.
struct Cursor {
  std::int32_t type = toolkit::adOpenDynamic;
  std::int32_t lock = toolkit::adLockOptimistic;
};

/// The statement put together from its pieces and run on the shared connection; released by going away.
class Query {
 public:
  Query(std::initializer_list<std::string_view> pieces, Cursor cursor = {});

  /// Whether there is a current row: the first, to begin with.
  bool found() const { return !rows_.Eof(); }
  void next() { rows_.MoveNext(); }

  /// The current row's value in a column.
  Variant value(std::string_view column) const { return rows_.Fields(column); }

  /// The value converted: std::string, Currency or std::int16_t. A Null fails with "invalid use of null", a value that
  /// does not convert as conversions do; both name the column. A number that the database keeps as text is read with
  /// the point as its decimal sign, as the database itself reads it, before the office's form is tried.
  template <class Target>
  Target as(std::string_view column) const;

  /// The value under no pattern: a number's general text in the office's form. A Null gives the empty text. A number
  /// that has no text fails as conversions do, naming the column.
  std::string generalText(std::string_view column) const;

 private:
  /// What a conversion makes of a column's value; its failures name the column.
  template <class Convert>
  auto converted(std::string_view column, Convert&& convert) const;

  toolkit::Recordset rows_;
};

}  // namespace qvn::lookups
