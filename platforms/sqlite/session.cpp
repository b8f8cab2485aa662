#include "platforms/sqlite/session.h"

#include <algorithm>
#include <utility>

#include "platforms/sqlite/reason.h"
#include "qvn/shared/characters.h"
#include "qvn/shared/failure.h"

namespace qvn::sqlite {

namespace {

/// A text as a message quotes it. SQLite's words may hold all of a long statement.
std::string quoted(std::string_view text) {
  std::size_t length = 1'000;
  if (text.size() <= length) return std::string(text);
  while (length > 0 && continuesCharacter(text[length])) --length;
  return std::string(text.substr(0, length)).append("…");
}

/// Ends the reading of a statement, and with it the lock that it holds.
class Reading {
 public:
  explicit Reading(sqlite3_stmt* statement) : statement_(statement) {}
  ~Reading() {
    sqlite3_reset(statement_);
    // The texts that are bound belong to the caller.
    sqlite3_clear_bindings(statement_);
  }
  Reading(const Reading&) = delete;
  Reading& operator=(const Reading&) = delete;

 private:
  sqlite3_stmt* statement_;
};

[[noreturn]] void refuse(const char* reason) { throw Failure(FailureKind::Database, reason); }

}  // namespace

Session::Session(DatabaseHandle database, const Bounds& bounds)
    : bounds_(bounds), work_(bounds), database_(std::move(database)) {
  guard(*database_, work_);
}

std::unique_ptr<toolkit::Rows> Session::run(const toolkit::Statement& statement) {
  try {
    return answer(statement.sql);
  } catch (const Failure& failure) {
    throw Failure(failure.kind(),
                  "the statement cannot be run: " + quoted(failure.what()) + "; " + quoted(statement.sql));
  }
}

std::unique_ptr<toolkit::Rows> Session::answer(std::string_view sql) {
  if (sql.size() > kLongestStatement) refuse("it is too long");
  if (sql.find('\0') != std::string_view::npos) refuse("it holds a zero byte");

  work_.start();
  template_.read(sql);
  if (Prepared* known = kept()) return rowsOf(*known);
  if (Prepared fresh = prepare(); fresh.handle) return rowsOf(keep(std::move(fresh)));
  if (sqlite3_errcode(database_.get()) != SQLITE_ERROR || template_.literals().empty()) fail();
  // A place that takes a literal need not take a parameter. Such a statement is prepared as it is, for this once.
  template_.read(sql, false);
  Prepared unbound = prepare();
  if (!unbound.handle) fail();
  return rowsOf(unbound);
}

Session::Prepared* Session::kept() {
  const auto found = std::ranges::find(prepared_, template_.text(), &Prepared::text);
  if (found == prepared_.end()) return nullptr;
  std::rotate(prepared_.begin(), found, found + 1);
  return &prepared_.front();
}

Session::Prepared& Session::keep(Prepared prepared) {
  if (prepared_.size() == kMostPrepared) prepared_.pop_back();
  return *prepared_.insert(prepared_.begin(), std::move(prepared));
}

Session::Prepared Session::prepare() const {
  const std::string& text = template_.text();
  sqlite3_stmt* handle = nullptr;
  const char* rest = nullptr;
  const int result = sqlite3_prepare_v3(database_.get(), text.data(), static_cast<int>(text.size()),
                                        SQLITE_PREPARE_PERSISTENT | SQLITE_PREPARE_NO_VTAB, &handle, &rest);
  StatementHandle owned(handle);
  if (result != SQLITE_OK) return {};
  if (!owned) refuse("there is none");
  if (!isBare(std::string_view(text).substr(static_cast<std::size_t>(rest - text.data()))))
    refuse("there is more than one");
  if (sqlite3_bind_parameter_count(handle) != static_cast<int>(template_.literals().size()))
    refuse("it has parameters, which nothing gives a value");
  if (sqlite3_stmt_readonly(handle) == 0 || sqlite3_column_count(handle) == 0) refuse("it does not only read");
  auto columns = columnsOf(handle);
  return {.text = text, .handle = std::move(owned), .columns = std::move(columns)};
}

void Session::bind(Prepared& prepared) const {
  int place = 0;
  for (const Literal& literal : template_.literals()) {
    ++place;
    const int result = literal.isText() ? sqlite3_bind_text(prepared.handle.get(), place, literal.text().data(),
                                                            static_cast<int>(literal.text().size()), SQLITE_STATIC)
                                        : sqlite3_bind_int64(prepared.handle.get(), place, literal.number);
    if (result != SQLITE_OK) fail();
  }
}

std::unique_ptr<toolkit::Rows> Session::rowsOf(Prepared& prepared) {
  sqlite3_stmt* handle = prepared.handle.get();
  const Reading reading(handle);
  bind(prepared);
  int result = sqlite3_step(handle);
  if (const int now = sqlite3_stmt_status(handle, SQLITE_STMTSTATUS_REPREPARE, 0); now != prepared.preparations) {
    prepared.columns = columnsOf(handle);
    prepared.preparations = now;
  }
  auto rows = std::make_unique<Snapshot>(prepared.columns, bounds_.answer);
  for (; result == SQLITE_ROW; result = sqlite3_step(handle)) rows->add(handle);
  if (result == SQLITE_INTERRUPT) refuse("it takes too much work");
  if (result != SQLITE_DONE) fail();
  return rows;
}

std::shared_ptr<const Columns> Session::columnsOf(sqlite3_stmt* statement) const {
  Columns names;
  for (int i = 0; i < sqlite3_column_count(statement); ++i)
    names.push_back(template_.asWritten(sqlite3_column_name(statement, i)));
  return std::make_shared<const Columns>(std::move(names));
}

void Session::fail() const { throw Failure(FailureKind::Database, template_.asWritten(reasonOf(*database_))); }

}  // namespace qvn::sqlite
