#include "hosts/ufficio/store.h"

#include <chrono>
#include <utility>

#include "hosts/ufficio/text_search.h"

namespace qvn::ufficio {

namespace {

using Clock = std::chrono::steady_clock;

/// No version that a database has.
constexpr std::int64_t kOtherFile = -1;

/// Steps of the database's machine between two looks at the clock.
constexpr int kStepsPerLook = 10'000;

[[noreturn]] void fail(sqlite3* database, const std::string& path) {
  const std::string words = database == nullptr ? "" : sqlite3_errmsg(database);
  switch (database == nullptr ? SQLITE_NOMEM : sqlite3_errcode(database)) {
    case SQLITE_CANTOPEN:
      throw StoreFailure("il database " + path + " non esiste o non si può aprire");
    case SQLITE_NOTADB:
      throw StoreFailure("il file " + path + " non è un database");
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      throw StoreFailure("il database è occupato da un altro programma; riprovare tra poco");
    case SQLITE_FULL:
      throw StoreFailure("il disco è pieno, o il database non può più crescere; liberare spazio e riprovare");
    case SQLITE_IOERR:
      throw StoreFailure("il disco non legge o non scrive il database " + path, words);
    case SQLITE_READONLY:
      throw StoreFailure("il database " + path + " è di sola lettura");
    case SQLITE_CONSTRAINT:
      throw StoreFailure("il database non accetta questi dati, per esempio un codice che esiste già", words);
    case SQLITE_INTERRUPT:
      throw StoreFailure("la ricerca richiede troppo tempo; scrivere un testo più lungo");
    case SQLITE_NOMEM:
      throw StoreFailure("la memoria è esaurita");
    case SQLITE_ERROR:
    case SQLITE_CORRUPT:
      throw StoreFailure("il database " + path + " non è quello dell'ufficio, o è danneggiato", words);
    default:
      throw StoreFailure("il database non ha risposto; riprovare tra poco", words);
  }
}

class Binder {
 public:
  Binder(sqlite3_stmt& statement, int place) : statement_(statement), place_(place) {}
  int operator()(std::monostate) const { return sqlite3_bind_null(&statement_, place_); }
  int operator()(std::int64_t number) const { return sqlite3_bind_int64(&statement_, place_, number); }
  int operator()(double number) const { return sqlite3_bind_double(&statement_, place_, number); }
  int operator()(const std::string& text) const {
    return sqlite3_bind_text64(&statement_, place_, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
  }

 private:
  sqlite3_stmt& statement_;
  int place_;
};

Value valueAt(sqlite3_stmt& row, int column) {
  switch (sqlite3_column_type(&row, column)) {
    case SQLITE_NULL:
      return {};
    case SQLITE_INTEGER:
      return sqlite3_column_int64(&row, column);
    case SQLITE_FLOAT:
      return sqlite3_column_double(&row, column);
    default: {
      const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(&row, column));
      return std::string(text, static_cast<std::size_t>(sqlite3_column_bytes(&row, column)));
    }
  }
}

/// Stops what works for too long.
class Deadline {
 public:
  explicit Deadline(sqlite3& database) : database_(database) {
    sqlite3_progress_handler(
        &database_, kStepsPerLook, [](void* self) { return Clock::now() > static_cast<Deadline*>(self)->end_ ? 1 : 0; },
        this);
  }
  ~Deadline() { sqlite3_progress_handler(&database_, 0, nullptr, nullptr); }
  Deadline(const Deadline&) = delete;
  Deadline& operator=(const Deadline&) = delete;

 private:
  sqlite3& database_;
  Clock::time_point end_ = Clock::now() + std::chrono::milliseconds(Store::kWorkMilliseconds);
};

}  // namespace

void Store::leaveWhatHasMoved() {
  int moved = 0;
  if (!database_ || sqlite3_get_autocommit(database_.get()) == 0) return;
  sqlite3_file_control(database_.get(), nullptr, SQLITE_FCNTL_HAS_MOVED, &moved);
  if (moved == 0) return;
  database_.reset();
  version_ = kOtherFile;
}

void Store::open() {
  leaveWhatHasMoved();
  if (database_) return;
  sqlite3* opened = nullptr;
  const int result = sqlite3_open_v2(path_.c_str(), &opened, SQLITE_OPEN_READWRITE, nullptr);
  std::unique_ptr<sqlite3, Closing> database(opened);
  if (result != SQLITE_OK) fail(opened, path_);
  sqlite3_busy_timeout(opened, kBusyMilliseconds);
  sqlite3_db_config(opened, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  if (addHolds(*opened) != SQLITE_OK) fail(opened, path_);
  if (sqlite3_exec(opened, "SELECT count(*) FROM sqlite_master", nullptr, nullptr, nullptr) != SQLITE_OK) {
    fail(opened, path_);
  }
  database_ = std::move(database);
  ++openings_;
  if (version_ == 0) othersWrote();
}

bool Store::canOpen() noexcept {
  try {
    open();
    return true;
  } catch (const StoreFailure&) {
    return false;
  }
}

bool Store::othersWrote() noexcept {
  try {
    const std::int64_t before = version_;
    version_ = std::get<std::int64_t>(rows("PRAGMA data_version").front().values.front());
    return before != 0 && before != version_;
  } catch (const std::exception&) {
    return false;
  }
}

Store::Statement Store::prepared(const std::string& sql, std::span<const Value> parameters) {
  open();
  sqlite3_stmt* made = nullptr;
  if (sqlite3_prepare_v2(database_.get(), sql.c_str(), -1, &made, nullptr) != SQLITE_OK) fail(database_.get(), path_);
  Statement statement(made);
  int place = 0;
  for (const Value& parameter : parameters) {
    if (std::visit(Binder(*made, ++place), parameter) != SQLITE_OK) fail(database_.get(), path_);
  }
  return statement;
}

bool Store::step(sqlite3_stmt& statement) {
  const int result = sqlite3_step(&statement);
  if (result == SQLITE_INTERRUPT && sqlite3_stmt_readonly(&statement) == 0) {
    throw StoreFailure("la scrittura richiede troppo tempo; riprovare tra poco");
  }
  if (result != SQLITE_ROW && result != SQLITE_DONE) fail(database_.get(), path_);
  return result == SQLITE_ROW;
}

std::vector<Row> Store::rows(const std::string& sql, std::span<const Value> parameters) {
  const Statement statement = prepared(sql, parameters);
  const Deadline deadline(*database_);
  const int count = sqlite3_column_count(statement.get());
  std::vector<Row> rows;
  while (step(*statement)) {
    Row& row = rows.emplace_back();
    for (int column = 0; column < count; ++column) {
      row.columns.emplace_back(sqlite3_column_name(statement.get(), column));
      row.values.push_back(valueAt(*statement, column));
    }
  }
  return rows;
}

bool Store::hasTable(std::string_view name) {
  const std::vector<Value> parameters{std::string(name)};
  return !rows("SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ?1", parameters).empty();
}

std::int64_t Store::run(const std::string& sql, std::span<const Value> parameters) {
  const Statement statement = prepared(sql, parameters);
  const Deadline deadline(*database_);
  step(*statement);
  return sqlite3_changes64(database_.get());
}

Store::Transaction::Transaction(Store& store) : store_(store) { store_.run("BEGIN IMMEDIATE"); }

Store::Transaction::~Transaction() {
  if (open_) sqlite3_exec(store_.database_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Store::Transaction::commit() {
  store_.run("COMMIT");
  open_ = false;
}

}  // namespace qvn::ufficio
