#include "tests/ufficio/pressed_keys.h"

#include <QGuiApplication>
#include <QKeySequence>
#include <QTest>
#include <QTimer>
#include <QWindow>

namespace qvn::test {

QObject* PressedKeys::create(const QString& /*name*/, const QString& keys) {
  keys_ = keys.split(' ');
  auto* hand = new QTimer;
  connect(hand, &QTimer::timeout, this, &PressedKeys::pressNext);
  hand->start(0);
  return hand;
}

void PressedKeys::pressNext() {
  QWindow* const window = QGuiApplication::focusWindow();
  if (window == nullptr || keys_.isEmpty()) return;
  const QKeyCombination key = QKeySequence::fromString(keys_.takeFirst())[0];
  QTest::keyClick(window, key.key(), key.keyboardModifiers());
}

}  // namespace qvn::test
