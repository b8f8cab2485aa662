#include "tests/commissions/exact_number.h"

#include <algorithm>
#include <array>
#include <limits>

namespace qvn::test {

namespace {

constexpr int kMostDigits = 30;
constexpr std::string_view kSymbol = "€";

constexpr int kMostPowers = 38;
constexpr auto kPowers = [] {
  std::array<Whole, kMostPowers + 1> powers{1};
  for (std::size_t i = 1; i < powers.size(); ++i) powers[i] = powers[i - 1] * 10;
  return powers;
}();

Whole power(int exponent) { return kPowers.at(static_cast<std::size_t>(exponent)); }

constexpr Whole magnitude(Whole count) { return count < 0 ? -count : count; }

std::string digitsOf(Whole count) {
  std::string digits;
  do {
    digits.insert(digits.begin(), static_cast<char>('0' + static_cast<int>(count % 10)));
    count /= 10;
  } while (count > 0);
  return digits;
}

int lengthOf(Whole count) {
  return static_cast<int>(std::ranges::upper_bound(kPowers, magnitude(count)) - kPowers.begin());
}

/// The digits as a count. Throws Undecided on more than are counted.
Exact counted(std::string_view whole, std::string_view decimals, bool negative) {
  const std::string digits = std::string(whole).append(decimals);
  const std::size_t first = std::min(digits.find_first_not_of('0'), digits.size());
  if (digits.size() - first > kMostDigits || decimals.size() > kMostDigits) throw Undecided();
  Whole count = 0;
  for (const char digit : digits) count = count * 10 + (digit - '0');
  return {.count = negative ? -count : count, .scale = static_cast<int>(decimals.size())};
}

void skipBlanks(std::string_view& text) { text.remove_prefix(std::min(text.find_first_not_of(' '), text.size())); }

std::string_view takeWhile(std::string_view& text, std::string_view characters) {
  const std::string_view taken = text.substr(0, std::min(text.find_first_not_of(characters), text.size()));
  text.remove_prefix(taken.size());
  return taken;
}

constexpr std::string_view kDigits = "0123456789";

/// The whole part without its grouping points. Nothing where a point stands elsewhere than before three digits, or
/// behind a group that begins with 0 or is no first group.
std::optional<std::string> ungrouped(std::string_view whole) {
  if (whole.find('.') == std::string_view::npos) return std::string(whole);
  std::string digits;
  bool first = true;
  for (std::string_view rest = whole;; first = false) {
    const std::string_view group = takeWhile(rest, kDigits);
    const bool fits = first ? !group.empty() && group.size() <= 3 && group.front() != '0' : group.size() == 3;
    if (!fits) return std::nullopt;
    digits.append(group);
    if (rest.empty()) return digits;
    rest.remove_prefix(1);
  }
}

/// "1.234,56", without sign or symbol.
std::optional<Exact> unsignedNumber(std::string_view& text) {
  const std::string_view whole = takeWhile(text, "0123456789.");
  std::string_view decimals;
  if (text.starts_with(',')) {
    text.remove_prefix(1);
    decimals = takeWhile(text, kDigits);
  }
  const auto digits = ungrouped(whole);
  if (!digits || (digits->empty() && decimals.empty())) return std::nullopt;
  return counted(*digits, decimals, false);
}

/// With so many decimals and perhaps grouped; the sign apart.
std::string written(Whole count, int decimals, bool grouped) {
  std::string digits = digitsOf(magnitude(count));
  const auto places = static_cast<std::size_t>(decimals);
  if (digits.size() <= places) digits.insert(0, places + 1 - digits.size(), '0');
  std::string text = digits.substr(0, digits.size() - places);
  if (grouped) {
    for (std::size_t at = text.size(); at > 3;) text.insert(at -= 3, 1, '.');
  }
  if (places > 0) text.append(",").append(digits.substr(digits.size() - places));
  return text;
}

std::string_view signOf(Whole count) { return count < 0 ? "-" : ""; }

}  // namespace

std::string_view nameOf(ModelFailure kind) {
  static constexpr std::array<std::string_view, 6> kNames{
      "type mismatch", "overflow", "subscript out of range", "invalid use of null", "invalid call", "database"};
  return kNames.at(static_cast<std::size_t>(kind));
}

Whole rounded(const Exact& value, int decimals, Ties ties) {
  if (decimals >= value.scale) {
    if (lengthOf(value.count) + decimals - value.scale > 37) throw Undecided();
    return value.count * power(decimals - value.scale);
  }
  const Whole unit = power(value.scale - decimals);
  const Whole kept = magnitude(value.count) / unit;
  const Whole rest = magnitude(value.count) % unit;
  const bool tieUp = ties == Ties::AwayFromZero || kept % 2 != 0;
  const bool up = rest > unit - rest || (rest == unit - rest && tieUp);
  const Whole result = kept + (up ? 1 : 0);
  return value.count < 0 ? -result : result;
}

bool equal(const Exact& a, const Exact& b) {
  const int scale = std::max(a.scale, b.scale);
  return rounded(a, scale, Ties::ToEven) == rounded(b, scale, Ties::ToEven);
}

std::optional<Exact> numberOf(std::string_view text) {
  std::optional<Exact> number;
  int signs = 0;
  int symbols = 0;
  for (skipBlanks(text); !text.empty(); skipBlanks(text)) {
    if (text.front() == '-') {
      text.remove_prefix(1);
      ++signs;
    } else if (text.starts_with(kSymbol)) {
      text.remove_prefix(kSymbol.size());
      ++symbols;
    } else if (!number) {
      number = unsignedNumber(text);
      if (!number) return std::nullopt;
    } else {
      return std::nullopt;
    }
  }
  if (!number || signs > 1 || symbols > 1) return std::nullopt;
  if (signs == 1) number->count = -number->count;
  return number;
}

Exact pointed(std::string_view text) {
  const bool negative = text.starts_with('-');
  if (negative) text.remove_prefix(1);
  const std::string_view whole = takeWhile(text, kDigits);
  if (text.starts_with('.')) text.remove_prefix(1);
  return counted(whole, text, negative);
}

Exact leading(std::string_view text) {
  skipBlanks(text);
  const bool negative = text.starts_with('-');
  if (negative) text.remove_prefix(1);
  const std::string_view whole = takeWhile(text, kDigits);
  std::string_view decimals;
  if (text.starts_with('.')) {
    text.remove_prefix(1);
    decimals = takeWhile(text, kDigits);
  }
  return counted(whole, decimals, negative);
}

std::int64_t currencyOf(const Exact& value) {
  if (lengthOf(value.count) - value.scale > 16) throw ModelFailed{ModelFailure::Overflow};
  const Whole count = rounded(value, 4, Ties::ToEven);
  if (count < std::numeric_limits<std::int64_t>::min() || count > std::numeric_limits<std::int64_t>::max()) {
    throw ModelFailed{ModelFailure::Overflow};
  }
  return static_cast<std::int64_t>(count);
}

std::int64_t currencyOf(std::string_view text) {
  const auto number = numberOf(text);
  if (!number) throw ModelFailed{ModelFailure::TypeMismatch};
  return currencyOf(*number);
}

Exact decimalOf(std::string_view text) {
  constexpr int kAlwaysHeld = 28;
  constexpr Whole kMost = (Whole{1} << 96) - 1;
  const auto number = numberOf(text);
  if (!number) throw ModelFailed{ModelFailure::TypeMismatch};
  if (magnitude(number->count) / power(number->scale) > kMost) throw ModelFailed{ModelFailure::Overflow};
  if (lengthOf(number->count) > kAlwaysHeld) throw Undecided();
  return *number;
}

std::int64_t sumOf(std::int64_t a, std::int64_t b) { return currencyOf({.count = Whole{a} + b, .scale = 4}); }

std::string plainForm(const Exact& value) {
  const Whole count = rounded(value, 2, Ties::AwayFromZero);
  return std::string(signOf(count)).append(written(count, 2, false));
}

std::string currencyForm(const Exact& value, Ties ties) {
  const Whole count = rounded(value, 2, ties);
  return std::string(signOf(count)).append(kSymbol).append(" ").append(written(count, 2, true));
}

std::string generalForm(const Exact& value) {
  Exact shortest = value;
  while (shortest.scale > 0 && shortest.count % 10 == 0) {
    shortest.count /= 10;
    --shortest.scale;
  }
  return std::string(signOf(shortest.count)).append(written(shortest.count, shortest.scale, false));
}

std::string plainForm(std::string_view text) {
  const auto number = numberOf(text);
  return number ? plainForm(*number) : std::string(text);
}

std::string currencyForm(std::string_view text) {
  const auto number = numberOf(text);
  return number ? currencyForm(*number) : std::string(text);
}

// A value of up to 15 digits lies further from half-way to the next such value than four roundings to a double lead
// away from it, so that it comes out as it is. The count is brought to a length that tells so small an error.
Computed Computed::product(const Exact& a, const Exact& b, int divisor) {
  constexpr int kLongEnough = 20;
  if (lengthOf(a.count) + lengthOf(b.count) > kMostPowers - 2) throw Undecided();
  Computed result;
  result.value_ = {.count = a.count * b.count, .scale = a.scale + b.scale + divisor};
  if (result.value_.count == 0) return result;
  const int room = std::max(0, kLongEnough - lengthOf(result.value_.count));
  result.value_ = {.count = result.value_.count * power(room), .scale = result.value_.scale + room};
  // Each rounding is of at most 2^-53 of the value: less than 4.45e-16 in all.
  result.error_ = magnitude(result.value_.count) / power(8) * 445 / power(10) + 1;
  return result;
}

Computed operator+(const Computed& a, const Computed& b) {
  const int scale = std::max(a.value_.scale, b.value_.scale);
  const auto at = [scale](const Computed& one, Whole count) {
    return rounded({.count = count, .scale = one.value_.scale}, scale, Ties::ToEven);
  };
  Computed sum;
  sum.value_ = {.count = at(a, a.value_.count) + at(b, b.value_.count), .scale = scale};
  sum.error_ = at(a, a.error_) + at(b, b.error_);
  // The addition rounds once more, unless nothing is added.
  if (a.value_.count != 0 && b.value_.count != 0) {
    sum.error_ += (magnitude(sum.value_.count) + sum.error_) / power(8) * 112 / power(10) + 1;
  }
  return sum;
}

Exact Computed::fifteenDigits(const Exact& value) {
  constexpr int kDigitsOfADouble = 15;
  const int beyond = lengthOf(value.count) - kDigitsOfADouble;
  if (beyond <= 0) return value;
  return {.count = rounded(value, value.scale - beyond, Ties::ToEven) * power(beyond), .scale = value.scale};
}

}  // namespace qvn::test
