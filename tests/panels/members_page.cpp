// The page of all panels' public members, as the panels describe themselves, on standard output.
#include <iostream>
#include <string_view>

#include "qvn/panels/classes.h"

namespace {

constexpr std::string_view kHead = R"(# Panels

The public members of each panel, in interface order. A host that knows a panel's class has them as member functions; one
that knows it by name reads, writes and calls them by `getByName`, `letByName` and `callByName`, without regard to case.
What each shows or takes, its unit and how it fails stands in the panel's header, `qvn/panels/<room>/<panel>.h`. A type is
that of the property or of the method's result.

`./dev members` writes this page from what the panels say of themselves.

| Panel | Member | Kind | Type |
|---|---|---|---|
)";

}  // namespace

int main() {
  std::cout << kHead;
  for (const qvn::PanelClass& panel : qvn::panelClasses()) {
    for (const qvn::Member& member : panel.members()) {
      std::cout << "| `" << panel.name << "` | `" << member.name << "` | " << nameOf(member.kind) << " | "
                << (member.type.empty() ? "none" : member.type) << " |\n";
    }
  }
  return std::cout ? 0 : 1;
}
