// A person before the screen: events as Qt delivers them, to whatever Qt says has the focus.
#pragma once

#include <QApplication>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
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

/// Gives the focus to what is clicked, or to the first around it that takes it, as Qt does before it tells of the
/// click.
inline void focusByMouse(QWidget& clicked) {
  for (QWidget* widget = &clicked; widget != nullptr; widget = widget->isWindow() ? nullptr : widget->parentWidget()) {
    if ((widget->focusPolicy() & Qt::ClickFocus) == 0 || !widget->isEnabled()) continue;
    return widget->setFocus(Qt::MouseFocusReason);
  }
}

inline void clickAt(QWidget& widget, QPointF where, Qt::MouseButton button = Qt::LeftButton) {
  if (button == Qt::LeftButton) focusByMouse(widget);
  const QPointF global = widget.mapToGlobal(where);
  QMouseEvent down(QEvent::MouseButtonPress, where, global, button, button, Qt::NoModifier);
  QApplication::sendEvent(&widget, &down);
  QMouseEvent up(QEvent::MouseButtonRelease, where, global, button, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(&widget, &up);
}

/// Presses the button at one place, moves the mouse to another, and lets go.
inline void drag(QWidget& widget, QPointF from, QPointF to) {
  focusByMouse(widget);
  QMouseEvent down(QEvent::MouseButtonPress, from, widget.mapToGlobal(from), Qt::LeftButton, Qt::LeftButton,
                   Qt::NoModifier);
  QApplication::sendEvent(&widget, &down);
  QMouseEvent move(QEvent::MouseMove, to, widget.mapToGlobal(to), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&widget, &move);
  QMouseEvent up(QEvent::MouseButtonRelease, to, widget.mapToGlobal(to), Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(&widget, &up);
}

inline void doubleClickAt(QWidget& widget, QPointF where) {
  clickAt(widget, where);
  QMouseEvent twice(QEvent::MouseButtonDblClick, where, widget.mapToGlobal(where), Qt::LeftButton, Qt::LeftButton,
                    Qt::NoModifier);
  QApplication::sendEvent(&widget, &twice);
  QMouseEvent up(QEvent::MouseButtonRelease, where, widget.mapToGlobal(where), Qt::LeftButton, Qt::NoButton,
                 Qt::NoModifier);
  QApplication::sendEvent(&widget, &up);
}

/// Lets go of a text, dragged from elsewhere, over a place of the widget. Whether the widget takes it.
inline bool drop(QWidget& widget, const QString& text, QPointF where) {
  QMimeData data;
  data.setText(text);
  QDragEnterEvent enter(where.toPoint(), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&widget, &enter);
  if (!enter.isAccepted()) return false;
  QDropEvent dropped(where, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&widget, &dropped);
  return dropped.isAccepted() && dropped.dropAction() == Qt::CopyAction;
}

inline void click(QWidget& widget) { clickAt(widget, QPointF(widget.width() / 2.0, widget.height() / 2.0)); }

}  // namespace qvn::test
