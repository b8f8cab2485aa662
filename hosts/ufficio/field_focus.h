// The field of the panels that the operator is in.
#pragma once

#include <QPointer>
#include <QWidget>

#include "hosts/ufficio/attempts.h"
#include "hosts/ufficio/record_chooser.h"
#include "platforms/qt/platform.h"

namespace qvn::ufficio {

/// What the constructor takes must outlive it.
class FieldFocus {
 public:
  FieldFocus(qt::Platform& platform, RecordChooser& chooser, const Attempts& attempt)
      : platform_(platform), chooser_(chooser), attempt_(attempt) {}

  /// To be told of each field of the panels that the focus goes to.
  void goneTo(QWidget* field) {
    field_ = field;
    leftBadly_ = false;
  }
  /// To be told of each handler of the panels that fails, and whether it was that of leaving a field.
  void handlerFailed(bool ofLeaving) {
    ++failures_;
    leftBadly_ = leftBadly_ || ofLeaving;
  }

  /// Takes the focus from the panels, so that the field is left as by hand. False if that failed, or had failed when
  /// the operator left them.
  bool leave();
  /// Goes to the field that had the focus last, if it is still there.
  void goBack();

 private:
  qt::Platform& platform_;
  RecordChooser& chooser_;
  const Attempts& attempt_;
  QPointer<QWidget> field_;
  int failures_ = 0;
  bool leftBadly_ = false;
};

}  // namespace qvn::ufficio
