// A frame on the screen.
#pragma once

#include <QGroupBox>

#include "platforms/qt/view.h"

namespace qvn::qt {

class FrameView final : public QGroupBox, public View {
 public:
  FrameView(Screen& screen, toolkit::Frame& model, QWidget& parent);
  QWidget& widget() override { return *this; }

 protected:
  /// A line around all of it, broken by the caption, as the widgets inside are laid out for.
  void paintEvent(QPaintEvent* event) override;

 private:
  void showContent() override;
  QRect titleRect() const;
};

}  // namespace qvn::qt
