// The panels for Designer, and for those that load its forms.
#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <memory>
#include <vector>

#include "platforms/designer/palette_entry.h"

namespace qvn::designer {

class Plugin final : public QObject, public QDesignerCustomWidgetCollectionInterface {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)
  Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

 public:
  Plugin();

  QList<QDesignerCustomWidgetInterface*> customWidgets() const override;

 private:
  std::vector<std::unique_ptr<PaletteEntry>> entries_;
};

}  // namespace qvn::designer
