#include "tests/values/decimal_model.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>

namespace qvn::test {

namespace {

std::string withoutLeadingZeros(const std::string& digits) {
  const std::size_t first = digits.find_first_not_of('0');
  return first == std::string::npos ? "0" : digits.substr(first);
}

void multiply(std::string& digits, int factor) {
  int carry = 0;
  for (std::size_t i = digits.size(); i-- > 0;) {
    carry += (digits[i] - '0') * factor;
    digits[i] = static_cast<char>('0' + carry % 10);
    carry /= 10;
  }
  if (carry > 0) digits.insert(digits.begin(), static_cast<char>('0' + carry));
}

void increment(std::string& digits) {
  for (std::size_t i = digits.size(); i-- > 0;) {
    if (digits[i] != '9') {
      ++digits[i];
      return;
    }
    digits[i] = '0';
  }
  digits.insert(digits.begin(), '1');
}

/// The digits without so many at their end, rounded.
std::string cut(std::string digits, std::size_t count, ModelTies ties) {
  if (digits.size() <= count) digits.insert(0, count - digits.size() + 1, '0');
  const std::string rest = digits.substr(digits.size() - count);
  std::string kept = digits.substr(0, digits.size() - count);
  std::string half(count, '0');
  half.front() = '5';
  const bool odd = (kept.back() - '0') % 2 != 0;
  const bool tieUp = ties == ModelTies::AwayFromZero || odd;
  if (rest > half || (rest == half && tieUp)) increment(kept);
  return withoutLeadingZeros(kept);
}

/// Brings both to the lower exponent, without zeros in front and of one length.
void align(Exact& a, Exact& b) {
  for (auto [high, low] : {std::pair(&a, &b), std::pair(&b, &a)}) {
    if (high->exponent <= low->exponent) continue;
    high->digits.append(static_cast<std::size_t>(high->exponent - low->exponent), '0');
    high->exponent = low->exponent;
  }
  const std::size_t length = std::max(a.digits.size(), b.digits.size());
  a.digits.insert(0, length - a.digits.size(), '0');
  b.digits.insert(0, length - b.digits.size(), '0');
}

/// Of texts of one length.
std::string sum(const std::string& a, const std::string& b) {
  std::string result = a;
  int carry = 0;
  for (std::size_t i = a.size(); i-- > 0;) {
    carry += (a[i] - '0') + (b[i] - '0');
    result[i] = static_cast<char>('0' + carry % 10);
    carry /= 10;
  }
  if (carry > 0) result.insert(result.begin(), '1');
  return result;
}

/// Of two that are not negative.
bool isLess(Exact a, Exact b) {
  align(a, b);
  return a.digits < b.digits;
}

struct Normal {
  bool negative;
  std::string digits;
  int exponent;
  friend bool operator==(const Normal&, const Normal&) = default;
};

Normal normal(const Exact& value) {
  std::string digits = withoutLeadingZeros(value.digits);
  if (digits == "0") return {false, digits, 0};
  int exponent = value.exponent;
  for (; digits.back() == '0'; digits.pop_back()) ++exponent;
  return {value.negative, digits, exponent};
}

}  // namespace

bool operator==(const Exact& a, const Exact& b) { return normal(a) == normal(b); }

Exact exactValue(double value) {
  int exponent = 0;
  const double fraction = std::frexp(std::fabs(value), &exponent);
  Exact exact{std::signbit(value), std::to_string(static_cast<std::uint64_t>(std::ldexp(fraction, 53))), 0};
  exponent -= 53;
  for (; exponent > 0; --exponent) multiply(exact.digits, 2);
  for (; exponent < 0; ++exponent) {
    multiply(exact.digits, 5);  // half of it is five tenths
    --exact.exponent;
  }
  return exact;
}

Exact exactCount(std::int64_t count, int scale) {
  std::string digits = std::to_string(count);
  const bool negative = digits.front() == '-';
  if (negative) digits.erase(0, 1);
  return {negative, digits, -scale};
}

Exact middle(double a, double b) {
  Exact left = exactValue(a);
  Exact right = exactValue(b);
  align(left, right);
  // Half the sum is five times it a place further down.
  Exact result{false, sum(left.digits, right.digits), left.exponent - 1};
  multiply(result.digits, 5);
  return result;
}

bool isNearest(double candidate, const Exact& value) {
  if (candidate != 0 && std::signbit(candidate) != value.negative) return false;
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const double size = std::fabs(candidate);
  const Exact magnitude{false, value.digits, value.exponent};
  if (size > 0 && isLess(magnitude, middle(std::nextafter(size, 0), size))) return false;
  return !isLess(middle(size, std::nextafter(size, kInfinity)), magnitude);
}

std::string wholeNumber(const std::array<std::uint32_t, 3>& words) {
  std::string digits = "0";
  for (int bit = 95; bit >= 0; --bit) {
    multiply(digits, 2);
    if ((words.at(static_cast<std::size_t>(bit / 32)) >> (bit % 32) & 1U) != 0) increment(digits);
  }
  return digits;
}

Exact toFifteenDigits(const Exact& value) {
  Exact result = value;
  result.digits = withoutLeadingZeros(result.digits);
  if (result.digits.size() <= 15) return result;
  const std::size_t beyond = result.digits.size() - 15;
  result.digits = cut(result.digits, beyond, ModelTies::ToEven);
  result.exponent += static_cast<int>(beyond);
  return result;
}

std::string inUnits(const Exact& value, int decimals, ModelTies ties) {
  const int shift = value.exponent + decimals;
  std::string digits = withoutLeadingZeros(value.digits);
  if (shift >= 0) {
    digits = withoutLeadingZeros(digits.append(static_cast<std::size_t>(shift), '0'));
  } else {
    digits = cut(digits, static_cast<std::size_t>(-shift), ties);
  }
  if (value.negative && digits != "0") digits.insert(digits.begin(), '-');
  return digits;
}

bool fits64Bits(const std::string& whole) {
  const bool negative = whole.front() == '-';
  const std::string digits = negative ? whole.substr(1) : whole;
  const std::string most = negative ? "9223372036854775808" : "9223372036854775807";
  return digits.size() < most.size() || (digits.size() == most.size() && digits <= most);
}

std::string written(const std::string& units, int decimals, bool grouped) {
  const bool negative = units.front() == '-';
  std::string whole = negative ? units.substr(1) : units;
  const auto places = static_cast<std::size_t>(decimals);
  if (whole.size() <= places) whole.insert(0, places + 1 - whole.size(), '0');
  const std::string fraction = whole.substr(whole.size() - places);
  whole.resize(whole.size() - places);
  if (grouped) {
    for (std::size_t at = whole.size(); at > 3;)
      whole.insert(whole.begin() + static_cast<std::ptrdiff_t>(at -= 3), '.');
  }
  std::string text = negative ? "-" : "";
  text.append(whole);
  if (decimals > 0) text.append(",").append(fraction);
  return text;
}

}  // namespace qvn::test
