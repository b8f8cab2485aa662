// Why SQLite did not do what it was asked to.
#pragma once

#include <sqlite3.h>
#include <string>

namespace qvn::sqlite {

/// Why the last call on a database failed: in SQLite's words, except where they tell of the driver instead of the file.
std::string reasonOf(sqlite3& database);

}  // namespace qvn::sqlite
