// What SQLite hands out, closed when its owner goes.
#pragma once

#include <memory>
#include <sqlite3.h>

namespace qvn::sqlite {

struct Closing {
  void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

using DatabaseHandle = std::unique_ptr<sqlite3, Closing>;
using StatementHandle = std::unique_ptr<sqlite3_stmt, Closing>;

}  // namespace qvn::sqlite
