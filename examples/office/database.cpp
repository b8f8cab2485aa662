#include "examples/office/database.h"

#include <cstdlib>
#include <stdexcept>

namespace office {

namespace {

[[noreturn]] void fail(sqlite3* handle, std::string_view doing) {
  throw std::runtime_error(std::string(sqlite3_errmsg(handle)) + ", at: " + std::string(doing.substr(0, 200)));
}

// As SQLite itself writes the number: no point in a whole one, no zero at the end of the decimals.
std::string decimalText(Money amount) {
  const std::int64_t magnitude = std::abs(amount.cents);
  std::string text(amount.cents < 0 ? 1 : 0, '-');
  text += std::to_string(magnitude / 100);
  const std::int64_t decimals = magnitude % 100;
  if (decimals == 0) return text;
  text += '.';
  text += static_cast<char>('0' + decimals / 10);
  if (decimals % 10 != 0) text += static_cast<char>('0' + decimals % 10);
  return text;
}

}  // namespace

Database::Database(const std::string& path, Storage storage) : storage_(storage) {
  sqlite3* handle = nullptr;
  const int result = sqlite3_open_v2(path.c_str(), &handle, SQLITE_OPEN_READWRITE, nullptr);
  handle_.reset(handle);
  if (result != SQLITE_OK) fail(handle, path);
  run("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; PRAGMA locking_mode = EXCLUSIVE;"
      "PRAGMA temp_store = MEMORY; PRAGMA cache_size = -131072");
}

void Database::run(const std::string& sql) {
  if (sqlite3_exec(handle(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) fail(handle(), sql);
}

void Database::close() {
  if (sqlite3_close(handle()) != SQLITE_OK) fail(handle(), "closing");
  static_cast<void>(handle_.release());
}

Prepared prepare(const Database& database, const std::string& sql) {
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(database.handle(), sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) {
    fail(database.handle(), sql);
  }
  return Prepared(statement);
}

bool step(sqlite3_stmt& statement) {
  const int result = sqlite3_step(&statement);
  if (result != SQLITE_ROW && result != SQLITE_DONE) {
    fail(sqlite3_db_handle(&statement), sqlite3_sql(&statement));
  }
  return result == SQLITE_ROW;
}

Insert::Insert(const Database& database, std::string_view table, std::initializer_list<std::string_view> columns)
    : storage_(database.storage()) {
  std::string names;
  std::string places;
  for (const std::string_view column : columns) {
    names += (names.empty() ? "" : ", ") + std::string(column);
    places += places.empty() ? "?" : ", ?";
  }
  statement_ = prepare(database, "INSERT INTO " + std::string(table) + " (" + names + ") VALUES (" + places + ")");
}

void Insert::bind(std::int64_t value) { sqlite3_bind_int64(statement_.get(), next_++, value); }

// The texts outlive the step, and each row binds all of its columns anew.
void Insert::bind(std::string_view value) {
  sqlite3_bind_text(statement_.get(), next_++, value.data() == nullptr ? "" : value.data(),
                    static_cast<int>(value.size()), SQLITE_STATIC);
}

void Insert::bind(Money value) {
  if (storage_ == Storage::text) {
    const std::string text = decimalText(value);
    sqlite3_bind_text(statement_.get(), next_++, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
  } else if (value.cents % 100 == 0) {
    bind(value.cents / 100);
  } else {
    sqlite3_bind_double(statement_.get(), next_++, static_cast<double>(value.cents) / 100.0);
  }
}

void Insert::insert() {
  if (next_ != sqlite3_bind_parameter_count(statement_.get()) + 1) {
    throw std::logic_error("a row of " + std::to_string(next_ - 1) + " values, at: " + sqlite3_sql(statement_.get()));
  }
  step(*statement_);
  sqlite3_reset(statement_.get());
  sqlite3_clear_bindings(statement_.get());
  ++count_;
}

}  // namespace office
