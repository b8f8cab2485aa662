// What a panel tells its container, as Qt signals.
#pragma once

#include <QObject>
#include <QString>

#include "qvn/toolkit/container.h"

namespace qvn::qt {

/// The container of panels in a program that lives by signals and slots. A slot that drops a panel may do so; what a
/// slot of failed() throws ends the program.
class Announcements final : public QObject, public toolkit::Container {
  Q_OBJECT

 public:
  using QObject::QObject;

  void PropertyChanged(toolkit::Surface& panel, std::string_view name) override;
  void handlerFailed(toolkit::Surface& panel, toolkit::Widget& widget, std::string_view event,
                     const Failure& failure) noexcept override;

 signals:
  /// A public property of the panel of that name has changed.
  void changed(const QString& panel, const QString& property);
  /// A handler that the operator's hand started has failed.
  void failed(const QString& panel, const QString& widget, const QString& event, const QString& message,
              qvn::FailureKind kind);
};

}  // namespace qvn::qt
