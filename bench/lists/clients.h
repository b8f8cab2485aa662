// The clients of a large office, in a database file.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace qvn::bench {

/// A file with so many clients, in the order of their codes: persons and firms, some written in capitals, in no order
/// of their names.
class Clients {
 public:
  explicit Clients(std::int64_t count);
  /// Removes the file.
  ~Clients();
  Clients(const Clients&) = delete;
  Clients& operator=(const Clients&) = delete;

  std::int64_t count() const { return count_; }
  /// Of all codes and names.
  std::int64_t textBytes() const { return textBytes_; }
  std::string path() const { return file_.string(); }

 private:
  std::int64_t count_;
  std::int64_t textBytes_ = 0;
  std::filesystem::path file_;
};

/// Those of that count, made at the first call and kept to the program's end.
const Clients& clients(std::int64_t count);

}  // namespace qvn::bench
