// Where the widgets in memory are shown, by a platform that puts them on a screen.
#pragma once

#include "qvn/toolkit/widget.h"

namespace qvn::memory {

class Form;
class Surface;

/// Hears of all that a screen must show, as soon as it stands in memory and before any handler runs. It looks at what
/// it hears of when it comes to show it, and calls nothing of the library from inside.
class Stage {
 public:
  virtual ~Stage() = default;

  /// The widgets of a panel or of a form stand.
  virtual void made(Surface& surface) = 0;
  /// They are gone for the screen; their memory may stand on for the handlers in progress.
  virtual void dropped(const Surface& surface) noexcept = 0;
  /// Something of a widget, or a flag of a surface, has another value.
  virtual void changed(const toolkit::Widget& widget) = 0;
  virtual void changed(const Surface& surface) = 0;
  virtual void focusMoved() = 0;

  /// A form's caption or place has another value; it comes onto the screen, before all that stands there; it leaves the
  /// screen.
  virtual void changed(const Form& form) = 0;
  virtual void shown(Form& form) = 0;
  virtual void hidden(const Form& form) = 0;
  /// What was written is to be seen at once.
  virtual void refresh(const Form& form) = 0;
  /// A form for which nothing was laid down stands: waits until its showing is over. Returns with the showing not over
  /// where nobody sits at the screen.
  virtual void waitAt(const Form& form, const bool& over) = 0;
};

}  // namespace qvn::memory
