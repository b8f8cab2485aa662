// How messages and the journal name a widget.
#pragma once

#include <string>

#include "qvn/toolkit/surface.h"

namespace qvn::play {

/// "panel.widget", by the session's name of the panel.
inline std::string placeOf(const toolkit::Surface& panel, const toolkit::Widget& widget) {
  return std::string(panel.name()).append(".").append(widget.Name());
}
inline std::string placeOf(const toolkit::Widget& widget) { return placeOf(widget.owner(), widget); }

}  // namespace qvn::play
