#include "platforms/designer/plugin.h"

namespace qvn::designer {

Plugin::Plugin() {
  entries_.reserve(formPanels().size());
  for (const FormPanel& panel : formPanels()) entries_.push_back(std::make_unique<PaletteEntry>(panel));
}

QList<QDesignerCustomWidgetInterface*> Plugin::customWidgets() const {
  QList<QDesignerCustomWidgetInterface*> widgets;
  for (const auto& entry : entries_) widgets.append(entry.get());
  return widgets;
}

}  // namespace qvn::designer
