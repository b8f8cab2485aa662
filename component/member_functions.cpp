// Members by name, for C.
#include <span>
#include <vector>

#include "component/boundary.h"
#include "component/object.h"
#include "component/qvn.h"
#include "component/values.h"
#include "qvn/shared/failure.h"

using namespace qvn::component;

namespace {

std::span<const qvn_value> givenValues(const qvn_value* values, std::size_t count) {
  if (count == 0) return {};
  return {&given(values, "the list of arguments"), count};
}

}  // namespace

int32_t qvn_member_at(const qvn_object* object, int32_t index, qvn_member* member) {
  return guarded([&] {
    given(member, "the place for the member") = {.name = nullptr, .type = nullptr, .kind = QVN_GET};
    const ListedMember& found = at(present(object, "the object").members(), index, "member");
    *member = {.name = found.name.c_str(), .type = found.type.c_str(), .kind = found.kind};
  });
}

int32_t qvn_get(qvn_object* object, const char* name, qvn_value* value) {
  return guarded([&] {
    given(value, "the place for the value") = {};
    give(present(object, "the object").get(givenText(name, "the property's name")), *value);
  });
}

int32_t qvn_let(qvn_object* object, const char* name, const qvn_value* value) {
  return guarded([&] {
    Object& holder = present(object, "the object");
    const std::string_view property = givenText(name, "the property's name");
    const qvn_value& written = given(value, "the value");
    holder.let(property, qvn::placed(holder.placeOf(property), [&] { return toVariant(written); }));
  });
}

int32_t qvn_call(qvn_object* object, const char* name, const qvn_value* arguments, size_t count, qvn_value* result) {
  return guarded([&] {
    if (result != nullptr) *result = {};
    Object& callee = present(object, "the object");
    const std::string_view method = givenText(name, "the method's name");
    const std::span<const qvn_value> values = givenValues(arguments, count);
    auto variants = qvn::placed(callee.placeOf(method), [&] { return toVariants(values); });
    const qvn::Variant given = callee.call(method, variants);
    if (result != nullptr) give(given, *result);
  });
}
