// A command button in memory.
#pragma once

#include <string>

#include "platforms/memory/utf8.h"
#include "platforms/memory/widget.h"

namespace qvn::memory {

class CommandButton final : public Common<toolkit::CommandButton> {
 public:
  explicit CommandButton(const Making& making) : Common(making, toolkit::kFaceGray) {}

  std::string Caption() const override { return utf8::valid(layout().caption); }
};

}  // namespace qvn::memory
