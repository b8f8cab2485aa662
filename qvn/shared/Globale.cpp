#include "qvn/shared/Globale.h"

#include <array>
#include <cstddef>
#include <map>
#include <new>
#include <typeindex>
#include <utility>

#include "qvn/shared/failure.h"

namespace qvn::Globale {

namespace {

struct Shared {
  toolkit::Platform* platform = nullptr;
  std::unique_ptr<toolkit::Connection> db;
  std::shared_ptr<clsQVN_Eventi> eventi;
  std::map<std::type_index, std::shared_ptr<void>> others;
};

Shared& shared() {
  // Stands to the end of the program, never destroyed: by then the platform that the objects of upper floors lie on may
  // be gone. In room of the library's own, which goes with the library where that is unloaded.
  alignas(Shared) static std::array<std::byte, sizeof(Shared)> room;
  static Shared& instance = *new (room.data()) Shared;
  return instance;
}

}  // namespace

void install(toolkit::Platform& platform) {
  unload();
  shared().platform = &platform;
}

void uninstall() {
  unload();
  shared().platform = nullptr;
}

toolkit::Platform& platform() {
  if (shared().platform == nullptr) throw Failure(FailureKind::InvalidCall, "the library is on no platform yet");
  return *shared().platform;
}

toolkit::Connection& DB() {
  auto& db = shared().db;
  if (!db) db = std::make_unique<toolkit::Connection>(platform().drivers());
  return *db;
}

std::shared_ptr<clsQVN_Eventi> Eventi() {
  auto& eventi = shared().eventi;
  if (!eventi) eventi = std::make_shared<clsQVN_Eventi>();
  return eventi;
}

std::shared_ptr<void>& place(const std::type_info& type) { return shared().others[type]; }

void unload() {
  std::exchange(shared().others, {}).clear();
  shared().eventi.reset();
  shared().db.reset();
}

}  // namespace qvn::Globale
