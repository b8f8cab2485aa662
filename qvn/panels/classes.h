// All panels, by the names of their classes.
#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "qvn/toolkit/panel.h"

namespace qvn {

/// One class of panels: how to make one, and its public members, which live as long as the program.
struct PanelClass {
  std::string_view name;
  std::unique_ptr<Panel> (*make)(const PanelSite& site);
  std::span<const Member> (*members)();
};

/// The panels of the library, sorted by name.
std::span<const PanelClass> panelClasses();

/// The class of a name, exact in case. Fails with "no such member" if there is none.
const PanelClass& panelClass(std::string_view name);

}  // namespace qvn
