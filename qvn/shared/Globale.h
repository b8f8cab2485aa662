// The objects that all panels of the process share.
#pragma once

#include <memory>

#include "qvn/shared/clsQVN_Eventi.h"
#include "qvn/toolkit/platform.h"

namespace qvn::Globale {

/// Puts the library on a platform, unloading what was shared before. The platform stays the host's and must outlive
/// every panel and every use of the library; uninstall() ends that use.
void install(toolkit::Platform& platform);

/// Unloads the library and takes it off its platform.
void uninstall();

/// The platform that panels and lookups work on. Fails with "invalid call" before install() and after uninstall().
toolkit::Platform& platform();

/// The one connection, made closed at the first use.
toolkit::Connection& DB();

/// The one event object, made at the first use.
std::shared_ptr<clsQVN_Eventi> Eventi();

/// Unloads the library: the connection and the event object go, the platform stays. Both are made anew at the next use.
void unload();

}  // namespace qvn::Globale
