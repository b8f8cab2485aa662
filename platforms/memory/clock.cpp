#include "platforms/memory/clock.h"

#include <ctime>

#include "qvn/shared/failure.h"

namespace qvn::memory {

Date Clock::today() const {
  if (fixed_) return *fixed_;
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  if (localtime_r(&now, &local) != nullptr) {
    if (const auto date = Date::of(local.tm_mday, local.tm_mon + 1, local.tm_year + 1900)) return *date;
  }
  throw Failure(FailureKind::InvalidCall, "the system's clock tells no date");
}

}  // namespace qvn::memory
