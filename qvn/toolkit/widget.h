// The widgets that a panel is made of, as the library asks them of a platform.
//
// Texts are UTF-8, and bytes of a written text that are none become U+FFFD; lengths and positions count characters.
// Colours are 24-bit numbers with red in the low byte. Places are in twips (1440 to the inch), relative to the frame
// that surrounds the widget. A platform owns its widgets and they live as long as their surface, which a handler may
// drop (surface.h); handlers are set once by the panel that wires the widget, and may be empty.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "qvn/shared/variant.h"
#include "qvn/toolkit/layout.h"

namespace qvn::toolkit {

class Frame;
class Surface;

/// What every widget has.
class Widget {
 public:
  virtual ~Widget() = default;
  Widget() = default;
  Widget(const Widget&) = delete;
  Widget& operator=(const Widget&) = delete;

  /// The row of the panel's layout that the widget was made from.
  virtual const WidgetLayout& layout() const = 0;
  /// The surface that the widget lies on, across all frames.
  virtual Surface& owner() const = 0;
  /// The frame that surrounds the widget, or null.
  virtual Frame* frame() const = 0;

  std::string_view Name() const { return layout().name; }
  WidgetKind Kind() const { return layout().kind; }
  std::int16_t TabIndex() const { return layout().tabIndex; }
  std::string_view ToolTip() const { return layout().tooltip; }

  virtual Place place() const = 0;
  virtual void place(Place place) = 0;

  /// The widget's own flag, whatever its frame or panel says. Switching off the holder of the focus, by itself or by
  /// its frame, takes the focus from it at once, with LostFocus, and nothing gains it.
  virtual bool Enabled() const = 0;
  virtual void Enabled(bool enabled) = 0;
  virtual bool Visible() const = 0;
  virtual void Visible(bool visible) = 0;

  /// The layout's to begin with; where it tells no back, white for text boxes, closed lists, date fields, list views
  /// and grids, the gray of faces for all others. Switching a widget off changes neither.
  virtual std::uint32_t BackColor() const = 0;
  virtual void BackColor(std::uint32_t colour) = 0;
  virtual std::uint32_t ForeColor() const = 0;
  virtual void ForeColor(std::uint32_t colour) = 0;

  /// Gives the widget the focus: LostFocus of the old holder, then GotFocus of this one, both before it returns; does
  /// nothing if it holds it. Fails with "invalid call", naming the widget, if it is of a kind that takes no focus, or
  /// disabled or hidden by itself, its frame or its panel. A failure of LostFocus passes on after GotFocus has run.
  virtual void SetFocus() = 0;
  virtual bool hasFocus() const = 0;
};

/// A widget with a caret in a text: text box and date field.
class EditableText : public Widget {
 public:
  virtual std::string Text() const = 0;
  /// Writing the text that is there does nothing. Any other write is in place before Change is raised, and Change has
  /// run to its end when the write returns, the caret at the start with nothing selected unless Change moved it. A
  /// failure of Change passes to the caller.
  virtual void Text(std::string_view text) = 0;

  /// Start and length of the selection in characters; values beyond the text are cut to it, negative ones to 0. Writing
  /// the start leaves nothing selected.
  virtual std::int32_t SelStart() const = 0;
  virtual void SelStart(std::int32_t start) = 0;
  virtual std::int32_t SelLength() const = 0;
  virtual void SelLength(std::int32_t length) = 0;

  std::function<void()> Change;
  std::function<void()> GotFocus;
  std::function<void()> LostFocus;
  /// Raised for each character key, Backspace, Enter and Escape before the widget takes it: 0 drops the key, any other
  /// value is taken in its place.
  std::function<void(std::int16_t& KeyAscii)> KeyPress;
};

/// A single-line input field.
class TextBox : public EditableText {};

/// A masked field of ten characters, "##/##/####" while it is blank. Text takes a text of the mask, with a digit or "#"
/// in each place; any other fails with "type mismatch", quoting it, and changes nothing.
class DateControl : public EditableText {
 public:
  /// Null while blank; the text "dd/mm/yyyy" while it shows a complete valid date; otherwise what is no date.
  virtual Variant Value() const = 0;
  /// Takes a text in the form "dd/mm/yyyy" with all its digits, whether or not the calendar has the day, or Null, which
  /// blanks the field; anything else, other kinds of value among them, fails with "type mismatch". Raises Change if the
  /// shown text changes.
  virtual void Value(const Variant& value) = 0;
};

/// A text that only shows, without a background of its own.
class Label : public Widget {
 public:
  virtual std::string Caption() const = 0;
  /// As a write of a text: nothing if it is there already, otherwise Change runs inside the write.
  virtual void Caption(std::string_view caption) = 0;

  std::function<void()> Change;
};

/// A closed list: the operator picks one of its items.
class ComboBox : public Widget {
 public:
  /// Puts an item at the end of the list.
  virtual void AddItem(std::string_view item) = 0;
  /// Removes an item; removing the current one leaves none and raises nothing. "subscript out of range" if none is at
  /// the index.
  virtual void RemoveItem(std::int32_t index) = 0;
  /// Removes all items and raises nothing.
  virtual void Clear() = 0;
  virtual std::int32_t ListCount() const = 0;
  /// The item's text. "subscript out of range" if none is at the index.
  virtual std::string List(std::int32_t index) const = 0;

  /// The index of the current item, -1 for none.
  virtual std::int32_t ListIndex() const = 0;
  /// Makes the item current (-1: none) and raises Click, always. "subscript out of range" if none is at the index.
  virtual void ListIndex(std::int32_t index) = 0;

  /// The current item's text, empty for none.
  virtual std::string Text() const = 0;
  /// Makes the first item with that text, exact in case, current and raises Click; does nothing if an item with it is
  /// current, or if none is and the text is empty and no item's. "invalid call" if no item has the text otherwise.
  virtual void Text(std::string_view text) = 0;

  std::function<void()> Click;
  std::function<void()> GotFocus;
  std::function<void()> LostFocus;
};

class CheckBox : public Widget {
 public:
  virtual std::string Caption() const = 0;
  virtual std::int16_t Value() const = 0;
  /// 0 or 1. A changed value raises Click, an unchanged one nothing. Other values fail with "invalid call".
  virtual void Value(std::int16_t value) = 0;

  std::function<void()> Click;
};

/// A box around a group of widgets; its children answer neither keys nor mouse while it is disabled or hidden.
class Frame : public Widget {
 public:
  virtual std::string Caption() const = 0;
  virtual void Caption(std::string_view caption) = 0;
};

class CommandButton : public Widget {
 public:
  virtual std::string Caption() const = 0;

  std::function<void()> Click;
};

}  // namespace qvn::toolkit
