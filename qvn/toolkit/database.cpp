#include "qvn/toolkit/database.h"

#include "qvn/shared/failure.h"

namespace qvn::toolkit {

Driver& Drivers::find(std::string_view connectionString) const {
  for (Driver* driver : drivers_) {
    if (connectionString.starts_with(driver->head())) return *driver;
  }
  std::string message = "the connection string \"";
  message.append(connectionString).append("\" names no known database; known are:");
  if (drivers_.empty()) message.append(" none");
  for (const Driver* driver : drivers_) message.append(" \"").append(driver->head()).append("\"");
  throw Failure(FailureKind::Database, message);
}

void Connection::Open(std::string_view connectionString, std::string_view user, std::string_view password,
                      std::int32_t options) {
  if (session_) throw Failure(FailureKind::InvalidCall, "the connection is open already");
  connectionString_ = connectionString;
  Driver& driver = drivers_->find(connectionString_);
  session_ = driver.open({.connectionString = connectionString_,
                          .rest = std::string_view(connectionString_).substr(driver.head().size()),
                          .user = user,
                          .password = password,
                          .options = options,
                          .cursorLocation = cursorLocation_,
                          .viewer = viewer_});
}

std::unique_ptr<Rows> Connection::run(const Statement& statement) {
  if (!session_) {
    constexpr std::size_t kQuoted = 1000;
    std::string message = "the connection is closed; not run: ";
    message.append(statement.sql.substr(0, kQuoted)).append(statement.sql.size() > kQuoted ? "…" : "");
    throw Failure(FailureKind::Database, message);
  }
  return session_->run(statement);
}

void Recordset::Open(std::string_view sql, Connection& connection, std::int32_t cursorType, std::int32_t lockType,
                     std::int32_t options) {
  rows_ = connection.run({.sql = sql, .cursorType = cursorType, .lockType = lockType, .options = options});
}

Rows& Recordset::rows() const {
  if (!rows_) throw Failure(FailureKind::InvalidCall, "the result set has not been opened");
  return *rows_;
}

bool Recordset::Eof() const { return rows().atEnd(); }
void Recordset::MoveNext() { rows().next(); }
Variant Recordset::Fields(std::string_view column) const { return rows().value(column); }

}  // namespace qvn::toolkit
