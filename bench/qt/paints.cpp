#include "bench/qt/paints.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <algorithm>
#include <utility>

namespace qvn::bench {

FirstPaint::FirstPaint(std::function<void()> then) : then_(std::move(then)) { qApp->installEventFilter(this); }

bool FirstPaint::eventFilter(QObject* on, QEvent* event) {
  if (seen_ || event->type() != QEvent::Paint) return false;
  const auto* list = qobject_cast<QAbstractItemView*>(on->parent());
  if (list == nullptr || on != list->viewport()) return false;
  seen_ = true;
  QMetaObject::invokeMethod(
      this, [this] { then_(); }, Qt::QueuedConnection);
  return false;
}

PaintedWidgets::PaintedWidgets() { qApp->installEventFilter(this); }

bool PaintedWidgets::eventFilter(QObject* on, QEvent* event) {
  if (event->type() == QEvent::Paint) painted_.insert(on);
  return false;
}

bool PaintedWidgets::haveAllOf(const QWidget& widget) const {
  return std::ranges::all_of(widget.findChildren<QWidget*>(), [this](const QWidget* inside) {
    return !inside->isVisible() || painted_.contains(inside);
  });
}

}  // namespace qvn::bench
