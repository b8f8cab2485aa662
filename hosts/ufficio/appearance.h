// The colours of the program's windows.
#pragma once

#include <QPalette>
#include <cstdint>

namespace qvn::ufficio {

enum class Appearance : std::uint8_t {
  Desktop,  ///< as the desktop has them
  Dark,
};

/// Of all windows of the program, those that stand and those to come. The first call remembers the desktop's.
void wear(Appearance appearance);

}  // namespace qvn::ufficio
