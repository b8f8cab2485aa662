// What Designer is told of one panel.
#pragma once

#include <QPointer>
#include <QString>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include "platforms/designer/panels.h"

namespace qvn::designer {

/// The panel in Designer's palette. What it says comes from the description of the panel's class.
class PaletteEntry final : public QDesignerCustomWidgetInterface {
 public:
  explicit PaletteEntry(const FormPanel& panel) : panel_(panel) {}

  QString name() const override { return QString::fromLatin1(panel_.description.className()); }
  QString group() const override { return QStringLiteral("qvn"); }
  QString toolTip() const override;
  QString whatsThis() const override;
  QString includeFile() const override { return QStringLiteral("platforms/designer/panels.h"); }
  QIcon icon() const override;
  bool isContainer() const override { return false; }
  QWidget* createWidget(QWidget* parent) override;
  bool isInitialized() const override { return designer_ != nullptr; }
  /// By Designer alone, and not by those that only load forms.
  void initialize(QDesignerFormEditorInterface* designer) override;
  QString domXml() const override;

 private:
  const FormPanel& panel_;
  QPointer<QObject> designer_;
};

}  // namespace qvn::designer
