// What an operator's hand starts, and where its failures go.
#pragma once

#include <string_view>

#include "platforms/memory/surface.h"
#include "qvn/shared/failure.h"

namespace qvn::memory {

inline Surface& surfaceOf(const toolkit::Widget& widget) { return static_cast<Surface&>(widget.owner()); }

/// Does what the operator's hand started; a failure goes to the container as that of the event.
template <class Start>
void byHand(toolkit::Widget& widget, std::string_view event, Start start) {
  try {
    start();
  } catch (const Failure& failure) {
    surfaceOf(widget).report(widget, event, failure);
  }
}

}  // namespace qvn::memory
