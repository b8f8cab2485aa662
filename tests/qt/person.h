// A person before the screen: events as Qt delivers them, to whatever Qt says has the focus.
#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QString>
#include <gtest/gtest.h>

namespace qvn::test {

inline void press(int key, const QString& text = {}, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QWidget* focus = QApplication::focusWidget();
  ASSERT_NE(focus, nullptr) << "no widget has the focus";
  QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
  QApplication::sendEvent(focus, &down);
  if (focus = QApplication::focusWidget(); focus == nullptr) return;
  QKeyEvent up(QEvent::KeyRelease, key, modifiers, text);
  QApplication::sendEvent(focus, &up);
}

/// Characters, each by a key of its own.
inline void write(const QString& text) {
  for (const QChar c : text) press(c.toUpper().unicode(), c);
}

inline void clickAt(QWidget& widget, QPointF where, Qt::MouseButton button = Qt::LeftButton) {
  if (button == Qt::LeftButton && (widget.focusPolicy() & Qt::ClickFocus) != 0) widget.setFocus(Qt::MouseFocusReason);
  const QPointF global = widget.mapToGlobal(where);
  QMouseEvent down(QEvent::MouseButtonPress, where, global, button, button, Qt::NoModifier);
  QApplication::sendEvent(&widget, &down);
  QMouseEvent up(QEvent::MouseButtonRelease, where, global, button, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(&widget, &up);
}

inline void click(QWidget& widget) { clickAt(widget, QPointF(widget.width() / 2.0, widget.height() / 2.0)); }

}  // namespace qvn::test
