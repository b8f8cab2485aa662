// Forms: the windows of the library itself.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "qvn/toolkit/layout.h"

namespace qvn::toolkit {

class Surface;

/// A window of the library. Made unloaded by a platform and owned by who had it made; loading brings the stored layout
/// back, whatever became of the form before. A form that is destroyed is unloaded first. It may be hidden, unloaded or
/// destroyed inside any handler, its own and its widgets' among them, which finish on what stood before.
class Form {
 public:
  virtual ~Form() = default;
  Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  /// The name of its inside, as laid out; the name of its surface, too.
  virtual std::string_view Name() const = 0;
  /// Caption and place may be read and written while the form is loaded, and fail with "invalid call" otherwise.
  virtual std::string Caption() const = 0;
  virtual void Caption(std::string_view caption) = 0;

  /// Position on the screen and outer size, window frame included, in twips. The frame goes around the inside as laid
  /// out; writing the size does not move the widgets.
  virtual Place place() const = 0;
  virtual void place(Place place) = 0;

  /// Puts the form into the list of loaded forms, behind the others, with its stored layout, and raises Load. Nothing
  /// if it is loaded. A failure of Load leaves it loaded; a layout that cannot be made fails as makeSurface() does, and
  /// leaves it unloaded.
  virtual void load() = 0;
  /// Raises Unload, while the widgets still stand, and takes the form from the list and the screen; a modal showing
  /// returns. Nothing if it is not loaded, or is being unloaded. A failure of Unload does not keep it loaded.
  virtual void unload() = 0;
  virtual bool loaded() const = 0;
  /// Draws what was written since the form was loaded; nothing if it is not.
  virtual void refresh() = 0;
  /// Shows the form, loading it first if it is not, and returns when it hides or unloads. The first of its widgets in
  /// tab order that can takes the focus. Meanwhile its own widgets may hold it and no panel's, nor those of a form
  /// beneath it, which answer neither keys nor mouse; afterwards the holder from before has it again, without events on
  /// either way, or loses it, with LostFocus, if it was switched off meanwhile. The form's widgets leave it without
  /// events.
  ///
  /// Enter, unless a button has the focus, presses the default button, and Escape the cancel button, where there is one
  /// that is neither disabled nor hidden; the focus does not move. The widget with the focus has its KeyPress first,
  /// which may drop the key, and nothing is pressed on a form that it has hidden or unloaded.
  ///
  /// Closing by the window's frame unloads the form. A failure of its Unload then goes to the container, in the name of
  /// its first widget. "invalid call" on a form that is shown already, is being unloaded, or unloads itself in Load.
  virtual void showModal() = 0;
  /// Takes the form from the screen and leaves it loaded; a modal showing returns. Nothing if it is not shown.
  virtual void hide() = 0;

  /// The surface of the form's widgets, anew at each load; it is visible while the form is shown. "invalid call" while
  /// the form is not loaded.
  virtual Surface& surface() const = 0;

  /// Failures of their handlers pass to the caller of load(), showModal() or unload(), who stands on a form that may
  /// have been destroyed.
  std::function<void()> Load;
  std::function<void()> Unload;
};

/// The forms that are loaded now, in load order.
class Forms {
 public:
  virtual ~Forms() = default;
  virtual std::int32_t count() const = 0;
  /// "subscript out of range" if there is none at the index, from 0.
  virtual Form& at(std::int32_t index) const = 0;
};

}  // namespace qvn::toolkit
