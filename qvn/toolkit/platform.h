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

/// What a platform can do beyond the fields of a panel; what it lacks fails with "invalid call".
struct Capabilities {
  bool dateTyping = false;  ///< digits can be typed over the mask of a date field
  bool modalForms = false;  ///< forms can be made and shown
};

/// One toolkit. Made by the host, which owns it; it must outlive every panel made on it and the library's use of it.
class Platform {
 public:
  virtual ~Platform() = default;

  virtual std::string_view name() const = 0;
  virtual Capabilities capabilities() const = 0;

  /// A new panel's widgets, as laid out. The layout must live as long as the surface; the container too.
  virtual std::unique_ptr<Surface> makeSurface(const PanelLayout& layout, Container& container, std::string name) = 0;

  /// A form, not loaded, as laid out. The layout must live as long as the form. "invalid call" on a platform without.
  virtual std::unique_ptr<Form> makeForm(const FormLayout& layout) = 0;

  /// The widget that holds the focus among all panels, or null.
  virtual Widget* focused() const = 0;

  virtual const Locale& locale() const = 0;
  virtual const Clock& clock() const = 0;
  virtual ScreenSize screen() const = 0;
  virtual void beep() = 0;
  virtual const Forms& forms() const = 0;
  virtual Drivers& drivers() = 0;
};

}  // namespace qvn::toolkit
