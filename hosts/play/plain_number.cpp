#include "hosts/play/plain_number.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace qvn::play {

namespace {

constexpr std::size_t kCurrencyDecimals = 4;
constexpr std::size_t kMostDecimals = 28;

struct Digits {
  bool negative = false;
  std::string all;  ///< the digits before and behind the point
  std::size_t scale = 0;
};

bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::optional<Digits> digitsOf(std::string_view text) {
  Digits digits;
  if (text.starts_with('-')) {
    digits.negative = true;
    text.remove_prefix(1);
  }
  const std::size_t point = std::min(text.find('.'), text.size());
  const std::string_view whole = text.substr(0, point);
  const std::string_view decimals = point < text.size() ? text.substr(point + 1) : std::string_view();
  if (whole.empty() || (point < text.size() && decimals.empty())) return std::nullopt;
  if (!std::ranges::all_of(whole, isDigit) || !std::ranges::all_of(decimals, isDigit)) return std::nullopt;
  digits.all = std::string(whole).append(decimals);
  digits.scale = decimals.size();
  return digits;
}

std::string withPoint(std::string_view digits, std::size_t scale, bool negative) {
  std::string padded(digits.size() > scale ? 0 : scale + 1 - digits.size(), '0');
  padded.append(digits);
  std::string text(negative ? "-" : "");
  text.append(padded, 0, padded.size() - scale);
  if (scale > 0) text.append(".").append(padded, padded.size() - scale);
  return text;
}

}  // namespace

std::optional<Currency> currencyOfPlain(std::string_view text) {
  std::optional<Digits> digits = digitsOf(text);
  if (!digits || digits->scale > kCurrencyDecimals) return std::nullopt;
  digits->all.append(kCurrencyDecimals - digits->scale, '0');
  const std::uint64_t most =
      static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()) + (digits->negative ? 1U : 0U);
  std::uint64_t count = 0;
  for (const char c : digits->all) {
    const auto digit = static_cast<std::uint64_t>(c - '0');
    if (count > (most - digit) / 10) return std::nullopt;
    count = count * 10 + digit;
  }
  return Currency::fromTenThousandths(static_cast<std::int64_t>(digits->negative ? 0 - count : count));
}

std::optional<Decimal> decimalOfPlain(std::string_view text) {
  const std::optional<Digits> digits = digitsOf(text);
  if (!digits || digits->scale > kMostDecimals) return std::nullopt;
  Decimal::Magnitude magnitude{};
  for (const char c : digits->all) {
    auto carry = static_cast<std::uint64_t>(c - '0');
    for (std::uint32_t& word : magnitude) {
      carry += std::uint64_t{word} * 10;
      word = static_cast<std::uint32_t>(carry & 0xFFFFFFFFU);
      carry >>= 32U;
    }
    if (carry != 0) return std::nullopt;
  }
  return Decimal::of(magnitude, static_cast<int>(digits->scale), digits->negative);
}

std::string plainText(Currency amount) {
  const std::int64_t count = amount.tenThousandths();
  const auto bits = static_cast<std::uint64_t>(count);
  return withPoint(std::to_string(count < 0 ? 0 - bits : bits), kCurrencyDecimals, count < 0);
}

std::string plainText(const Decimal& value) {
  Decimal::Magnitude rest = value.magnitude();
  std::string digits;
  do {
    std::uint64_t remainder = 0;
    for (std::size_t i = rest.size(); i-- > 0;) {
      const std::uint64_t dividend = (remainder << 32U) | rest[i];
      rest[i] = static_cast<std::uint32_t>(dividend / 10);
      remainder = dividend % 10;
    }
    digits += static_cast<char>('0' + remainder);
  } while (rest != Decimal::Magnitude{});
  std::ranges::reverse(digits);
  return withPoint(digits, static_cast<std::size_t>(value.scale()), value.negative());
}

}  // namespace qvn::play
