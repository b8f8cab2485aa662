// All classes of the component: the panels and the event object's.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "component/member_list.h"
#include "qvn/panels/classes.h"

namespace qvn::component {

/// A class that hosts create objects of. It lasts as long as the library.
struct ComponentClass {
  std::string name;
  const PanelClass* panel = nullptr;  ///< null for clsQVN_Eventi
  MemberList members;
};

/// The panels in order of their names, then clsQVN_Eventi.
std::span<const ComponentClass> classes();

/// The class of a name, without regard to case, or null.
const ComponentClass* findClass(std::string_view name);

/// clsQVN_Eventi.
const ComponentClass& eventsClass();

}  // namespace qvn::component
