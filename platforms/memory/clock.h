// The clock of the memory platform.
#pragma once

#include <optional>

#include "qvn/toolkit/platform.h"

namespace qvn::memory {

/// Tells the system's local date until a date is fixed.
class Clock final : public toolkit::Clock {
 public:
  Date today() const override;
  void fix(Date date) { fixed_ = date; }

 private:
  std::optional<Date> fixed_;
};

}  // namespace qvn::memory
