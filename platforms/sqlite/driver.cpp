#include "platforms/sqlite/driver.h"

#include <filesystem>
#include <string>
#include <system_error>

#include "platforms/sqlite/reading_vfs.h"
#include "platforms/sqlite/session.h"
#include "qvn/shared/failure.h"

namespace qvn::sqlite {

namespace {

/// The path as a URI, which is how SQLite is told not to create shared memory beside the file.
std::string uriOf(const std::filesystem::path& file) {
  static constexpr std::string_view kHex = "0123456789ABCDEF";
  static constexpr std::string_view kPlain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789/-._~:";
  const std::u8string path = file.generic_u8string();
  std::string uri = path.starts_with(u8'/') ? "file://" : "file:///";
  for (const char8_t c : path) {
    if (kPlain.find(static_cast<char>(c)) != std::string_view::npos) {
      uri += static_cast<char>(c);
    } else {
      uri.append({'%', kHex[c >> 4U], kHex[c & 0xFU]});
    }
  }
  return uri + "?readonly_shm=1";
}

/// Why a path names no file to open, empty if it names one.
std::string whyNoFile(const std::filesystem::path& file) {
  std::error_code error;
  const auto status = std::filesystem::status(file, error);
  if (status.type() == std::filesystem::file_type::not_found) return "there is no such file";
  if (error) return error.message();
  if (status.type() == std::filesystem::file_type::directory) return "it is a folder";
  if (status.type() != std::filesystem::file_type::regular) return "it is no file";
  return {};
}

std::unique_ptr<toolkit::Session> openFile(std::string_view path) {
  if (path.find('\0') != std::string_view::npos) throw Failure(FailureKind::Database, "the path holds a zero byte");
  const std::filesystem::path file(std::u8string(path.begin(), path.end()));
  if (const std::string why = whyNoFile(file); !why.empty()) throw Failure(FailureKind::Database, why);
  sqlite3* handle = nullptr;
  // The library works on one thread.
  constexpr int kFlags = SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX;
  const int result = sqlite3_open_v2(uriOf(std::filesystem::absolute(file)).c_str(), &handle, kFlags, readingVfs());
  DatabaseHandle database(handle);
  if (result != SQLITE_OK) {
    std::string reason = sqlite3_errmsg(handle);
    if (const int error = sqlite3_system_errno(handle); error != 0)
      reason.append(": ").append(std::generic_category().message(error));
    throw Failure(FailureKind::Database, reason);
  }
  return std::make_unique<Session>(std::move(database));
}

class SqliteDriver final : public toolkit::Driver {
 public:
  std::string_view head() const override { return "sqlite:"; }

  std::unique_ptr<toolkit::Session> open(const toolkit::Opening& opening) override {
    try {
      return openFile(opening.rest);
    } catch (const Failure& failure) {
      std::string message = "the database \"";
      message.append(opening.rest.substr(0, opening.rest.find('\0')))
          .append("\" cannot be opened: ")
          .append(failure.what());
      throw Failure(failure.kind(), message);
    }
  }
};

}  // namespace

toolkit::Driver& driver() {
  static SqliteDriver instance;
  return instance;
}

}  // namespace qvn::sqlite
