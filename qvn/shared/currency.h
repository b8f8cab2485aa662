// Amounts: 64-bit fixed point with four decimals. Sums are exact and checked.
#pragma once

#include <compare>
#include <concepts>
#include <cstdint>

namespace qvn {

/// A currency amount as a signed 64-bit count of ten-thousandths: -922 337 203 685 477,5808 to 922 337 203 685
/// 477,5807.
///
/// Sums, differences and comparisons are exact; a sum that does not fit fails with "overflow". A double does not mix
/// with a currency: products and quotients go through toDouble() and come back through toCurrency() (conversions.h).
class Currency {
 public:
  constexpr Currency() = default;

  /// The amount of so many ten-thousandths: fromTenThousandths(12'500) is 1,25.
  static constexpr Currency fromTenThousandths(std::int64_t count) { return Currency(count); }
  static Currency fromTenThousandths(std::floating_point auto count) = delete;  ///< use toCurrency()

  /// A whole amount. Fails with "overflow" beyond ±922 337 203 685 477.
  static Currency of(std::int64_t whole);
  static Currency of(std::floating_point auto number) = delete;  ///< use toCurrency()

  constexpr std::int64_t tenThousandths() const { return count_; }

  friend Currency operator+(Currency a, Currency b);
  friend Currency operator-(Currency a, Currency b);
  friend Currency operator-(Currency a);
  Currency& operator+=(Currency b) { return *this = *this + b; }
  Currency& operator-=(Currency b) { return *this = *this - b; }

  friend constexpr bool operator==(Currency, Currency) = default;
  friend constexpr std::strong_ordering operator<=>(Currency a, Currency b) { return a.count_ <=> b.count_; }

 private:
  constexpr explicit Currency(std::int64_t count) : count_(count) {}

  std::int64_t count_ = 0;
};

}  // namespace qvn
