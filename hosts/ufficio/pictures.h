// Pictures of the screens.
#pragma once

#include <string>

#include "hosts/ufficio/window.h"

namespace qvn::ufficio {

/// Writes a picture of the window with each screen and one of its first records, that which has the most to show, into
/// the folder, which is made if it is not there: NAME.png. What no record shows is typed, and given up without a
/// question. What cannot be done is told on standard error, and gives false.
bool writePictures(Window& window, std::span<const ScreenClass> classes, const std::string& folder);

}  // namespace qvn::ufficio
