#include "qvn/shared/currency.h"

#include <limits>
#include <string>

#include "qvn/shared/failure.h"

namespace qvn {

namespace {

constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t kUnit = 10'000;

[[noreturn]] void overflow(Currency a, char sign, Currency b) {
  const auto count = [](Currency amount) { return std::to_string(amount.tenThousandths()); };
  throw Failure(FailureKind::Overflow, std::string("the currency amount ")
                                           .append(count(a))
                                           .append({' ', sign, ' '})
                                           .append(count(b))
                                           .append(" ten-thousandths does not fit"));
}

}  // namespace

Currency Currency::of(std::int64_t whole) {
  if (whole > kMost / kUnit || whole < kLeast / kUnit) {
    throw Failure(FailureKind::Overflow, std::to_string(whole) + " does not fit a currency amount");
  }
  return Currency(whole * kUnit);
}

Currency operator+(Currency a, Currency b) {
  if (b.count_ > 0 ? a.count_ > kMost - b.count_ : a.count_ < kLeast - b.count_) overflow(a, '+', b);
  return Currency(a.count_ + b.count_);
}

Currency operator-(Currency a, Currency b) {
  if (b.count_ < 0 ? a.count_ > kMost + b.count_ : a.count_ < kLeast + b.count_) overflow(a, '-', b);
  return Currency(a.count_ - b.count_);
}

Currency operator-(Currency a) { return Currency() - a; }

}  // namespace qvn
