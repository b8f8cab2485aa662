// A frame in memory.
#pragma once

#include <string>
#include <string_view>

#include "platforms/memory/utf8.h"
#include "platforms/memory/widget.h"

namespace qvn::memory {

class Frame final : public Common<toolkit::Frame> {
 public:
  explicit Frame(const Making& making)
      : Common(making, toolkit::kFaceGray), caption_(utf8::valid(making.layout.caption)) {}

  std::string Caption() const override { return caption_; }
  void Caption(std::string_view caption) override {
    caption_ = utf8::valid(caption);
    tell();
  }

 private:
  std::string caption_;
};

}  // namespace qvn::memory
