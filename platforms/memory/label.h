// A label in memory.
#pragma once

#include <string>
#include <string_view>

#include "platforms/memory/utf8.h"
#include "platforms/memory/widget.h"

namespace qvn::memory {

class Label final : public Common<toolkit::Label> {
 public:
  explicit Label(const Making& making)
      : Common(making, toolkit::kFaceGray), caption_(utf8::valid(making.layout.caption)) {}

  std::string Caption() const override { return caption_; }
  void Caption(std::string_view caption) override {
    if (caption == caption_) return;
    std::string written = utf8::valid(caption);
    if (written == caption_) return;
    caption_ = std::move(written);
    tell();
    surface().raise(Change);
  }

 private:
  std::string caption_;
};

}  // namespace qvn::memory
