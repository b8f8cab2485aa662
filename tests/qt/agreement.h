// Whether what stands on the screen is what the widgets say.
#pragma once

#include <string>
#include <vector>

#include "platforms/qt/platform.h"

namespace qvn::test {

/// Each thing in which the Qt widget of one of the panel's shows something else than that one says, in words. Of more
/// than a hundred rows it looks at a hundred or two, the first and the last among them.
std::vector<std::string> disagreements(const qt::Platform& platform, const toolkit::Surface& panel);

/// The same of the window around a form that is shown.
std::vector<std::string> disagreementsOfWindow(const qt::Platform& platform, const toolkit::Form& form);

}  // namespace qvn::test
