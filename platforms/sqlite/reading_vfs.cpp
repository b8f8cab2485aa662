#include "platforms/sqlite/reading_vfs.h"

#include <new>
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

constexpr const char* kName = "qvn-reading";
sqlite3_vfs reading;

/// Known to SQLite for as long as the library is loaded; SQLite itself may stay when the library is unloaded.
struct Known {
  Known() {
    below = sqlite3_vfs_find(nullptr);
    if (below == nullptr) throw std::bad_alloc();
    reading = *below;
    reading.zName = kName;
    reading.pNext = nullptr;
    reading.xOpen = openForReading;
    reading.xDelete = refuseToDelete;
    if (sqlite3_vfs_register(&reading, 0) != SQLITE_OK) throw std::bad_alloc();
  }
  ~Known() { sqlite3_vfs_unregister(&reading); }
  Known(const Known&) = delete;
  Known& operator=(const Known&) = delete;
};

}  // namespace

const char* readingVfs() {
  static const Known known;
  return kName;
}

}  // namespace qvn::sqlite
