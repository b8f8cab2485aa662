// What goes wrong with the office's own reading and writing.
#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace qvn::ufficio {

/// Its message is for the operator: in Italian, a clause that begins with a small letter and ends without a stop.
class StoreFailure : public std::runtime_error {
 public:
  explicit StoreFailure(const std::string& message, std::string words = {})
      : std::runtime_error(message), words_(std::move(words)) {}

  /// What the database or the file system itself said, for who looks after it. Often nothing.
  const std::string& words() const { return words_; }

 private:
  std::string words_;
};

/// Where a row is no longer what was read.
class ChangedByOthers : public StoreFailure {
 public:
  ChangedByOthers() : StoreFailure("nel frattempo il record è stato modificato o eliminato da altri") {}
};

/// Where there is no record of the key any more.
class RecordGone : public StoreFailure {
 public:
  RecordGone() : StoreFailure("il record non c'è più: è stato eliminato da altri") {}
};

}  // namespace qvn::ufficio
