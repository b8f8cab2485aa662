// What a panel tells the host that it is placed in.
#pragma once

#include <string_view>

#include "qvn/shared/failure.h"

namespace qvn::toolkit {

class Surface;
class Widget;

/// The host's side of a panel, implemented by the host. It must outlive the panels placed in it.
class Container {
 public:
  virtual ~Container() = default;

  /// A public property of the panel has changed. The name's case may differ from the property's own. What it throws
  /// passes to whoever made the change. It may drop the panel.
  virtual void PropertyChanged(Surface& panel, std::string_view name) = 0;

  /// A handler that the operator's hand started has failed: its panel, widget and event ("KeyPress", "Change", …). The
  /// operator's keys go on afterwards. Must not throw.
  virtual void handlerFailed(Surface& panel, Widget& widget, std::string_view event,
                             const Failure& failure) noexcept = 0;
};

}  // namespace qvn::toolkit
