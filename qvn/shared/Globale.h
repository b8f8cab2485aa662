// The objects that all panels of the process share.
#pragma once

#include <memory>
#include <typeinfo>

#include "qvn/shared/clsQVN_Eventi.h"
#include "qvn/toolkit/platform.h"

namespace qvn::Globale {

/// Puts the library on a platform, unloading what was shared before. The platform stays the host's and must outlive
/// every panel and every use of the library; uninstall() ends that use, and so does the end of the program.
void install(toolkit::Platform& platform);

/// Unloads the library and takes it off its platform.
void uninstall();

/// The platform that panels and lookups work on. Fails with "invalid call" before install() and after uninstall().
toolkit::Platform& platform();

/// The one connection, made closed at the first use.
toolkit::Connection& DB();

/// The one event object, made at the first use.
std::shared_ptr<clsQVN_Eventi> Eventi();

/// Where an object of upper floors is kept, empty until it is made.
std::shared_ptr<void>& place(const std::type_info& type);

/// The one object of a class of an upper floor, made at the first use. What is at work with it keeps it beyond
/// unload().
template <class Object>
std::shared_ptr<Object> the() {
  std::shared_ptr<void>& kept = place(typeid(Object));
  if (!kept) kept = std::make_shared<Object>();
  return std::static_pointer_cast<Object>(kept);
}

/// Unloads the library: the connection, the event object and the objects of upper floors go, the platform stays. All
/// are made anew at the next use.
void unload();

}  // namespace qvn::Globale
