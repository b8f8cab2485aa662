#include "hosts/ufficio/tab_stops.h"

#include <algorithm>
#include <vector>

namespace qvn::ufficio {

void followInOrder(qt::Platform& platform, QWidget* before, std::span<Panel* const> panels) {
  for (const Panel* panel : panels) {
    const auto widgets = panel->surface().widgets();
    std::vector<const toolkit::Widget*> inOrder(widgets.begin(), widgets.end());
    std::ranges::stable_sort(inOrder, {}, &toolkit::Widget::TabIndex);
    for (const toolkit::Widget* widget : inOrder) {
      QWidget* const stop = platform.widgetOf(*widget);
      if (stop == nullptr || stop->focusPolicy() == Qt::NoFocus) continue;
      if (before != nullptr) QWidget::setTabOrder(before, stop);
      before = stop;
    }
  }
}

}  // namespace qvn::ufficio
