// Any statement, run on a database in memory: it answers or fails, and the database stays as it was.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sqlite3.h>
#include <string_view>

#include "platforms/sqlite/session.h"
#include "qvn/shared/failure.h"

namespace {

/// The session over a small database, and the handle that it owns.
struct Office {
  sqlite3* handle = nullptr;
  qvn::sqlite::Session session;

  Office() : session(open(handle)) {}

  static qvn::sqlite::DatabaseHandle open(sqlite3*& handle) {
    if (sqlite3_open(":memory:", &handle) != SQLITE_OK) std::abort();
    sqlite3_exec(handle,
                 "create table COMPAGNIE (COD_COMP text primary key, DESC_COMPAGNIA text);"
                 "insert into COMPAGNIE values ('AB', 'Alfa'), ('NN', null);"
                 "create table QUOTE_POLIZZE (PROT integer, QUOTA integer, DELEGATARIA integer);"
                 "insert into QUOTE_POLIZZE values (1, 333, 1), (1, 667, 0);",
                 nullptr, nullptr, nullptr);
    return qvn::sqlite::DatabaseHandle(handle);
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Office office;
  try {
    const std::string_view sql(reinterpret_cast<const char*>(data), size);
    for (const auto rows = office.session.run({.sql = sql}); !rows->atEnd(); rows->next()) {
    }
  } catch (const qvn::Failure& failure) {
    if (failure.kind() != qvn::FailureKind::Database) std::abort();
  }
  if (sqlite3_total_changes(office.handle) != 4 || sqlite3_get_autocommit(office.handle) == 0) std::abort();
  return 0;
}
