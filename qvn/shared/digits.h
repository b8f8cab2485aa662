// A number as its decimal digits: where texts, doubles, currencies and decimals meet.
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "qvn/shared/currency.h"
#include "qvn/shared/decimal.h"
#include "qvn/shared/locale.h"

namespace qvn {

/// What becomes of a number that lies half-way between two roundings.
enum class Ties : std::uint8_t { ToEven, AwayFromZero };

/// A finite number, digit for digit. The number 0 has no significant digit, and may carry a sign.
struct Digits {
  /// As many digits as a head holds, whatever they are.
  static constexpr int kHeadSize = 19;

  bool negative = false;
  int count = 0;              ///< of significant digits in the head
  std::uint64_t head = 0;     ///< the first significant digits
  std::int64_t exponent = 0;  ///< of the head's last digit: 0 for units, -2 for hundredths
  /// The digits behind a full head, with the decimal and grouping signs between them; the text's owner keeps it.
  std::string_view tail = {};

  bool isZero() const { return head == 0; }
  /// How many significant digits stand before the decimal sign; below 0, how many zeros stand behind it.
  std::int64_t point() const { return count + exponent; }

  /// Takes the digit at a place of a text, behind those taken before. Close the tail with endAt().
  void take(const char* at, bool fraction) {
    if (count < kHeadSize) {
      head = head * 10 + static_cast<std::uint64_t>(*at - '0');
      count += head != 0 ? 1 : 0;
      exponent -= fraction ? 1 : 0;
    } else {
      if (tail.empty()) tail = {at, 1};
      exponent += fraction ? 0 : 1;
    }
  }
  void endAt(const char* end) {
    if (!tail.empty()) tail = {tail.data(), static_cast<std::size_t>(end - tail.data())};
  }
};

/// The digits of a text in the forms of the locale (conversions.h tells them); nothing if it is no number.
std::optional<Digits> digitsOf(std::string_view text, const Locale& locale);

/// The digits of the plain number that a text starts with, the point as its decimal sign; nothing if there is none.
std::optional<Digits> leadingDigits(std::string_view text);

/// The value's 15 significant digits, without the zeros at their end: the number of 15 digits that lies nearest; of
/// the largest doubles, whose nearest is no double any more, the one below it. An infinite value fails with "overflow",
/// and one that is no number with "type mismatch".
Digits digitsOf(double value);

/// The digits of count × 10^-scale.
Digits digitsOf(std::int64_t count, int scale);

/// Room for the digits of any decimal.
using DecimalRoom = std::span<char, 30>;
Digits digitsOf(const Decimal& value, DecimalRoom room);

/// The magnitude in units of 10^-decimals; nothing if it is beyond 19 digits.
std::optional<std::uint64_t> rounded(const Digits& digits, int decimals, Ties ties);

/// The nearest double; nothing if it is beyond the range.
std::optional<double> nearestDouble(const Digits& digits);

/// The decimal with as many of the number's decimals as it can hold, ties to even; nothing if it is beyond the range.
std::optional<Decimal> nearestDecimal(const Digits& digits);

/// By value.
std::strong_ordering order(const Digits& a, const Digits& b);

/// The digits one after the other, then zeros without end.
class DigitWalk {
 public:
  explicit DigitWalk(const Digits& digits);

  int next();
  /// Whether nothing but zeros is left.
  bool atZeros();

 private:
  char head_[Digits::kHeadSize];
  std::string_view left_;  // of the head
  std::string_view tail_;
};

}  // namespace qvn
