// What is behind every handle of the C interface: an object that its references keep.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "component/boundary.h"
#include "component/member_list.h"
#include "component/qvn.h"
#include "qvn/shared/variant.h"

/// The base of all objects, under the name that C knows. It begins with one reference.
struct qvn_object {
 public:
  qvn_object();
  virtual ~qvn_object();
  qvn_object(const qvn_object&) = delete;
  qvn_object& operator=(const qvn_object&) = delete;

  /// One that is gone stays so: 0.
  std::int32_t addref() noexcept { return gone() ? 0 : ++references_; }
  bool gone() const noexcept { return references_ == 0; }
  /// Without the last reference the object is gone, and is destroyed when the outermost call of the library ends.
  std::int32_t release() noexcept;

  /// Closed with a zero byte, and lasting as long as the object.
  virtual std::string_view className() const = 0;
  /// The public members in interface order; "invalid argument" for an object without.
  virtual const qvn::component::MemberList& members() const;

  /// How messages call a member: with the panel's name in front, if it is one of a panel.
  virtual std::string placeOf(std::string_view member) const { return std::string(member); }
  /// Access to members by name; "invalid argument" for an object without members.
  virtual qvn::Variant get(std::string_view name);
  virtual void let(std::string_view name, const qvn::Variant& value);
  virtual qvn::Variant call(std::string_view name, std::span<qvn::Variant> arguments);

  /// How many objects there are; those among them that are gone while a call is under way.
  static std::int32_t living() { return living_; }
  /// Destroys the objects that are gone.
  static void destroyGone() noexcept;

 private:
  [[noreturn]] void refuse() const;
  /// What goes at once with the last reference.
  virtual void drop() noexcept {}

  static std::int32_t living_;
  static qvn_object* gone_;

  std::int32_t references_ = 1;
  qvn_object* goneBefore_ = nullptr;
};

namespace qvn::component {

using Object = qvn_object;

/// An object that is there. "invalid argument" for a null, and for one that went while a handler that it is lent to
/// still runs.
template <class MaybeConst>
MaybeConst& present(MaybeConst* object, const char* what) {
  MaybeConst& any = given(object, what);
  if (any.gone()) throw InvalidArgument(std::string(what).append(" is gone"));
  return any;
}

/// An object of the kind that a call is for. "invalid argument" for a null, one that is gone, or another kind.
template <class Kind>
Kind& ofKind(Object* object) {
  Object& any = present(&given(object, Kind::kKind), "the object");
  auto* found = dynamic_cast<Kind*>(&any);
  if (found == nullptr) {
    throw InvalidArgument(
        std::string("the object is no ").append(Kind::kKind).append(" but of the class ").append(any.className()));
  }
  return *found;
}

/// A reference that the library holds itself.
template <class Kind>
class Reference {
 public:
  explicit Reference(Kind& object) : object_(object) { object_.addref(); }
  ~Reference() { object_.release(); }
  Reference(const Reference&) = delete;
  Reference& operator=(const Reference&) = delete;

  Kind& operator*() const { return object_; }
  Kind* operator->() const { return &object_; }

 private:
  Kind& object_;
};

}  // namespace qvn::component
