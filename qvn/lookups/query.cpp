#include "qvn/lookups/query.h"

#include <utility>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/shared/Globale.h"
#include "qvn/shared/conversions.h"
#include "qvn/shared/database_numbers.h"
#include "qvn/shared/failure.h"
#include "qvn/shared/patterns.h"
#include "qvn/shared/statements.h"

namespace qvn::lookups {

namespace {

const Locale& officeForm() { return Globale::platform().locale(); }

}  // namespace

std::string joined(std::initializer_list<std::string_view> pieces) {
  std::size_t size = 0;
  for (const std::string_view piece : pieces) size += piece.size();
  std::string whole;
  whole.reserve(size);
  for (const std::string_view piece : pieces) whole.append(piece);
  return whole;
}

void fireMancaDB() { Globale::Eventi()->FireMancaDB(); }

void removeQuotes(std::string& key) { Gest_SCHEDE::TestoSostituisci(key, statements::kQuote, {}); }

Query::Query(std::initializer_list<std::string_view> pieces, Cursor cursor) {
  rows_.Open(joined(pieces), Globale::DB(), cursor.type, cursor.lock, toolkit::adOptionUnspecified);
}

template <class Convert>
auto Query::converted(std::string_view column, Convert&& convert) const {
  const Variant stored = value(column);
  return placed(column, [&] { return convert(stored); });
}

template <>
std::string Query::as<std::string>(std::string_view column) const {
  Variant stored = value(column);
  if (auto* text = std::get_if<std::string>(&stored)) return std::move(*text);
  return placed(column, [&] { return qvn::as<std::string>(stored, officeForm()); });
}

template <class Target>
Target Query::as(std::string_view column) const {
  return converted(column, [](const Variant& stored) {
    return qvn::as<Target>(stored, isInDatabaseForm(stored) ? kDatabaseForm : officeForm());
  });
}

template Currency Query::as<Currency>(std::string_view column) const;
template std::int16_t Query::as<std::int16_t>(std::string_view column) const;

std::string Query::generalText(std::string_view column) const {
  return converted(column, [](const Variant& stored) { return formatStored(stored, Pattern::General, officeForm()); });
}

}  // namespace qvn::lookups
