// The database as the library reads it: one connection, result sets, and the drivers behind them.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "qvn/shared/variant.h"

namespace qvn::toolkit {

/// Where the rows of a result set are kept.
inline constexpr std::int32_t adUseClient = 3;
/// Cursor types.
inline constexpr std::int32_t adOpenDynamic = 2;
inline constexpr std::int32_t adOpenStatic = 3;
/// Lock types.
inline constexpr std::int32_t adLockUnspecified = -1;
inline constexpr std::int32_t adLockReadOnly = 1;
inline constexpr std::int32_t adLockOptimistic = 3;
/// Options of Open where none are meant.
inline constexpr std::int32_t adOptionUnspecified = -1;

/// How a statement is to be run. The three numbers are handed to the driver as the caller gave them.
struct Statement {
  std::string_view sql;
  std::int32_t cursorType = adOpenDynamic;
  std::int32_t lockType = adLockOptimistic;
  std::int32_t options = adOptionUnspecified;
};

/// What a statement gave: a snapshot that no later change of the database alters. Owned by who ran the statement.
class Rows {
 public:
  virtual ~Rows() = default;
  /// The names of the columns as the answer has them, in its order, rows or none.
  virtual std::span<const std::string> columns() const = 0;
  /// No current row: none was found, or next() went past the last.
  virtual bool atEnd() const = 0;
  /// Goes to the next row. "database" past the end.
  virtual void next() = 0;
  /// The current row's value in a column, named without regard to case: a number, a text or Null as stored.
  /// "database", naming the column, if the answer has no such column or there is no current row.
  virtual Variant value(std::string_view column) const = 0;
};

/// An open database. Owned by the connection; rows that it gave may outlive it.
class Session {
 public:
  virtual ~Session() = default;
  /// Runs one reading statement. "database", with the database's own words and the statement, if it cannot be run.
  virtual std::unique_ptr<Rows> run(const Statement& statement) = 0;
};

/// How the connection is to be opened.
struct Opening {
  std::string_view connectionString;  ///< whole
  std::string_view rest;              ///< what stands behind the driver's head
  std::string_view user = {};
  std::string_view password = {};
  std::int32_t options = adOptionUnspecified;
  std::int32_t cursorLocation = 0;
  std::string_view viewer = {};  ///< the form whose data control opens; empty for the library's one connection
};

/// One kind of database, told by the head of its connection strings, "sqlite:" for one.
class Driver {
 public:
  virtual ~Driver() = default;
  virtual std::string_view head() const = 0;
  /// Opens the database for reading. "database", naming what was to be opened and why it cannot be.
  virtual std::unique_ptr<Session> open(const Opening& opening) = 0;
};

/// The drivers that a host offers. It does not own them.
class Drivers {
 public:
  void add(Driver& driver) { drivers_.push_back(&driver); }
  void clear() { drivers_.clear(); }
  /// The driver whose head the connection string begins with. "database", naming the known heads, if there is none.
  Driver& find(std::string_view connectionString) const;

 private:
  std::vector<Driver*> drivers_;
};

/// A connection: closed when made, opened by a connection string through one of the drivers.
class Connection {
 public:
  /// A data control names its form as the viewer, which drivers are told.
  explicit Connection(const Drivers& drivers, std::string_view viewer = {}) : drivers_(&drivers), viewer_(viewer) {}

  /// 0 closed, 1 open.
  std::int32_t State() const { return session_ ? 1 : 0; }
  /// The string of the last Open, whether it succeeded or not; empty before the first.
  const std::string& ConnectionString() const { return connectionString_; }
  std::int32_t CursorLocation() const { return cursorLocation_; }
  void CursorLocation(std::int32_t location) { cursorLocation_ = location; }

  /// "database" if the string cannot be opened; the connection string stays set. "invalid call" if already open. User,
  /// password and options go to the driver, which may have no use for them.
  void Open(std::string_view connectionString, std::string_view user = {}, std::string_view password = {},
            std::int32_t options = adOptionUnspecified);
  /// Closes from outside; closing a closed connection does nothing. The connection string stays.
  void Close() { session_.reset(); }

  /// "database" on a closed connection.
  std::unique_ptr<Rows> run(const Statement& statement);

 private:
  const Drivers* drivers_;
  std::string viewer_;
  std::unique_ptr<Session> session_;
  std::string connectionString_;
  std::int32_t cursorLocation_ = 2;
};

/// A result set, opened with a statement on a connection and released by going away.
class Recordset {
 public:
  /// "database" if the connection is closed or the statement cannot be run.
  void Open(std::string_view sql, Connection& connection, std::int32_t cursorType, std::int32_t lockType,
            std::int32_t options);
  /// Whether there is no current row. "invalid call" before Open, as for the others.
  bool Eof() const;
  void MoveNext();
  /// The current row's value in a column, named without regard to case.
  Variant Fields(std::string_view column) const;

 private:
  Rows& rows() const;

  std::unique_ptr<Rows> rows_;
};

}  // namespace qvn::toolkit
