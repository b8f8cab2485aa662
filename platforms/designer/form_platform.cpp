#include "platforms/designer/form_platform.h"

#include <string>

#include "qvn/shared/Globale.h"
#include "qvn/shared/failure.h"

#ifdef QVN_SQLITE
#include "platforms/sqlite/driver.h"
#endif

namespace qvn::designer {

namespace {

toolkit::Platform* hostsPlatform() {
  try {
    return &Globale::platform();
  } catch (const Failure&) {
    return nullptr;
  }
}

qt::Platform* newPlatform() {
  auto* const made = new qt::Platform;
#ifdef QVN_SQLITE
  made->drivers().add(sqlite::driver());
#endif
  return made;
}

/// Stands to the end of the program, as the application does that its widgets live in.
qt::Platform& ownPlatform() {
  static qt::Platform& own = *newPlatform();
  return own;
}

}  // namespace

qt::Platform& formPlatform() {
  if (toolkit::Platform* const hosts = hostsPlatform(); hosts != nullptr) {
    if (auto* const onWidgets = dynamic_cast<qt::Platform*>(hosts); onWidgets != nullptr) return *onWidgets;
    throw Failure(FailureKind::InvalidCall,
                  std::string("the library is on the platform \"").append(hosts->name()).append("\""));
  }
  qt::Platform& own = ownPlatform();
  Globale::install(own);
  return own;
}

}  // namespace qvn::designer
