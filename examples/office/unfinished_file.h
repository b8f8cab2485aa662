// A file that takes its place only when it is finished.
#pragma once

#include <string>

namespace office {

/// A new file beside its later place, removed again unless it is finished: also when the program is interrupted.
/// One at a time in a program.
class UnfinishedFile {
 public:
  /// Creates it, empty, in `target`'s folder. Fails with std::runtime_error, naming target and cause, if `target` is
  /// there and may not be replaced, if it is no plain file, or if nothing can be created in that folder.
  UnfinishedFile(const std::string& target, bool replace);
  ~UnfinishedFile();
  UnfinishedFile(const UnfinishedFile&) = delete;
  UnfinishedFile& operator=(const UnfinishedFile&) = delete;

  const std::string& path() const { return path_; }

  /// Puts it in its place. Fails with std::runtime_error.
  void finish();

 private:
  std::string target_;
  std::string path_;
};

}  // namespace office
