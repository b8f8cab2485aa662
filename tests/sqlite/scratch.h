// Databases for the tests, each in a folder of its own, and the host that writes them.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platforms/sqlite/handle.h"
#include "qvn/toolkit/database.h"

namespace qvn::test {

/// A folder that goes away with everything in it.
class ScratchFolder {
 public:
  ScratchFolder();
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  std::string file(std::string_view name) const { return (path_ / name).string(); }
  /// Every file by its name, with its bytes.
  std::map<std::string, std::string> contents() const;

 private:
  std::filesystem::path path_;
};

/// Relative paths start in a folder for as long as this lives.
class WorkingFolder {
 public:
  explicit WorkingFolder(const ScratchFolder& folder) : former_(std::filesystem::current_path()) {
    std::filesystem::current_path(folder.path());
  }
  ~WorkingFolder() { std::filesystem::current_path(former_); }
  WorkingFolder(const WorkingFolder&) = delete;
  WorkingFolder& operator=(const WorkingFolder&) = delete;

 private:
  std::filesystem::path former_;
};

void writeFile(const std::filesystem::path& file, std::string_view bytes);

/// A host's own connection, which may write. It waits for nobody.
class Host {
 public:
  explicit Host(const std::string& file);
  /// SQLite's result code.
  int tryTo(const std::string& sql);
  /// Fails with std::runtime_error, in SQLite's words.
  void exec(const std::string& sql);
  sqlite3& database() { return *database_; }
  /// Hands the connection over.
  sqlite::DatabaseHandle release() { return std::move(database_); }

 private:
  sqlite::DatabaseHandle database_;
};

/// The statements that make a small office's database.
std::string officeSchema();

/// The office's database as a file in the folder.
std::string officeFile(const ScratchFolder& folder);

std::unique_ptr<toolkit::Session> opened(const std::string& file);

/// An answer, with each value written as its kind and what it says: "i 5", "r 0.5", "t abc", "null".
using Answer = std::vector<std::vector<std::string>>;

/// What a session gives in the columns of these names.
Answer answerOf(toolkit::Session& session, std::string_view sql, const std::vector<std::string>& columns);
/// The same through SQLite alone, without the driver.
Answer plainAnswerOf(sqlite3& database, const std::string& sql);

/// The message of the failure with "database" that a call ends in; the empty text if it does not fail.
std::string databaseFailureOf(const std::function<void()>& call);

}  // namespace qvn::test
