// What the tests of the sample office share: a folder of their own, the program run in it, and its database read.
#pragma once

#include <array>
#include <filesystem>
#include <memory>
#include <optional>
#include <sqlite3.h>
#include <string>
#include <string_view>
#include <vector>

#include "qvn/toolkit/database.h"

namespace office_test {

/// A folder that goes with the object.
class Folder {
 public:
  Folder();
  ~Folder();
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  std::string file(std::string_view name) const { return (path_ / name).string(); }
  /// The names of what is in it, sorted.
  std::vector<std::string> names() const;

 private:
  std::filesystem::path path_;
};

/// What a run of the program gave.
struct Answer {
  int status;
  std::string output;
  std::string errors;
};

/// Runs qvn-campione with arguments as the shell reads them. `before` is what the shell does first, "cd /tmp &&" for
/// one.
Answer campione(std::string_view arguments, std::string_view before = {});

std::string contentsOf(const std::string& file);
void writeFile(const std::string& file, std::string_view contents);

/// A row as texts; Null is no value.
using Row = std::vector<std::optional<std::string>>;

/// A database opened for reading. What cannot be done fails the test by std::runtime_error with SQLite's words.
class Database {
 public:
  explicit Database(const std::string& file);

  std::vector<Row> rows(std::string_view sql) const;
  /// The names of the columns that a statement gives.
  std::vector<std::string> columns(std::string_view sql) const;
  /// The first column of the first row, which must be there and not be Null.
  std::string text(std::string_view sql) const;
  long long number(std::string_view sql) const;
  /// The first column of every row, times 10,000, rounded to the nearest whole number.
  std::vector<long long> tenThousandths(std::string_view sql) const;

 private:
  struct Close {
    void operator()(sqlite3* handle) const { sqlite3_close_v2(handle); }
  };
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
  };
  using Statement = std::unique_ptr<sqlite3_stmt, Finalize>;

  Statement prepare(std::string_view sql) const;
  bool step(const Statement& statement) const;

  std::unique_ptr<sqlite3, Close> handle_;
};

inline constexpr std::array<const char*, 3> storages = {"numeric", "real", "text"};

/// The sample at scale 1 in one of the storages, made when first asked for and removed when the tests end.
const Database& sample(const std::string& storage = "numeric");

/// The same as the panels read it, through the driver.
qvn::toolkit::Session& session(const std::string& storage = "numeric");

}  // namespace office_test
