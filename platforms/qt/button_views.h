// Buttons and check boxes on the screen.
#pragma once

#include <QCheckBox>
#include <QPushButton>

#include "platforms/qt/view.h"

namespace qvn::qt {

class ButtonView final : public QPushButton, public View {
 public:
  ButtonView(Screen& screen, toolkit::CommandButton& model, QWidget& parent);
  QWidget& widget() override { return *this; }

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override { event->ignore(); }

 private:
  void showContent() override;
};

class CheckView final : public QCheckBox, public View {
 public:
  CheckView(Screen& screen, toolkit::CheckBox& model, QWidget& parent);
  QWidget& widget() override { return *this; }

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override { event->ignore(); }

 private:
  void showContent() override;
};

}  // namespace qvn::qt
