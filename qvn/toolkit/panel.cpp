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

/// Runs what a member does. A failure names panel and member; their names are taken before, as the panel may be dropped
/// while the member runs.
template <class Run>
auto named(const Panel& panel, std::string_view member, Run&& run) {
  const std::string where = place(panel, member);
  try {
    return run();
  } catch (const Failure& failure) {
    throw failure.within(where);
  }
}

/// The member of a name that serves a use: to be read, written or called.
template <class Use>
const Member& find(const Panel& panel, std::string_view name, Use Member::*use, std::string_view refusal) {
  for (const Member& member : panel.members()) {
    if (!sameName(member.name, name)) continue;
    if (member.*use) return member;
    throw Failure(FailureKind::NoSuchMember, place(panel, member.name).append(": ").append(refusal));
  }
  throw Failure(FailureKind::NoSuchMember, place(panel, name).append(": there is no member of that name"));
}

const Locale& localeOf(const Panel& panel) { return panel.surface().platform().locale(); }

}  // namespace

Variant getByName(Panel& panel, std::string_view name) {
  const Member& member = find(panel, name, &Member::get, "it is no property that can be read");
  return named(panel, member.name, [&] { return member.get(panel); });
}

void letByName(Panel& panel, std::string_view name, const Variant& value) {
  const Member& member = find(panel, name, &Member::let, "it is no property that can be written");
  named(panel, member.name, [&] { member.let(panel, value, localeOf(panel)); });
}

Variant callByName(Panel& panel, std::string_view name, std::span<Variant> args) {
  const Member& member = find(panel, name, &Member::call, "it is no method");
  return named(panel, member.name, [&] { return member.call(panel, args, localeOf(panel)); });
}

}  // namespace qvn
