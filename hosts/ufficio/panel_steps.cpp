#include "hosts/ufficio/panel_steps.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace qvn::ufficio {

QWidget* firstFieldOf(qt::Platform& platform, const Panel& panel) {
  QWidget* first = nullptr;
  int tab = 0;
  for (const toolkit::Widget* widget : panel.surface().widgets()) {
    QWidget* const field = platform.widgetOf(*widget);
    if (field->focusPolicy() == Qt::NoFocus || !field->isEnabled() || !field->isVisible()) continue;
    if (first != nullptr && widget->TabIndex() >= tab) continue;
    first = field;
    tab = widget->TabIndex();
  }
  return first;
}

const Panel* panelAround(qt::Platform& platform, std::span<Panel* const> panels, const QWidget* widget) {
  const auto found = std::ranges::find_if(
      panels, [&](const Panel* panel) { return platform.widgetOf(panel->surface()).isAncestorOf(widget); });
  return found == panels.end() ? nullptr : *found;
}

QWidget* fieldOfNeighbour(qt::Platform& platform, std::span<Panel* const> panels, const QWidget* from, bool forwards) {
  const auto here = std::ranges::find(panels, panelAround(platform, panels, from));
  const auto count = std::ssize(panels);
  const std::ptrdiff_t step = forwards ? 1 : -1;
  std::ptrdiff_t place = here == panels.end() ? -1 : here - panels.begin();
  for (place += step; place >= 0 && place < count; place += step) {
    if (QWidget* const field = firstFieldOf(platform, *panels[static_cast<std::size_t>(place)])) return field;
  }
  return nullptr;
}

}  // namespace qvn::ufficio
