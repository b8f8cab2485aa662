#include "platforms/sqlite/reason.h"

namespace qvn::sqlite {

std::string reasonOf(sqlite3& database) {
  // SQLite wants to take the change back, which only one that writes can.
  if (sqlite3_extended_errcode(&database) == SQLITE_READONLY_ROLLBACK)
    return "a program that broke off left the database in the middle of a change";
  return sqlite3_errmsg(&database);
}

}  // namespace qvn::sqlite
