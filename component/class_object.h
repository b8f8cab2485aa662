// A class object: what new objects of a class come from.
#pragma once

#include <string_view>

#include "component/classes.h"
#include "component/object.h"
#include "component/screen_object.h"

namespace qvn::component {

class ClassObject final : public Object {
 public:
  static constexpr const char* kKind = "class";

  explicit ClassObject(const ComponentClass& made) : class_(made) {}

  std::string_view className() const override { return kKind; }
  const MemberList& members() const override { return class_.members; }

  /// A new object, with one reference. A panel needs a screen and a name, "invalid argument" if either is null; an
  /// event object needs neither.
  Object& create(Object* screen, const char* name) const;

 private:
  const ComponentClass& class_;
};

}  // namespace qvn::component
