// The Qt application that the widgets live in.
#pragma once

#include <cstdint>

namespace qvn::qt {

enum class Display : std::uint8_t {
  Desktop,    ///< the one that the user's session offers
  Offscreen,  ///< Qt's own, which nobody sees
};

/// Makes sure that there is a QApplication: the host's, or else one that is made here on that display and lasts as long
/// as the program.
void ensureApplication(Display display);

}  // namespace qvn::qt
