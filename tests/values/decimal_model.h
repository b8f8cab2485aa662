// Decimal arithmetic on vectors of digits, slow and plain, to hold the library's against. Shares no code with it.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace qvn::test {

enum class ModelTies { ToEven, AwayFromZero };

/// ±digits × 10^exponent; the digits are a text of "0" to "9".
struct Exact {
  bool negative = false;
  std::string digits = "0";
  int exponent = 0;

  friend bool operator==(const Exact&, const Exact&);
};

/// The double's value to its last digit.
Exact exactValue(double value);

/// A count of 10^-scale.
Exact exactCount(std::int64_t count, int scale);

/// The digits of a binary number, its lowest word first.
std::string wholeNumber(const std::array<std::uint32_t, 3>& words);

/// Half-way between two doubles of one sign, neither of them negative.
Exact middle(double a, double b);

/// Whether no other double lies nearer to the value.
bool isNearest(double candidate, const Exact& value);

/// Rounded to a number of 15 significant digits, ties to even.
Exact toFifteenDigits(const Exact& value);

/// In units of 10^-decimals, without zeros in front: "-123", "0".
std::string inUnits(const Exact& value, int decimals, ModelTies ties);

/// Whether a whole number, written as inUnits() does, lies from -9223372036854775808 to 9223372036854775807.
bool fits64Bits(const std::string& whole);

/// The whole number written with so many decimals, a comma and, if grouped, points: "-1.234,56".
std::string written(const std::string& units, int decimals, bool grouped);

}  // namespace qvn::test
