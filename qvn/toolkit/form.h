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
/// back. Caption and place may be read and written while it is loaded, and fail with "invalid call" otherwise. A form
/// that is destroyed is unloaded first.
class Form {
 public:
  virtual ~Form() = default;
  Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  virtual std::string_view Name() const = 0;
  virtual std::string Caption() const = 0;
  virtual void Caption(std::string_view caption) = 0;

  /// Position on the screen and outer size, window frame included, in twips.
  virtual Place place() const = 0;
  virtual void place(Place place) = 0;

  /// Puts the form into the list of loaded forms, with its stored layout, and raises Load. Nothing if it is loaded.
  virtual void load() = 0;
  /// Raises Unload and takes the form from the list; a modal showing returns. Nothing if it is not loaded.
  virtual void unload() = 0;
  virtual bool loaded() const = 0;
  /// Draws what was written since the form was loaded.
  virtual void refresh() = 0;
  /// Shows the form, loading it first if it is not, and returns when it hides or unloads. Meanwhile its own widgets may
  /// hold the focus and no panel's; afterwards the holder from before has it again, without events on either way.
  /// Closing by the window's frame unloads it. "invalid call" on a form that is shown already.
  virtual void showModal() = 0;
  /// Takes the form from the screen and leaves it loaded; a modal showing returns.
  virtual void hide() = 0;

  /// The surface of the form's widgets, anew at each load. "invalid call" while the form is not loaded.
  virtual Surface& surface() const = 0;

  /// Failures of their handlers pass to the caller of load() and unload().
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
