#include "component/class_object.h"

#include <memory>

#include "component/events_object.h"
#include "component/panel_object.h"

namespace qvn::component {

Object& ClassObject::create(Object* screen, const char* name) const {
  if (class_.panel == nullptr) return EventsObject::of(std::make_shared<clsQVN_Eventi>());
  return *new PanelObject(class_, ofKind<ScreenObject>(screen), std::string(givenText(name, "the panel's name")));
}

}  // namespace qvn::component
