// The hands of an operator, on any platform. The eyes are the widgets themselves, which read back what they show, and
// pictures of the forms that stood only while a handler ran.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "qvn/shared/failure.h"
#include "qvn/toolkit/widget.h"

namespace qvn {

/// One thing that an operator does at a form. Rows and columns are those of the form's first list view.
struct Act {
  enum class Kind : std::uint8_t { Row, Double, Column, Key, Click, Close, Look };

  /// Selects a row, from 0 in the order shown.
  static Act row(std::int32_t row) { return {.kind = Kind::Row, .number = row}; }
  /// Double-clicks a row, which selects it first.
  static Act doubleClick(std::int32_t row) { return {.kind = Kind::Double, .number = row}; }
  /// Clicks a column's head, from 1.
  static Act column(std::int32_t column) { return {.kind = Kind::Column, .number = column}; }
  /// Presses one key, named as Operator::type() names it.
  static Act key(std::string key) { return {.kind = Kind::Key, .text = std::move(key)}; }
  /// Clicks the button or check box of that name.
  static Act click(std::string widget) { return {.kind = Kind::Click, .text = std::move(widget)}; }
  /// Closes the window by its frame.
  static Act close() { return {.kind = Kind::Close}; }
  /// Takes a picture more of the form.
  static Act look() { return {.kind = Kind::Look}; }

  Kind kind = Kind::Look;
  std::int32_t number = 0;
  std::string text = {};
};

/// What an operator saw of a form: its first list view, or else its first grid.
struct FormPicture {
  enum class Shows : std::uint8_t { Nothing, List, Grid };
  struct Column {
    std::string caption;
    std::int32_t width = 0;  ///< of a list, in twips
    std::string field = {};  ///< of a grid, as its format
    std::string format = {};
  };

  std::string form;
  std::string caption;
  Shows shows = Shows::Nothing;
  std::vector<Column> columns = {};
  std::vector<std::string> cells = {};  ///< row after row in the order shown, each as long as there are columns
  std::int32_t selected = -1;           ///< the selected row of a list, -1 for none

  std::size_t rowCount() const { return columns.empty() ? 0 : cells.size() / columns.size(); }
  const std::string& cell(std::size_t row, std::size_t column) const { return cells[row * columns.size() + column]; }
};

/// An act that could not be done, and why: "subscript out of range" for a row or column that is not there, "no such
/// member" for a widget, "invalid call" for a key of no name or more than one, on a form without a list view, and on
/// what cannot be clicked.
struct FailedAct {
  std::string form;
  Act act;
  Failure failure;
};

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

  /// Lays down what the operator will do at the next showing of the form of that name, exact in case; several are used
  /// up in the order laid down, one a showing. A form for which nothing was laid down, or that still stands when its
  /// acts are used up, is closed by its frame; acts that are left when it has gone are dropped. What its handlers fail
  /// with goes to the form's container, and the acts go on. An act that cannot be done ends them, and the form is
  /// closed by its frame.
  virtual void layDown(std::string_view form, std::vector<Act> acts) = 0;
  /// The acts that could not be done since it was last asked, oldest first.
  virtual std::vector<FailedAct> failedActs() = 0;
  /// Whether pictures are taken, from now on; to begin with they are not.
  virtual void takePictures(bool take) = 0;
  /// The pictures taken since it was last asked: one of each form as it first stood, and one for each look.
  virtual std::vector<FormPicture> shown() = 0;
};

/// Hears what happens on a platform, for a journal or a test. All calls come after the thing has happened, except where
/// they say otherwise.
class Watcher {
 public:
  virtual ~Watcher() = default;
  /// Of the widgets of panels. What has the focus within a form is not told.
  virtual void lostFocus(const toolkit::Widget& widget) = 0;
  virtual void gotFocus(const toolkit::Widget& widget) = 0;
  virtual void beeped() = 0;

  /// What happens to a form, by its name: it was loaded, its Load yet to run; it stands modally on the screen; it was
  /// hidden; it was unloaded, its Unload having run. One that is unloaded while it is shown is not told hidden. The
  /// last two are told of a form that was shown before the focus has left it for its holder from before, and so ahead
  /// of the lostFocus() of one that can no longer hold it.
  virtual void formLoaded(std::string_view /*form*/) {}
  virtual void formShown(std::string_view /*form*/) {}
  virtual void formHidden(std::string_view /*form*/) {}
  virtual void formUnloaded(std::string_view /*form*/) {}
  /// A data control on the form is about to run its query on a connection of its own, which is open.
  virtual void viewerRuns(std::string_view /*form*/, std::string_view /*sql*/) {}
};

}  // namespace qvn
