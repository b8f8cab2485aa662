// The public members of a class, as the C interface and the manifest show them.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "component/qvn.h"
#include "qvn/toolkit/panel.h"

namespace qvn::component {

/// One member; its name and type are closed with a zero byte.
struct ListedMember {
  std::string name;
  std::string type;
  std::int32_t kind = QVN_GET;
};

using MemberList = std::vector<ListedMember>;

/// The kind in words, as manifests have it: "get", "let", "get/let", "method", "event".
std::string_view nameOfKind(std::int32_t kind);

/// The members of a panel class.
MemberList listOf(std::span<const Member> members);

}  // namespace qvn::component
