// A text box in memory.
#pragma once

#include "platforms/memory/editable.h"

namespace qvn::memory {

class TextBox final : public Editable<toolkit::TextBox> {
 public:
  explicit TextBox(const Making& making) : Editable(making) { buffer().set(making.layout.caption); }

  using Editable::Text;
  void Text(std::string_view text) override { write(text); }
};

}  // namespace qvn::memory
