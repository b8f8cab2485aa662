// A panel as one widget of Qt, for a host that knows its panels by name.
#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QWidget>
#include <memory>

#include "platforms/qt/announcements.h"
#include "platforms/qt/platform.h"
#include "qvn/toolkit/panel.h"

namespace qvn::qt {

/// Holds a panel, as large as it is laid out, and goes into any layout or window:
///
///     auto* iva = new PlacedPanel(platform, panelClass("ctlIVA").make, "iva", window);
///     iva->setValue("Codice", 22);
///     iva->call("Attiva");
///     connect(iva, &PlacedPanel::changed, …);
///
/// The values are those of variants.h. No call throws: failure() tells what was wrong with the last one. It may be
/// deleted in a slot of its own signals.
class PlacedPanel final : public QWidget {
  Q_OBJECT

 public:
  using Maker = std::unique_ptr<Panel> (*)(const PanelSite& site);

  /// As the maker fails; "invalid call" while the library is on another platform than this one.
  PlacedPanel(Platform& platform, Maker make, const QString& name, QWidget* parent = nullptr);
  ~PlacedPanel() override;

  Panel& panel() const { return *panel_; }

  /// The names of the public members, in interface order.
  Q_INVOKABLE QStringList members() const;
  /// A property's value; the invalid QVariant where it is Empty or cannot be read.
  Q_INVOKABLE QVariant value(const QString& property);
  /// Writes a property; false if it cannot be written.
  Q_INVOKABLE bool setValue(const QString& property, const QVariant& value);
  /// Calls a method and gives its result; the invalid QVariant where it has none or fails. What the method changes in
  /// its arguments does not come back.
  Q_INVOKABLE QVariant call(const QString& method, const QVariantList& arguments = {});
  /// Why the last value(), setValue() or call() failed, with panel and member in front; empty if it did not.
  Q_INVOKABLE QString failure() const { return failure_; }

 signals:
  /// A public property has changed.
  void changed(const QString& property);
  /// A handler that the operator's hand started has failed.
  void failed(const QString& widget, const QString& event, const QString& message);

 private:
  template <class Do>
  QVariant attempt(Do act);

  Announcements announcements_;
  std::unique_ptr<Panel> panel_;
  QString failure_;
};

}  // namespace qvn::qt
