#include "component/classes.h"

#include <algorithm>
#include <vector>

#include "qvn/shared/names.h"

namespace qvn::component {

namespace {

std::vector<ComponentClass> made() {
  std::vector<ComponentClass> all;
  all.reserve(panelClasses().size() + 1);
  for (const PanelClass& panel : panelClasses()) {
    all.push_back({.name = std::string(panel.name), .panel = &panel, .members = listOf(panel.members())});
  }
  all.push_back({.name = "clsQVN_Eventi",
                 .panel = nullptr,
                 .members = {{.name = "FireMancaDB", .type = {}, .kind = QVN_METHOD},
                             {.name = "ImpostaDB", .type = {}, .kind = QVN_METHOD},
                             {.name = "MancaDB", .type = {}, .kind = QVN_EVENT}}});
  return all;
}

}  // namespace

std::span<const ComponentClass> classes() {
  static const std::vector<ComponentClass> all = made();
  return all;
}

const ComponentClass* findClass(std::string_view name) {
  const auto found =
      std::ranges::find_if(classes(), [&](const ComponentClass& one) { return sameName(one.name, name); });
  return found == classes().end() ? nullptr : &*found;
}

const ComponentClass& eventsClass() { return classes().back(); }

}  // namespace qvn::component
