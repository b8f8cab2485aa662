#include "platforms/qt/button_views.h"

#include "platforms/qt/screen.h"
#include "platforms/qt/texts.h"

namespace qvn::qt {

namespace {

/// Whether the event is Tab or Shift+Tab, which Qt would take before the widget.
bool isTab(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  const int key = static_cast<const QKeyEvent&>(event).key();
  return key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

}  // namespace

ButtonView::ButtonView(Screen& screen, toolkit::CommandButton& model, QWidget& parent)
    : QPushButton(shown(model.Caption()), &parent), View(screen, model) {
  setAutoDefault(false);
  setDefault(model.layout().defaultButton);
  connect(this, &QPushButton::clicked, this, [this] {
    if (!byPerson()) return;
    toolkit::Widget& clicked = *subject();
    onScreen().act(clicked, "Click", [&](memory::Hands& hands) { hands.click(clicked); });
  });
}

bool ButtonView::event(QEvent* event) {
  return isTab(*event) ? press(static_cast<QKeyEvent&>(*event)) : QPushButton::event(event);
}

void ButtonView::keyPressEvent(QKeyEvent* event) {
  if (!press(*event)) event->ignore();
}

CheckView::CheckView(Screen& screen, toolkit::CheckBox& model, QWidget& parent)
    : QCheckBox(shown(model.Caption()), &parent), View(screen, model) {
  connect(this, &QCheckBox::clicked, this, [this] {
    if (!byPerson()) return;
    toolkit::Widget& clicked = *subject();
    onScreen().act(clicked, "Click", [&](memory::Hands& hands) { hands.click(clicked); });
    onScreen().showAgain(*this);
  });
}

bool CheckView::event(QEvent* event) {
  return isTab(*event) ? press(static_cast<QKeyEvent&>(*event)) : QCheckBox::event(event);
}

void CheckView::keyPressEvent(QKeyEvent* event) {
  if (!press(*event)) event->ignore();
}

void CheckView::showContent() { setChecked(static_cast<toolkit::CheckBox&>(*subject()).Value() != 0); }

}  // namespace qvn::qt
