#include "qvn/toolkit/panel.h"

#include <array>

#include "qvn/shared/failure.h"
#include "qvn/shared/names.h"
#include "qvn/toolkit/platform.h"

namespace qvn {

std::string_view nameOf(MemberKind kind) {
  static constexpr std::array<std::string_view, 4> names{"get", "let", "get/let", "method"};
  return names.at(static_cast<std::size_t>(kind));
}

namespace {

std::string place(const Panel& panel, std::string_view member) {
  return std::string(panel.surface().name()).append(".").append(member);
}

template <class Use>
const Member& find(const Panel& panel, std::string_view name, std::string_view what, Use&& serves) {
  for (const Member& member : panel.members()) {
    if (sameName(member.name, name) && serves(member)) return member;
  }
  throw Failure(FailureKind::NoSuchMember, place(panel, name).append(": there is no such ").append(what));
}

const Locale& localeOf(const Panel& panel) { return panel.surface().platform().locale(); }

}  // namespace

Variant getByName(Panel& panel, std::string_view name) {
  const Member& member =
      find(panel, name, "property to read", [](const Member& m) { return static_cast<bool>(m.get); });
  try {
    return member.get(panel);
  } catch (const Failure& failure) {
    throw failure.within(place(panel, member.name));
  }
}

void letByName(Panel& panel, std::string_view name, const Variant& value) {
  const Member& member =
      find(panel, name, "property to write", [](const Member& m) { return static_cast<bool>(m.let); });
  try {
    member.let(panel, value, localeOf(panel));
  } catch (const Failure& failure) {
    throw failure.within(place(panel, member.name));
  }
}

Variant callByName(Panel& panel, std::string_view name, std::span<Variant> args) {
  const Member& member = find(panel, name, "method", [](const Member& m) { return static_cast<bool>(m.call); });
  try {
    return member.call(panel, args, localeOf(panel));
  } catch (const Failure& failure) {
    throw failure.within(place(panel, member.name));
  }
}

}  // namespace qvn
