// The platform of panels that no host has placed by itself.
#pragma once

#include "platforms/qt/platform.h"

namespace qvn::designer {

/// The one that the library is on, if a host has put it on one of Qt's widgets; else one that is made here, with the
/// SQLite driver where that was built, and lasts as long as the program. "invalid call" if the library is on a platform
/// of another kind.
qt::Platform& formPlatform();

}  // namespace qvn::designer
