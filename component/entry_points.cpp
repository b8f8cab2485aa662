// The component system's entry points. They only hand on.
#include "component/qvn.h"
#include "component/registration.h"

int32_t QVN_ENTRY DllRegisterServer() { return qvn::component::writeManifest(); }

int32_t QVN_ENTRY DllUnregisterServer() { return qvn::component::removeManifest(); }

int32_t QVN_ENTRY DllGetClassObject(const char* class_name, const char* interface_name, void** object) {
  return qvn::component::giveClassObject(class_name, interface_name, object);
}

int32_t QVN_ENTRY DllCanUnloadNow() { return qvn::component::mayBeUnloaded(); }
