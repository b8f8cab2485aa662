// The component is loaded, used and unloaded, and nothing keeps it; twice. unloading LIBRARY [DATABASE]
//
// With a database, which is made if it is not there, by a host that uses SQLite itself, so that it stays loaded.
#include <dlfcn.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#ifdef HOST_USES_SQLITE
#include <sqlite3.h>
#endif

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

#ifdef HOST_USES_SQLITE
static void open(const char* file, int flags, const char* files) {
  sqlite3* database = NULL;
  must(sqlite3_open_v2(file, &database, flags, files) == SQLITE_OK, "the host opens no database");
  must(sqlite3_exec(database, flags == SQLITE_OPEN_READONLY ? "SELECT A FROM T" : "CREATE TABLE IF NOT EXISTS T (A)",
                    NULL, NULL, NULL) == SQLITE_OK,
       "the host cannot use its database");
  sqlite3_close_v2(database);
}

static void connect(void* library, const char* file) {
  TAKE(DllGetClassObject);
  TAKE(qvn_screen_create);
  TAKE(qvn_create);
  TAKE(qvn_call);
  TAKE(qvn_release);
  char connection[4096];
  snprintf(connection, sizeof connection, "sqlite:%s", file);
  qvn_value given = {0};
  given.kind = QVN_TEXT;
  given.as.text.data = connection;
  given.as.text.length = strlen(connection);
  void* classes = NULL;
  qvn_object* screen = NULL;
  qvn_object* events = NULL;
  must(qvn_screen_create_ptr(&screen) == QVN_OK, "there is no screen");
  must(DllGetClassObject_ptr("clsQVN_Eventi", QVN_CLASS_INTERFACE, &classes) == QVN_S_OK, "there is no class");
  must(qvn_create_ptr((qvn_object*)classes, NULL, NULL, &events) == QVN_OK, "there is no event object");
  must(qvn_call_ptr(events, "ImpostaDB", &given, 1, NULL) == QVN_OK, "the library opens no database");
  must(sqlite3_vfs_find("qvn-reading") != NULL, "the library reads through no files of its own");
  qvn_release_ptr(events);
  qvn_release_ptr((qvn_object*)classes);
  qvn_release_ptr(screen);
}
#endif

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
  must(argc >= 2, "which library?");
#ifdef HOST_USES_SQLITE
  must(argc == 3, "which database?");
  open(argv[2], SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, NULL);
#endif
  for (int i = 0; i < 2; ++i) {
    void* library = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL);
    must(library != NULL, "it is not loaded");
    use(library);
#ifdef HOST_USES_SQLITE
    connect(library, argv[2]);
#endif
    must(dlclose(library) == 0, "it is not closed");
    must(dlopen(argv[1], RTLD_NOW | RTLD_NOLOAD) == NULL, "it stays loaded");
#ifdef HOST_USES_SQLITE
    must(sqlite3_vfs_find("qvn-reading") == NULL, "SQLite keeps what the library was");
    open(argv[2], SQLITE_OPEN_READONLY, "unix-dotfile");
#endif
  }
  return 0;
}
