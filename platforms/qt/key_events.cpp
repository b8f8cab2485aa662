#include "platforms/qt/key_events.h"

#include <algorithm>
#include <array>
#include <optional>

namespace qvn::qt {

namespace {

using memory::Key;
using memory::KeyName;

struct NamedKey {
  int code;
  Key key;
};

constexpr std::array kNamedKeys{NamedKey{Qt::Key_Return, {KeyName::Enter, 13}},
                                NamedKey{Qt::Key_Enter, {KeyName::Enter, 13}},
                                NamedKey{Qt::Key_Tab, {KeyName::Tab, 0}},
                                NamedKey{Qt::Key_Backtab, {KeyName::ShiftTab, 0}},
                                NamedKey{Qt::Key_Backspace, {KeyName::Backspace, 8}},
                                NamedKey{Qt::Key_Delete, {KeyName::Delete, 0}},
                                NamedKey{Qt::Key_Escape, {KeyName::Escape, 27}},
                                NamedKey{Qt::Key_Left, {KeyName::Left, 0}},
                                NamedKey{Qt::Key_Right, {KeyName::Right, 0}},
                                NamedKey{Qt::Key_Up, {KeyName::Up, 0}},
                                NamedKey{Qt::Key_Down, {KeyName::Down, 0}},
                                NamedKey{Qt::Key_Home, {KeyName::Home, 0}},
                                NamedKey{Qt::Key_End, {KeyName::End, 0}}};

/// AltGr comes as Control with Alt and types; either alone does not.
bool types(const QKeyEvent& event) {
  const Qt::KeyboardModifiers held = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  return held == Qt::NoModifier || held == (Qt::ControlModifier | Qt::AltModifier);
}

bool isDecimalKey(const QKeyEvent& event) {
  if (!types(event) || !event.modifiers().testFlag(Qt::KeypadModifier)) return false;
  return event.key() == Qt::Key_Period || event.key() == Qt::Key_Comma;
}

/// Whether the key, where it is one with a name, does something else together with another.
bool isCombined(const QKeyEvent& event) {
  const Qt::KeyboardModifiers alone = event.modifiers() & ~Qt::KeypadModifier;
  const bool onlyShift = alone == Qt::ShiftModifier;
  switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Backspace:
      return alone != Qt::NoModifier && !onlyShift;
    default:
      return alone != Qt::NoModifier;
  }
}

}  // namespace

std::vector<Key> keysOf(const QKeyEvent& event) {
  if (isDecimalKey(event)) return {Key{.character = U','}};
  if (const auto* const named = std::ranges::find(kNamedKeys, event.key(), &NamedKey::code);
      named != kNamedKeys.end()) {
    if (isCombined(event)) return {};
    const bool backwards = named->key.name == KeyName::Tab && event.modifiers().testFlag(Qt::ShiftModifier);
    return {backwards ? Key{.name = KeyName::ShiftTab} : named->key};
  }
  if (!types(event)) return {};
  std::vector<Key> keys;
  const auto characters = event.text().toUcs4();
  keys.reserve(static_cast<std::size_t>(characters.size()));
  for (const char32_t character : characters) {
    if (QChar::isPrint(character)) keys.push_back({.character = character});
  }
  return keys;
}

bool isTab(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  const int key = static_cast<const QKeyEvent&>(event).key();
  return key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

}  // namespace qvn::qt
