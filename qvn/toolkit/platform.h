// All that the library asks of its surroundings, in one place.
#pragma once

#include <memory>
#include <string>

#include "qvn/shared/date.h"
#include "qvn/shared/locale.h"
#include "qvn/toolkit/database.h"
#include "qvn/toolkit/form.h"
#include "qvn/toolkit/surface.h"

namespace qvn::toolkit {

/// Tells today's date. The only source of it in the library.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual Date today() const = 0;
};

/// Size of the screen, in twips.
struct ScreenSize {
  std::int32_t width = 0;
  std::int32_t height = 0;
};

/// What a platform can do beyond the plain fields of a panel.
struct Capabilities {
  /// Forms can be made and shown, and list views, grids and data controls laid out. Without, making one fails with
  /// "invalid call".
  bool modalForms = false;
};

/// One toolkit. Made by the host, which owns it; it must outlive every panel made on it and the library's use of it.
class Platform {
 public:
  virtual ~Platform() = default;

  virtual std::string_view name() const = 0;
  virtual Capabilities capabilities() const = 0;

  /// A new panel's widgets, as laid out, under the host's name of the panel. Layout and container must live as long as
  /// the surface. Fails with "invalid call", naming panel and widget, on a widget that the platform does not have, on a
  /// frame or a grid's data control that no row above has made, on a closed list that starts with a text that is not
  /// among its items, and on a grid's number format that names no pattern; with "type mismatch" on a date control that
  /// starts with a text that is none.
  virtual std::unique_ptr<Surface> makeSurface(const PanelLayout& layout, Container& container, std::string name) = 0;

  /// A form, not loaded, as laid out. What its handlers fail with under the operator's hand goes to the container.
  /// Layout and container must live as long as the form. "invalid call" on a platform without forms.
  virtual std::unique_ptr<Form> makeForm(const FormLayout& layout, Container& container) = 0;

  /// The widget that holds the focus among all panels and forms, or null.
  virtual Widget* focused() const = 0;

  /// The platform's own, for as long as it lives.
  virtual const Locale& locale() const = 0;
  virtual const Clock& clock() const = 0;
  virtual ScreenSize screen() const = 0;
  virtual void beep() = 0;
  virtual const Forms& forms() const = 0;
  virtual Drivers& drivers() = 0;
};

}  // namespace qvn::toolkit
