// Panels by the names of their classes, and what their member tables promise.
#include "qvn/panels/classes.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <string>

#include "qvn/shared/names.h"
#include "tests/failure_matchers.h"
#include "tests/on_platform.h"

namespace qvn::test {
namespace {

class PanelClasses : public OnPlatform {};
QVN_ON_EVERY_PLATFORM(PanelClasses);

TEST_P(PanelClasses, AreFoundByTheirExactNames) {
  EXPECT_EQ(panelClass("ctlIVA").name, "ctlIVA");
  EXPECT_FAILURE(panelClass("ctliva"), FailureKind::NoSuchMember, "ctliva");
  EXPECT_FAILURE(panelClass(""), FailureKind::NoSuchMember, "\"\"");
}

TEST_P(PanelClasses, MakePanelsThatAnswerForEachOfTheirMembers) {
  for (const PanelClass& type : panelClasses()) {
    SCOPED_TRACE(type.name);
    const auto panel = type.make(PanelSite{container(), "p"});
    EXPECT_EQ(panel->surface().layout().name, type.name);
    EXPECT_EQ(panel->members().data(), type.members().data());
    std::set<std::string> names;
    for (const Member& member : panel->members()) {
      SCOPED_TRACE(member.name);
      std::string lower(member.name);
      std::ranges::transform(lower, lower.begin(), lowered);
      EXPECT_TRUE(names.insert(lower).second) << "twice under one name";
      EXPECT_EQ(static_cast<bool>(member.get), member.kind == MemberKind::Get || member.kind == MemberKind::GetLet);
      EXPECT_EQ(static_cast<bool>(member.let), member.kind == MemberKind::Let || member.kind == MemberKind::GetLet);
      EXPECT_EQ(static_cast<bool>(member.call), member.kind == MemberKind::Method);
      EXPECT_TRUE(member.kind == MemberKind::Method || !member.type.empty());
    }
  }
}

TEST_P(PanelClasses, LayOutEachWidgetOnceInsideAFrameAboveIt) {
  for (const PanelClass& type : panelClasses()) {
    const auto panel = type.make(PanelSite{container(), "p"});
    std::set<std::string_view> names;
    std::set<std::string_view> frames{""};
    std::int16_t lastIndex = -1;
    for (const toolkit::WidgetLayout& row : panel->surface().layout().widgets) {
      SCOPED_TRACE(std::string(type.name) + "." + std::string(row.name));
      EXPECT_TRUE(names.insert(row.name).second);
      EXPECT_TRUE(frames.contains(row.frame));
      EXPECT_GT(row.tabIndex, lastIndex) << "the layout stands in tab order";
      lastIndex = row.tabIndex;
      if (row.kind == toolkit::WidgetKind::Frame) frames.insert(row.name);
      EXPECT_GT(row.place.width, 0);
      EXPECT_GT(row.place.height, 0);
    }
  }
}

}  // namespace
}  // namespace qvn::test
