// A check box in memory.
#pragma once

#include <cstdint>
#include <string>

#include "platforms/memory/usable.h"
#include "platforms/memory/utf8.h"
#include "platforms/memory/widget.h"
#include "qvn/shared/failure.h"

namespace qvn::memory {

class CheckBox final : public Common<toolkit::CheckBox> {
 public:
  explicit CheckBox(const Making& making) : Common(making, toolkit::kFaceGray) {}

  std::string Caption() const override { return utf8::valid(layout().caption); }
  std::int16_t Value() const override { return value_; }
  void Value(std::int16_t value) override {
    if (value != 0 && value != 1) {
      throw Failure(FailureKind::InvalidCall,
                    fullName(*this).append(" is 0 or 1 and cannot be ").append(std::to_string(value)));
    }
    if (value == value_) return;
    value_ = value;
    tell();
    surface().raise(Click);
  }

 private:
  std::int16_t value_ = 0;
};

}  // namespace qvn::memory
