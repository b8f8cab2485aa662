// The colours of the library as Qt's.
#pragma once

#include <QPalette>
#include <cstdint>

namespace qvn::qt {

/// The palette of a field in these colours: white and black, which fields have of themselves, are the desktop's own
/// colours of a field and its text, light or dark; any other is as told, with text that stands out on it.
QPalette fieldColours(const QPalette& desktop, std::uint32_t back, std::uint32_t fore);

/// The palette of a text on the desktop's window.
QPalette textColours(const QPalette& desktop, std::uint32_t fore);

}  // namespace qvn::qt
