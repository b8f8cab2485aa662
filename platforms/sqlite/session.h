// An open SQLite database, and the statements that it has prepared.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platforms/sqlite/guards.h"
#include "platforms/sqlite/handle.h"
#include "platforms/sqlite/snapshot.h"
#include "platforms/sqlite/statement_template.h"
#include "qvn/toolkit/database.h"

namespace qvn::sqlite {

/// How many prepared statements a session keeps: more than the library has.
inline constexpr std::size_t kMostPrepared = 64;

/// Runs statements as the driver says (driver.h). All rows are read when a statement is run; between two of them no
/// transaction is open and no lock is held. Rows go on to be read when the session is gone.
class Session final : public toolkit::Session {
 public:
  /// Takes an open database over, a database in memory for one, and puts all guards on it. Fails with "database", with
  /// the reason alone, if it cannot be read.
  explicit Session(DatabaseHandle database, const Bounds& bounds = {});

  /// The cursor and lock types are not looked at: every answer is a snapshot.
  std::unique_ptr<toolkit::Rows> run(const toolkit::Statement& statement) override;

 private:
  struct Prepared {
    std::string text;
    StatementHandle handle;
    std::shared_ptr<const Columns> columns;
    int preparations = 0;  ///< how often the database has prepared it anew since, for a changed schema
  };

  std::unique_ptr<toolkit::Rows> answer(std::string_view sql);
  Prepared* kept();
  Prepared& keep(Prepared prepared);
  Prepared prepare() const;
  void bind(Prepared& prepared) const;
  std::unique_ptr<toolkit::Rows> rowsOf(Prepared& prepared);
  std::shared_ptr<const Columns> columnsOf(sqlite3_stmt* statement) const;
  [[noreturn]] void fail() const;

  Bounds bounds_;
  Work work_;
  DatabaseHandle database_;
  StatementTemplate template_;
  std::vector<Prepared> prepared_;  ///< the one run last comes first
};

}  // namespace qvn::sqlite
