// Whether what stands on the screen is what the widgets say.
#pragma once

#include <string>
#include <vector>

#include "platforms/qt/platform.h"

namespace qvn::test {

/// Each thing in which the Qt widget of one of the panel's shows something else than that one says, in words.
std::vector<std::string> disagreements(qt::Platform& platform, toolkit::Surface& panel);

}  // namespace qvn::test
