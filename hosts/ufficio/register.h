// The screens of the office.
#pragma once

#include <span>

#include "hosts/ufficio/screen.h"

namespace qvn::ufficio {

/// All screens, as the window lists them.
std::span<const ScreenClass> screenClasses();

}  // namespace qvn::ufficio
