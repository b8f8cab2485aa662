// Qt's key events as keys.
#include "platforms/qt/key_events.h"

#include <gtest/gtest.h>
#include <string>

#include "platforms/memory/utf8.h"
#include "platforms/qt/application.h"

namespace qvn::test {
namespace {

/// With an application, as Qt makes the keyboard that an event comes from, and keeps while it runs.
class KeyEvents : public testing::Test {
 protected:
  KeyEvents() { qt::ensureApplication(qt::Display::Offscreen); }
};

std::string typed(int key, const QString& text, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  std::string characters;
  for (const memory::Key& one : qt::keysOf(QKeyEvent(QEvent::KeyPress, key, modifiers, text))) {
    memory::utf8::append(characters, one.character);
  }
  return characters;
}

memory::KeyName named(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  const auto keys = qt::keysOf(QKeyEvent(QEvent::KeyPress, key, modifiers));
  EXPECT_EQ(keys.size(), 1U);
  return keys.empty() ? memory::KeyName::Character : keys.front().name;
}

TEST_F(KeyEvents, TheKeypadsDecimalKeyTypesACommaOnEveryLayout) {
  EXPECT_EQ(typed(Qt::Key_Period, ".", Qt::KeypadModifier), ",");
  EXPECT_EQ(typed(Qt::Key_Comma, ",", Qt::KeypadModifier), ",");
  EXPECT_EQ(typed(Qt::Key_Period, "."), ".");
  EXPECT_EQ(typed(Qt::Key_7, "7", Qt::KeypadModifier), "7");
}

TEST_F(KeyEvents, ComposedAndThirdLevelCharactersAreTyped) {
  EXPECT_EQ(typed(Qt::Key_Egrave, "è"), "è");
  EXPECT_EQ(typed(Qt::Key_E, "€", Qt::ControlModifier | Qt::AltModifier), "€");
  EXPECT_EQ(typed(0, QString::fromUcs4(U"\U0001F600")), "😀");
}

TEST_F(KeyEvents, WhatTypesNoCharacterThatShowsIsNoKey) {
  EXPECT_EQ(typed(Qt::Key_unknown, "\x01"), "");
  EXPECT_EQ(typed(Qt::Key_Insert, "\x7f"), "");
  EXPECT_EQ(typed(Qt::Key_Dead_Grave, ""), "");
}

TEST_F(KeyEvents, ShortcutsAreNoKeys) {
  EXPECT_EQ(typed(Qt::Key_S, "\x13", Qt::ControlModifier), "");
  EXPECT_EQ(typed(Qt::Key_F, "f", Qt::AltModifier), "");
  EXPECT_EQ(typed(Qt::Key_Period, ".", Qt::KeypadModifier | Qt::ControlModifier), "");
  EXPECT_TRUE(qt::keysOf(QKeyEvent(QEvent::KeyPress, Qt::Key_Delete, Qt::ShiftModifier)).empty());
  EXPECT_TRUE(qt::keysOf(QKeyEvent(QEvent::KeyPress, Qt::Key_Shift, Qt::ShiftModifier)).empty());
}

TEST_F(KeyEvents, NamedKeys) {
  EXPECT_EQ(named(Qt::Key_Return), memory::KeyName::Enter);
  EXPECT_EQ(named(Qt::Key_Enter, Qt::KeypadModifier), memory::KeyName::Enter);
  EXPECT_EQ(named(Qt::Key_Tab), memory::KeyName::Tab);
  EXPECT_EQ(named(Qt::Key_Backtab, Qt::ShiftModifier), memory::KeyName::ShiftTab);
  EXPECT_EQ(named(Qt::Key_Tab, Qt::ShiftModifier), memory::KeyName::ShiftTab);
  EXPECT_EQ(named(Qt::Key_Backspace, Qt::ShiftModifier), memory::KeyName::Backspace);
  EXPECT_EQ(named(Qt::Key_Escape), memory::KeyName::Escape);
  EXPECT_EQ(named(Qt::Key_Delete, Qt::KeypadModifier), memory::KeyName::Delete);
}

}  // namespace
}  // namespace qvn::test
