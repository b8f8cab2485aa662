#include "examples/office/unfinished_file.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <stdexcept>
#include <system_error>
#include <unistd.h>

namespace office {

namespace {

// What the interrupt handler removes: the path of the one unfinished file, or null.
const char* volatile interruptedPath = nullptr;

extern "C" void removeAndQuit(int signal) {
  const char* const path = interruptedPath;
  if (path != nullptr) unlink(path);
  _exit(128 + signal);
}

void onInterrupt(void (*handler)(int)) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) std::signal(signal, handler);
}

std::runtime_error cannotWrite(const std::string& target, const std::string& why) {
  return std::runtime_error("cannot write '" + target + "': " + why);
}

void checkTarget(const std::string& target, bool replace) {
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::symlink_status(target, error);
  if (!std::filesystem::exists(status)) return;
  if (!std::filesystem::is_regular_file(status)) throw cannotWrite(target, "it is there and is no plain file");
  if (!replace) throw cannotWrite(target, "it is there already; --force replaces it");
}

}  // namespace

UnfinishedFile::UnfinishedFile(const std::string& target, bool replace)
    : target_(target), path_(target + ".unfinished-" + std::to_string(getpid())) {
  checkTarget(target_, replace);
  const int file = open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  if (file < 0) throw cannotWrite(target_, std::generic_category().message(errno));
  close(file);
  interruptedPath = path_.c_str();
  onInterrupt(removeAndQuit);
}

UnfinishedFile::~UnfinishedFile() {
  onInterrupt(SIG_DFL);
  interruptedPath = nullptr;
  unlink(path_.c_str());
}

void UnfinishedFile::finish() {
  // What an earlier database left beside its file would be taken for the new one's.
  for (const char* const suffix : {"-journal", "-wal", "-shm"}) unlink((target_ + suffix).c_str());
  std::error_code error;
  std::filesystem::rename(path_, target_, error);
  if (error) throw cannotWrite(target_, error.message());
}

}  // namespace office
