#include "component/member_list.h"

namespace qvn::component {

namespace {

constexpr std::int32_t codeOf(MemberKind kind) { return static_cast<std::int32_t>(kind); }
static_assert(codeOf(MemberKind::Get) == QVN_GET);
static_assert(codeOf(MemberKind::Let) == QVN_LET);
static_assert(codeOf(MemberKind::GetLet) == QVN_GET_LET);
static_assert(codeOf(MemberKind::Method) == QVN_METHOD);

}  // namespace

std::string_view nameOfKind(std::int32_t kind) {
  return kind == QVN_EVENT ? "event" : nameOf(static_cast<MemberKind>(kind));
}

MemberList listOf(std::span<const Member> members) {
  MemberList list;
  list.reserve(members.size());
  for (const Member& member : members) {
    list.push_back({.name = std::string(member.name), .type = std::string(member.type), .kind = codeOf(member.kind)});
  }
  return list;
}

}  // namespace qvn::component
