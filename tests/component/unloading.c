// The component is loaded, used and unloaded, and nothing keeps it; twice. unloading LIBRARY
#include <dlfcn.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "component/qvn.h"

static void must(int holds, const char* what) {
  if (holds) return;
  fprintf(stderr, "%s\n", what);
  exit(1);
}

static void take(void* library, const char* name, void* function, size_t size) {
  void* address = dlsym(library, name);
  must(address != NULL, name);
  memcpy(function, &address, size);
}

#define TAKE(name)              \
  __typeof__(name)* name##_ptr; \
  take(library, #name, &name##_ptr, sizeof name##_ptr)

static void use(void* library) {
  TAKE(DllGetClassObject);
  TAKE(DllCanUnloadNow);
  TAKE(qvn_screen_create);
  TAKE(qvn_create);
  TAKE(qvn_call);
  TAKE(qvn_get);
  TAKE(qvn_last_message);
  TAKE(qvn_release);
  void* panels = NULL;
  qvn_object* screen = NULL;
  qvn_object* panel = NULL;
  qvn_value value = {0};
  must(qvn_screen_create_ptr(&screen) == QVN_OK, "there is no screen");
  must(DllGetClassObject_ptr("ctlQ_POLIZZE", QVN_CLASS_INTERFACE, &panels) == QVN_S_OK, "there is no class");
  must(qvn_create_ptr((qvn_object*)panels, screen, "quota", &panel) == QVN_OK, "there is no panel");
  must(qvn_call_ptr(panel, "Attiva", NULL, 0, NULL) == QVN_OK, "the panel is not called");
  must(qvn_get_ptr(panel, "Gone", &value) == QVN_NO_SUCH_MEMBER, "a member is there that is not");
  must(*qvn_last_message_ptr() != '\0', "a failure leaves no message");
  must(DllCanUnloadNow_ptr() == QVN_S_FALSE, "it may be unloaded while objects live");
  qvn_release_ptr(panel);
  qvn_release_ptr((qvn_object*)panels);
  qvn_release_ptr(screen);
  must(DllCanUnloadNow_ptr() == QVN_S_OK, "it may not be unloaded");
}

int main(int argc, char** argv) {
  must(argc == 2, "which library?");
  for (int i = 0; i < 2; ++i) {
    void* library = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL);
    must(library != NULL, "it is not loaded");
    use(library);
    must(dlclose(library) == 0, "it is not closed");
    must(dlopen(argv[1], RTLD_NOW | RTLD_NOLOAD) == NULL, "it stays loaded");
  }
  return 0;
}
