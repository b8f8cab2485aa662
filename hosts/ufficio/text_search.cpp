#include "hosts/ufficio/text_search.h"

#include <QString>

namespace qvn::ufficio {

namespace {

QString textOf(sqlite3_value* value) {
  const auto* const text = reinterpret_cast<const char*>(sqlite3_value_text(value));
  return QString::fromUtf8(text, sqlite3_value_bytes(value));
}

void holds(sqlite3_context* context, int /*count*/, sqlite3_value** arguments) {
  if (sqlite3_value_type(arguments[0]) == SQLITE_NULL || sqlite3_value_type(arguments[1]) == SQLITE_NULL) {
    return sqlite3_result_int(context, 0);
  }
  const bool found = textOf(arguments[0]).contains(textOf(arguments[1]), Qt::CaseInsensitive);
  sqlite3_result_int(context, found ? 1 : 0);
}

}  // namespace

int addHolds(sqlite3& database) {
  return sqlite3_create_function_v2(&database, "holds", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, &holds, nullptr,
                                    nullptr, nullptr);
}

}  // namespace qvn::ufficio
