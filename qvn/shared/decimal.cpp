#include "qvn/shared/decimal.h"

#include <array>
#include <string>

#include "qvn/shared/digits.h"
#include "qvn/shared/failure.h"

namespace qvn {

namespace {

constexpr int kMostDecimals = 28;

std::uint64_t magnitudeOf(std::int64_t value) {
  return value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
}

Decimal scaled(std::int64_t count, int scale) {
  const std::uint64_t magnitude = magnitudeOf(count);
  return Decimal::of({static_cast<std::uint32_t>(magnitude), static_cast<std::uint32_t>(magnitude >> 32), 0}, scale,
                     count < 0);
}

}  // namespace

Decimal Decimal::of(Magnitude magnitude, int scale, bool negative) {
  if (scale < 0 || scale > kMostDecimals) {
    throw Failure(FailureKind::Overflow, "a decimal has 0 to 28 decimals, not " + std::to_string(scale));
  }
  Decimal result;
  result.magnitude_ = magnitude;
  result.scale_ = static_cast<std::uint8_t>(scale);
  result.negative_ = negative && magnitude != Magnitude{};
  return result;
}

Decimal Decimal::of(std::int64_t whole) { return scaled(whole, 0); }

Decimal Decimal::of(Currency amount) { return scaled(amount.tenThousandths(), 4); }

bool operator==(const Decimal& a, const Decimal& b) { return std::is_eq(a <=> b); }

std::strong_ordering operator<=>(const Decimal& a, const Decimal& b) {
  std::array<char, DecimalRoom::extent> ofA;
  std::array<char, DecimalRoom::extent> ofB;
  return order(digitsOf(a, ofA), digitsOf(b, ofB));
}

}  // namespace qvn
