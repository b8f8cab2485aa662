// A label on the screen.
#pragma once

#include <QLabel>

#include "platforms/qt/view.h"

namespace qvn::qt {

class LabelView final : public QLabel, public View {
 public:
  LabelView(Screen& screen, toolkit::Label& model, QWidget& parent);
  QWidget& widget() override { return *this; }

 private:
  void showContent() override;
  /// Draws a caption that is wider than its place in narrower letters.
  void fitCaption();

  int stretch_ = QFont::Unstretched;
};

/// What stands for a data control, which shows nothing of its own.
class DataControlView final : public QLabel, public View {
 public:
  DataControlView(Screen& screen, toolkit::Widget& model, QWidget& parent);
  QWidget& widget() override { return *this; }

 private:
  void showContent() override {}
};

}  // namespace qvn::qt
