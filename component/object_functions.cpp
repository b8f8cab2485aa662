// Statuses, values, and the making of objects, for C.
#include "component/boundary.h"
#include "component/class_object.h"
#include "component/classes.h"
#include "component/object.h"
#include "component/qvn.h"
#include "component/registration.h"
#include "component/screen_object.h"
#include "component/values.h"
#include "qvn/shared/failure.h"

using namespace qvn::component;

namespace {

/// What stood in a place, which gives back what it owns when it has been read.
struct Taken {
  Taken() = default;
  ~Taken() { clear(value); }
  Taken(const Taken&) = delete;
  Taken& operator=(const Taken&) = delete;

  qvn_value value{};
};

}  // namespace

const char* qvn_last_message() { return message(); }

const char* qvn_status_name(int32_t status) { return nameOfStatus(status); }

int32_t qvn_fail(int32_t status, const char* message) {
  leaveMessage(message == nullptr ? "" : message);
  return status;
}

const char* qvn_version() { return QVN_VERSION; }

int32_t qvn_addref(qvn_object* object) { return object == nullptr ? 0 : object->addref(); }

int32_t qvn_release(qvn_object* object) {
  const Entry entry;
  return object == nullptr ? 0 : object->release();
}

int32_t qvn_class_of(const qvn_object* object, const char** name) {
  return guarded([&] {
    given(name, "the place for the name") = nullptr;
    *name = given(object, "the object").className().data();
  });
}

void qvn_value_clear(qvn_value* value) {
  const Entry entry;
  if (value != nullptr) clear(*value);
}

int32_t qvn_value_convert(const qvn_value* value, int32_t kind, qvn_value* converted) {
  return guarded([&] {
    Taken taken;
    if (value == converted) taken.value = given(converted, "the place for the value");
    given(converted, "the place for the value") = {};
    const qvn_value& from = value == converted ? taken.value : given(value, "the value");
    give(qvn::component::converted(toVariant(from), kind), *converted);
  });
}

int32_t qvn_manifest_path(const char* path) {
  return guarded([&] { manifestPath(path); });
}

int32_t qvn_class_at(int32_t index, const char** name) {
  return guarded([&] {
    given(name, "the place for the name") = nullptr;
    *name = at(classes(), index, "class").name.c_str();
  });
}

int32_t qvn_screen_create(qvn_object** screen) {
  return guarded([&] {
    given(screen, "the place for the screen") = nullptr;
    *screen = new ScreenObject();
  });
}

int32_t qvn_screen_today(qvn_object* screen, int32_t days) {
  return guarded([&] { ofKind<ScreenObject>(screen).platform().today(qvn::Date::fromDays(days)); });
}

int32_t qvn_create(qvn_object* class_object, qvn_object* screen, const char* name, qvn_object** object) {
  return guarded([&] {
    given(object, "the place for the object") = nullptr;
    *object = &ofKind<ClassObject>(class_object).create(screen, name);
  });
}
