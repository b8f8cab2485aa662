#include "component/registration.h"

#include <memory>
#include <optional>
#include <string>

#include "component/boundary.h"
#include "component/class_object.h"
#include "component/manifest.h"
#include "component/qvn.h"

namespace qvn::component {

namespace {

std::optional<std::string>& toldPath() {
  static std::optional<std::string> path;
  return path;
}

/// A status as a result of the component system, where the result of what went well is told apart.
std::int32_t resultOf(std::int32_t status, std::int32_t ifWell, std::int32_t ifFailed) {
  if (status == QVN_OK) return ifWell;
  return status == QVN_OUT_OF_MEMORY ? QVN_E_OUTOFMEMORY : ifFailed;
}

}  // namespace

void manifestPath(const char* path) {
  if (path == nullptr) {
    toldPath().reset();
  } else {
    toldPath() = path;
  }
}

std::int32_t writeManifest() noexcept {
  forgetMessage();
  if (!toldPath()) return QVN_S_FALSE;
  return resultOf(guarded([] { manifest::write(*toldPath()); }), QVN_S_OK, QVN_SELFREG_E_CLASS);
}

std::int32_t removeManifest() noexcept {
  forgetMessage();
  if (!toldPath()) return QVN_S_FALSE;
  bool removed = false;
  const std::int32_t status = guarded([&] { removed = manifest::remove(*toldPath()); });
  return resultOf(status, removed ? QVN_S_OK : QVN_S_FALSE, QVN_SELFREG_E_CLASS);
}

std::int32_t giveClassObject(const char* className, const char* interfaceName, void** object) noexcept {
  std::int32_t refusal = QVN_E_POINTER;
  const std::int32_t status = guarded([&] {
    given(object, "the place for the object") = nullptr;
    const std::string_view name = givenText(className, "the class's name");
    const std::string_view interface = givenText(interfaceName, "the interface's name");
    const ComponentClass* found = findClass(name);
    if (found == nullptr) {
      refusal = QVN_CLASS_E_CLASSNOTAVAILABLE;
      throw InvalidArgument(std::string("there is no class \"").append(name).append("\""));
    }
    if (interface != QVN_CLASS_INTERFACE) {
      refusal = QVN_E_NOINTERFACE;
      throw InvalidArgument(std::string("a class object has no interface \"").append(interface).append("\""));
    }
    *object = static_cast<Object*>(std::make_unique<ClassObject>(*found).release());
  });
  return status == QVN_INVALID_ARGUMENT ? refusal : resultOf(status, QVN_S_OK, QVN_E_UNEXPECTED);
}

std::int32_t mayBeUnloaded() noexcept {
  forgetMessage();
  return Object::living() == 0 ? QVN_S_OK : QVN_S_FALSE;
}

}  // namespace qvn::component
