// Percents as the host reads them: a 96-bit integer with a decimal scale.
#pragma once

#include <array>
#include <compare>
#include <concepts>
#include <cstdint>

#include "qvn/shared/currency.h"

namespace qvn {

/// A decimal value: sign, 96-bit magnitude, and a scale of 0 to 28 decimals. It is exact, and 12.5 equals 12.50.
class Decimal {
 public:
  /// 96-bit magnitude, lowest word first.
  using Magnitude = std::array<std::uint32_t, 3>;

  constexpr Decimal() = default;

  /// Fails with "overflow" if the scale is above 28. A zero has no sign.
  static Decimal of(Magnitude magnitude, int scale, bool negative);
  static Decimal of(std::int64_t whole);
  static Decimal of(Currency amount);
  static Decimal of(std::floating_point auto number) = delete;  ///< use as<Decimal>()

  constexpr const Magnitude& magnitude() const { return magnitude_; }
  constexpr int scale() const { return scale_; }
  constexpr bool negative() const { return negative_; }

  /// Compare by value, whatever the scales.
  friend bool operator==(const Decimal& a, const Decimal& b);
  friend std::strong_ordering operator<=>(const Decimal& a, const Decimal& b);

 private:
  Magnitude magnitude_{};
  std::uint8_t scale_ = 0;
  bool negative_ = false;
};

}  // namespace qvn
