// Qt's key events as the keys that an operator presses.
#pragma once

#include <QKeyEvent>
#include <vector>

#include "platforms/memory/keys.h"

namespace qvn::qt {

/// The keys that the event stands for: one of those with a name, or the characters that it types; none for what is left
/// to Qt, shortcuts among it. The keypad's decimal key types a comma, whatever the keyboard's layout.
std::vector<memory::Key> keysOf(const QKeyEvent& event);

/// Whether the event is a press of Tab or Shift+Tab, which Qt would take before the widget.
bool isTab(const QEvent& event);

}  // namespace qvn::qt
