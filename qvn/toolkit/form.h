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
/// back.
class Form {
 public:
  virtual ~Form() = default;

  virtual std::string_view Name() const = 0;
  virtual std::string Caption() const = 0;
  virtual void Caption(std::string_view caption) = 0;

  /// Position on the screen and outer size, in twips.
  virtual Place place() const = 0;
  virtual void place(Place place) = 0;

  /// Puts the form into the list of loaded forms, with its stored layout, and raises Load. Nothing if it is loaded.
  virtual void load() = 0;
  /// Raises Unload and takes the form from the list; a modal showing returns. Nothing if it is not loaded.
  virtual void unload() = 0;
  virtual bool loaded() const = 0;
  /// Draws what was written since the form was loaded.
  virtual void refresh() = 0;
  /// Shows the form and returns when it hides or unloads. Closing by the window's frame unloads it. "invalid call" on a
  /// form that is shown already.
  virtual void showModal() = 0;
  /// Takes the form from the screen and leaves it loaded; a modal showing returns.
  virtual void hide() = 0;

  /// The surface of the form's widgets, anew at each load. "invalid call" while the form is not loaded.
  virtual Surface& surface() const = 0;

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
