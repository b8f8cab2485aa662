#include "platforms/qt/button_views.h"

#include <QStyleOptionButton>

#include "platforms/qt/captions.h"
#include "platforms/qt/key_events.h"
#include "platforms/qt/screen.h"
#include "platforms/qt/texts.h"

namespace qvn::qt {

namespace {

constexpr int kButtonMargin = 4;  // pixels between a button's edge and its caption

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

void ButtonView::showContent() { fitCaption(*this, text(), width() - 2 * kButtonMargin); }

CheckView::CheckView(Screen& screen, toolkit::CheckBox& model, QWidget& parent)
    : QCheckBox(shown(model.Caption()), &parent), View(screen, model) {
  if (model.layout().align == toolkit::Align::Right) setLayoutDirection(Qt::RightToLeft);  // the box behind its caption
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

void CheckView::showContent() {
  setChecked(static_cast<toolkit::CheckBox&>(*subject()).Value() != 0);
  QStyleOptionButton option;
  initStyleOption(&option);
  fitCaption(*this, text(), style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this).width());
}

}  // namespace qvn::qt
