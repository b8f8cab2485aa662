// The numbers that variants hold, as digits.
#pragma once

#include <array>
#include <optional>

#include "qvn/shared/digits.h"
#include "qvn/shared/variant.h"

namespace qvn {

/// The digits of a variant's number: true counts as -1, a date its days, Empty as 0; nothing for a Null, a text or an
/// array. Fails on a double that is infinite or no number. Must outlive its digits.
class VariantNumber {
 public:
  explicit VariantNumber(const Variant& value);
  VariantNumber(const VariantNumber&) = delete;  // its digits may lie in its room
  VariantNumber& operator=(const VariantNumber&) = delete;

  const std::optional<Digits>& digits() const { return digits_; }

 private:
  std::array<char, DecimalRoom::extent> room_;
  std::optional<Digits> digits_;
};

}  // namespace qvn
