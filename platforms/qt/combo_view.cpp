#include "platforms/qt/combo_view.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QApplication>
#include <QStyleOptionComboBox>
#include <QWheelEvent>

#include "platforms/qt/captions.h"
#include "platforms/qt/colours.h"
#include "platforms/qt/key_events.h"
#include "platforms/qt/screen.h"
#include "platforms/qt/texts.h"

namespace qvn::qt {

namespace {

/// Has a name and a value. Qt's own tells the current item for both, and leaves the name to labels that are tied to it.
class SpokenList final : public QAccessibleWidget {
 public:
  explicit SpokenList(ComboView& view) : QAccessibleWidget(&view, QAccessible::ComboBox), box_(view) {}

  QString text(QAccessible::Text what) const override {
    return what == QAccessible::Value ? box_.currentText() : QAccessibleWidget::text(what);
  }
  int childCount() const override { return 1; }
  QAccessibleInterface* child(int index) const override {
    return index == 0 ? QAccessible::queryAccessibleInterface(box_.view()) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return child != nullptr && child->object() == box_.view() ? 0 : -1;
  }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  QStringList actionNames() const override { return {showMenuAction(), pressAction()}; }
  void doAction(const QString& action) override {
    if (!actionNames().contains(action)) return;
    if (box_.view()->isVisible()) return box_.hidePopup();
    box_.showPopup();
  }

 private:
  ComboView& box_;
};

QAccessibleInterface* speakerOf(const QString& /*className*/, QObject* object) {
  auto* view = dynamic_cast<ComboView*>(object);
  return view == nullptr ? nullptr : new SpokenList(*view);  // Qt keeps it until the view goes
}

}  // namespace

ComboView::ComboView(Screen& screen, toolkit::ComboBox& model, QWidget& parent)
    : QComboBox(&parent), View(screen, model) {
  QAccessible::installFactory(speakerOf);  // once, as often as it is told
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
  return isTab(*event) ? press(static_cast<QKeyEvent&>(*event)) : QComboBox::event(event);
}

void ComboView::keyPressEvent(QKeyEvent* event) {
  const bool vertical = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
  if (event->key() == Qt::Key_F4 || (vertical && event->modifiers().testFlag(Qt::AltModifier))) return showPopup();
  if (!press(*event)) event->ignore();
}

void ComboView::wheelEvent(QWheelEvent* event) { event->ignore(); }

}  // namespace qvn::qt
