#include "platforms/sqlite/reading_vfs.h"

#include <sqlite3.h>

namespace qvn::sqlite {

namespace {

sqlite3_vfs* below = nullptr;

int openForReading(sqlite3_vfs* /*vfs*/, const char* name, sqlite3_file* file, int flags, int* opened) {
  file->pMethods = nullptr;
  constexpr int kReadable = SQLITE_OPEN_MAIN_DB | SQLITE_OPEN_WAL | SQLITE_OPEN_MAIN_JOURNAL;
  if ((flags & kReadable) == 0) return SQLITE_CANTOPEN;
  flags &= ~(SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  return below->xOpen(below, name, file, flags | SQLITE_OPEN_READONLY, opened);
}

int refuseToDelete(sqlite3_vfs* /*vfs*/, const char* /*name*/, int /*syncFolder*/) { return SQLITE_READONLY; }

}  // namespace

const char* readingVfs() {
  static constexpr const char* kName = "qvn-reading";
  static sqlite3_vfs vfs = [] {
    below = sqlite3_vfs_find(nullptr);
    sqlite3_vfs reading = *below;
    reading.zName = kName;
    reading.pNext = nullptr;
    reading.xOpen = openForReading;
    reading.xDelete = refuseToDelete;
    return reading;
  }();
  static const int registered = sqlite3_vfs_register(&vfs, 0);
  return registered == SQLITE_OK ? kName : nullptr;
}

}  // namespace qvn::sqlite
