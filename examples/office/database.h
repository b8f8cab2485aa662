// The database being written: SQLite, one statement per table to insert by.
#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <sqlite3.h>
#include <string>
#include <string_view>

#include "examples/office/money.h"
#include "examples/office/options.h"

namespace office {

/// An open database file. Every failure is a std::runtime_error with SQLite's own words.
class Database {
 public:
  /// Opens `path` for writing, as fast as can be: nothing is kept to fall back on if the writing is cut short.
  Database(const std::string& path, Storage storage);

  sqlite3* handle() const { return handle_.get(); }
  Storage storage() const { return storage_; }

  /// Runs statements that give no rows.
  void run(const std::string& sql);
  /// Writes everything out and closes.
  void close();

 private:
  struct Close {
    void operator()(sqlite3* handle) const { sqlite3_close_v2(handle); }
  };

  std::unique_ptr<sqlite3, Close> handle_;
  Storage storage_;
};

/// A prepared statement.
struct Finalize {
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Prepared = std::unique_ptr<sqlite3_stmt, Finalize>;

Prepared prepare(const Database& database, const std::string& sql);
/// Whether there is a row. Fails with what SQLite says and the statement.
bool step(sqlite3_stmt& statement);

/// Rows into one table.
class Insert {
 public:
  Insert(const Database& database, std::string_view table, std::initializer_list<std::string_view> columns);

  /// Adds a row: one value for each column, in their order. An optional without a value is Null; an array takes as many
  /// columns as it has elements.
  template <typename... Values>
  void add(const Values&... values) {
    next_ = 1;
    (bind(values), ...);
    insert();
  }

  std::int64_t count() const { return count_; }

 private:
  void bind(std::int64_t value);
  void bind(std::string_view value);
  void bind(Money value);
  template <typename Value>
  void bind(const std::optional<Value>& value) {
    if (value) {
      bind(*value);
    } else {
      ++next_;
    }
  }
  template <typename Value, std::size_t count>
  void bind(const std::array<Value, count>& values) {
    for (const Value& value : values) bind(value);
  }
  void insert();

  Prepared statement_;
  Storage storage_;
  int next_ = 1;
  std::int64_t count_ = 0;
};

}  // namespace office
