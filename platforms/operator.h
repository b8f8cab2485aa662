// The hands of an operator, on any platform. The eyes are the widgets themselves: they read back what they show.
#pragma once

#include <cstdint>
#include <string_view>

#include "qvn/toolkit/widget.h"

namespace qvn {

/// Drives a platform's widgets as a person would. A handler that fails on the way goes to the panel's container with
/// panel, widget and event, and the operator goes on; a request that cannot be carried out fails with "invalid call",
/// as does every one on a widget of another platform.
///
/// What a handler throws that is no Failure is the host's own: it passes to the operator's caller. Where the platform's
/// event loop stands between the two, it must not leave the loop as an exception.
class Operator {
 public:
  virtual ~Operator() = default;

  /// Moves the focus there as with the mouse. "invalid call" if the widget cannot take it.
  virtual void focus(toolkit::Widget& widget) = 0;
  /// The focus leaves the panels for something else on the host's screen, unless LostFocus takes it back.
  virtual void leave() = 0;
  /// Types into what has the focus, key by key. Characters stand for themselves, "{{" for a brace; {Enter} {Tab}
  /// {ShiftTab} {Backspace} {Delete} {Escape} {Left} {Right} {Up} {Down} {Home} {End} for the keys of those names.
  /// "invalid call" if nothing has the focus, or no longer has it, or on a key of another name; the keys before it were
  /// typed.
  virtual void type(std::string_view keys) = 0;
  /// Sets the selection of the focused field, in characters. "invalid call" if no field has the focus.
  virtual void caret(std::int32_t start, std::int32_t length) = 0;
  /// Pastes into the focused field, character by character past KeyPress, up to the first that is refused or to a
  /// handler that takes the focus from the field. "invalid call" if no field has the focus.
  virtual void paste(std::string_view text) = 0;
  /// Clicks a button or a check box; one that is disabled or hidden, by itself, its frame or its panel, does nothing.
  /// The focus moves there first, and nothing is clicked if a handler of the move takes it away again. "invalid call"
  /// on a widget of another kind.
  virtual void click(toolkit::Widget& widget) = 0;
  /// Picks an item of a closed list, by its place or its text. "invalid call", with nothing done, if it has no such
  /// item or cannot take the focus. The focus moves there first, and nothing is picked if a handler of the move takes
  /// it away again or removes the item.
  virtual void choose(toolkit::ComboBox& list, std::int32_t index) = 0;
  virtual void choose(toolkit::ComboBox& list, std::string_view item) = 0;
};

/// Hears what happens on a platform, for a journal or a test. All calls come after the thing has happened.
class Watcher {
 public:
  virtual ~Watcher() = default;
  virtual void lostFocus(const toolkit::Widget& widget) = 0;
  virtual void gotFocus(const toolkit::Widget& widget) = 0;
  virtual void beeped() = 0;
};

}  // namespace qvn
