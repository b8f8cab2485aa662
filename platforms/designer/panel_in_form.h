// A panel as a widget that a form file places.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QWidget>
#include <string>

#include "platforms/qt/placed_panel.h"
#include "qvn/shared/event.h"

namespace qvn::designer {

/// Makes its panel by itself, on the platform of formPlatform(), and is as large as that. The classes of panels.h add
/// the panel's properties. Nothing fails in a form: what a panel refuses leaves it as it was, and what failed is told
/// by failure() and in the log of the category "qvn.designer". Where no panel can be made, the reason stands in its
/// place.
class PanelInForm : public QWidget {
  Q_OBJECT

 public:
  ~PanelInForm() override;

  QSize sizeHint() const override;

  /// The panel with its container; null where none could be made.
  qt::PlacedPanel* placed() const { return placed_; }

  /// From now on a property that the panel does not give back reads as it was written, so that whoever writes the form
  /// can store it there.
  void keepWhatIsWritten() { keeps_ = true; }

  /// As those of PlacedPanel.
  Q_INVOKABLE QStringList members() const;
  Q_INVOKABLE QVariant value(const QString& property);
  Q_INVOKABLE bool setValue(const QString& property, const QVariant& value);
  Q_INVOKABLE QVariant call(const QString& method, const QVariantList& arguments = {});
  /// Why the last of these calls failed, or the last writing of a property; empty if it did not.
  Q_INVOKABLE QString failure() const { return failure_; }

  /// Gives all panels of the program their database, once; false if it cannot be opened.
  Q_SLOT bool ImpostaDB(const QString& connection);

 signals:
  /// A public property has changed.
  void changed(const QString& property);
  /// A handler that the operator's hand started has failed.
  void failed(const QString& widget, const QString& event, const QString& message);
  /// A panel, this or another, has something to look up and no database: the host is to call ImpostaDB now.
  void MancaDB();

 protected:
  PanelInForm(const char* panel, QWidget* parent);

  /// A property as a form shows it; the empty value where it cannot be read.
  QString text(const char* property) const;
  int number(const char* property) const;
  bool flag(const char* property) const;
  /// One that the panel does not give back.
  QString unread(const char* property) const;
  void let(const char* property, const QVariant& value);

 private:
  void place(const char* panel);
  void showReason(const QString& reason);

  qt::PlacedPanel* placed_ = nullptr;
  Subscription missing_;
  QString failure_;
  bool keeps_ = false;
  QHash<QByteArray, QString> kept_;
};

}  // namespace qvn::designer
