#include "platforms/qt/combo_view.h"

#include <QApplication>
#include <QStyleOptionComboBox>
#include <QWheelEvent>

#include "platforms/qt/captions.h"
#include "platforms/qt/colours.h"
#include "platforms/qt/screen.h"
#include "platforms/qt/texts.h"

namespace qvn::qt {

ComboView::ComboView(Screen& screen, toolkit::ComboBox& model, QWidget& parent)
    : QComboBox(&parent), View(screen, model) {
  connect(this, &QComboBox::activated, this, [this](int index) {
    if (!byPerson()) return;
    onScreen().act(*subject(), "Click", [&](memory::Hands& hands) { hands.choose(list(), index); });
    onScreen().showAgain(*this);
  });
}

QPalette ComboView::paletteFor(std::uint32_t back, std::uint32_t fore) const {
  return fieldColours(QApplication::palette(), back, fore);
}

void ComboView::showContent() {
  const int items = list().ListCount();
  while (count() > items) removeItem(count() - 1);
  for (int i = 0; i < items; ++i) {
    const QString item = shown(list().List(i));
    if (i == count()) {
      addItem(item);
    } else if (itemText(i) != item) {
      setItemText(i, item);
    }
  }
  if (currentIndex() != list().ListIndex()) setCurrentIndex(list().ListIndex());
  fitItems();
}

void ComboView::fitItems() {
  QString widest;
  for (int i = 0; i < count(); ++i) {
    if (widthOf(itemText(i), font()) > widthOf(widest, font())) widest = itemText(i);
  }
  QStyleOptionComboBox option;
  initStyleOption(&option);
  fitCaption(*this, widest,
             style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this).width());
}

bool ComboView::event(QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    auto& key = static_cast<QKeyEvent&>(*event);
    if (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab) return press(key);
  }
  return QComboBox::event(event);
}

void ComboView::keyPressEvent(QKeyEvent* event) {
  const bool vertical = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
  if (event->key() == Qt::Key_F4 || (vertical && event->modifiers().testFlag(Qt::AltModifier))) return showPopup();
  if (!press(*event)) event->ignore();
}

void ComboView::wheelEvent(QWheelEvent* event) { event->ignore(); }

}  // namespace qvn::qt
