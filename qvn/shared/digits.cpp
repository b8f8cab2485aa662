#include "qvn/shared/digits.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>
#include <system_error>

#include "qvn/shared/failure.h"

namespace qvn {

namespace {

constexpr auto kPowers = [] {
  std::array<std::uint64_t, Digits::kHeadSize + 1> powers{1};
  for (std::size_t i = 1; i < powers.size(); ++i) powers[i] = powers[i - 1] * 10;
  return powers;
}();

constexpr std::uint64_t power(std::int64_t exponent) { return kPowers.at(static_cast<std::size_t>(exponent)); }

constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// Where a cut-off rest stands to the half of the place before it.
enum class Rest : std::uint8_t { Below, Tie, Above };

bool roundsUp(Rest rest, Ties ties, bool odd) {
  return rest == Rest::Above || (rest == Rest::Tie && (ties == Ties::AwayFromZero || odd));
}

Rest restOf(DigitWalk& walk) {
  const int first = walk.next();
  if (first != 5) return first > 5 ? Rest::Above : Rest::Below;
  return walk.atZeros() ? Rest::Tie : Rest::Above;
}

Rest restOf(std::string_view tail) {
  Digits digits;
  digits.tail = tail;
  DigitWalk walk(digits);
  return restOf(walk);
}

bool isNothing(std::string_view tail) {
  return std::ranges::none_of(tail, [](char c) { return c > '0' && c <= '9'; });
}

/// magnitude × factor + addend; whether it fits.
bool multiplyAdd(Decimal::Magnitude& magnitude, std::uint32_t factor, std::uint32_t addend) {
  std::uint64_t carry = addend;
  for (std::uint32_t& word : magnitude) {
    carry += std::uint64_t{word} * factor;
    word = static_cast<std::uint32_t>(carry);
    carry >>= 32;
  }
  return carry == 0;
}

/// The magnitude divided; its remainder.
std::uint32_t divide(Decimal::Magnitude& magnitude, std::uint32_t divisor) {
  std::uint64_t remainder = 0;
  for (std::size_t i = magnitude.size(); i-- > 0;) {
    remainder = remainder << 32 | magnitude[i];
    magnitude[i] = static_cast<std::uint32_t>(remainder / divisor);
    remainder %= divisor;
  }
  return static_cast<std::uint32_t>(remainder);
}

/// The first digits as a magnitude, the others rounded; nothing if it does not fit.
std::optional<Decimal::Magnitude> magnitudeOf(const Digits& digits, std::int64_t keep) {
  Decimal::Magnitude magnitude{};
  if (keep < 0) return magnitude;
  DigitWalk walk(digits);
  for (; keep > 0; --keep) {
    if (!multiplyAdd(magnitude, 10, static_cast<std::uint32_t>(walk.next()))) return std::nullopt;
  }
  const bool odd = magnitude[0] % 2 != 0;
  if (roundsUp(restOf(walk), Ties::ToEven, odd) && !multiplyAdd(magnitude, 1, 1)) return std::nullopt;
  return magnitude;
}

}  // namespace

Digits digitsOf(double value) {
  if (std::isnan(value)) throw Failure(FailureKind::TypeMismatch, "a double that is no number has no digits");
  if (std::isinf(value)) throw Failure(FailureKind::Overflow, "an infinite double has no digits");
  // "d.dddddddddddddde±xx", rounded correctly and whatever the system's locale.
  constexpr int kBehindFirst = std::numeric_limits<double>::digits10 - 1;
  std::array<char, 32> text;
  char* begin = text.data();
  const char* end =
      std::to_chars(begin, begin + text.size(), std::abs(value), std::chars_format::scientific, kBehindFirst).ptr;
  const char* exponentMark = begin + 2 + kBehindFirst;
  Digits digits{.negative = std::signbit(value)};
  const char* last = exponentMark;
  while (last[-1] == '0') --last;
  digits.take(begin, false);
  for (const char* at = begin + 2; at < last; ++at) digits.take(at, true);
  const bool below = exponentMark[1] == '-';
  int exponent = 0;
  std::from_chars(exponentMark + 2, end, exponent);
  digits.exponent += below ? -exponent : exponent;
  // The last doubles round to a number that is no double any more; their last digit is cut instead.
  if (digits.head == 179'769'313'486'232 && digits.exponent == 294) --digits.head;
  return digits;
}

Digits digitsOf(std::int64_t count, int scale) {
  Digits digits{.negative = count < 0, .exponent = -scale};
  digits.head = count < 0 ? 0 - static_cast<std::uint64_t>(count) : static_cast<std::uint64_t>(count);
  digits.count = static_cast<int>(std::ranges::upper_bound(kPowers, digits.head) - kPowers.begin());
  return digits;
}

Digits digitsOf(const Decimal& value, DecimalRoom room) {
  constexpr std::uint32_t kChunk = 10;
  Decimal::Magnitude left = value.magnitude();
  char* begin = room.data() + room.size();
  while (left != Decimal::Magnitude{}) *--begin = static_cast<char>('0' + divide(left, kChunk));
  const char* end = room.data() + room.size();
  Digits digits{.negative = value.negative()};
  for (const char* at = begin; at < end; ++at) digits.take(at, false);
  digits.endAt(end);
  digits.exponent -= value.scale();
  return digits;
}

std::optional<std::uint64_t> rounded(const Digits& digits, int decimals, Ties ties) {
  if (digits.isZero()) return 0;
  const std::int64_t shift = digits.exponent + decimals;
  if (shift >= 0) {
    if (shift > Digits::kHeadSize - digits.count) return std::nullopt;
    const std::uint64_t scaled = digits.head * power(shift);
    if (digits.tail.empty()) return scaled;
    return scaled + (roundsUp(restOf(digits.tail), ties, scaled % 2 != 0) ? 1 : 0);
  }
  if (shift < -Digits::kHeadSize) return 0;
  const std::uint64_t unit = power(-shift);
  const std::uint64_t half = unit / 2;
  const std::uint64_t whole = digits.head / unit;
  const std::uint64_t left = digits.head % unit;
  Rest rest = left < half ? Rest::Below : left > half ? Rest::Above : Rest::Tie;
  if (rest == Rest::Tie && !isNothing(digits.tail)) rest = Rest::Above;
  return whole + (roundsUp(rest, ties, whole % 2 != 0) ? 1 : 0);
}

std::optional<double> nearestDouble(const Digits& digits) {
  // Beyond 800 digits only whether there is any decides, and beyond these exponents nothing does.
  constexpr std::size_t kEnough = 800;
  constexpr std::int64_t kFar = 400;
  if (!digits.isZero() && digits.point() > kFar) return std::nullopt;
  double magnitude = 0;
  if (!digits.isZero() && digits.point() >= -kFar) {
    std::array<char, kEnough + 32> text;
    char* to = std::to_chars(text.data(), text.data() + Digits::kHeadSize, digits.head).ptr;
    std::int64_t exponent = digits.exponent;
    bool more = false;
    for (char c : digits.tail) {
      if (!isDigit(c)) continue;
      if (to < text.data() + kEnough) {
        *to++ = c;
        --exponent;
      } else {
        more = more || c != '0';
      }
    }
    if (more) {
      *to++ = '1';
      --exponent;
    }
    *to++ = 'e';
    to = std::to_chars(to, text.data() + text.size(), exponent).ptr;
    const auto read = std::from_chars(text.data(), to, magnitude);
    if (read.ec == std::errc::result_out_of_range) {
      if (digits.point() > 0) return std::nullopt;
      magnitude = 0;
    }
    if (std::isinf(magnitude)) return std::nullopt;
  }
  return digits.negative ? -magnitude : magnitude;
}

std::optional<Decimal> nearestDecimal(const Digits& digits) {
  constexpr std::int64_t kMostDecimals = 28;
  constexpr std::int64_t kMostDigits = 29;
  const std::int64_t last = digits.exponent - std::ranges::count_if(digits.tail, isDigit);
  std::int64_t scale = std::clamp<std::int64_t>(-last, 0, kMostDecimals);
  if (digits.isZero()) return Decimal::of({}, static_cast<int>(scale), false);
  scale = std::min(scale, kMostDigits - digits.point());
  for (; scale >= 0; --scale) {
    if (const auto magnitude = magnitudeOf(digits, digits.point() + scale)) {
      return Decimal::of(*magnitude, static_cast<int>(scale), digits.negative);
    }
  }
  return std::nullopt;
}

std::strong_ordering order(const Digits& a, const Digits& b) {
  const auto sign = [](const Digits& digits) { return digits.isZero() ? 0 : digits.negative ? -1 : 1; };
  if (sign(a) != sign(b)) return sign(a) <=> sign(b);
  if (a.isZero()) return std::strong_ordering::equal;
  const auto magnitudes = [](const Digits& left, const Digits& right) {
    if (left.point() != right.point()) return left.point() <=> right.point();
    DigitWalk ofLeft(left);
    DigitWalk ofRight(right);
    while (!ofLeft.atZeros() || !ofRight.atZeros()) {
      if (const auto digit = ofLeft.next() <=> ofRight.next(); std::is_neq(digit)) return digit;
    }
    return std::strong_ordering::equal;
  };
  return a.negative ? magnitudes(b, a) : magnitudes(a, b);
}

DigitWalk::DigitWalk(const Digits& digits) : tail_(digits.tail) {
  if (digits.isZero()) return;
  const char* end = std::to_chars(head_, head_ + sizeof head_, digits.head).ptr;
  left_ = {head_, static_cast<std::size_t>(end - head_)};
}

int DigitWalk::next() {
  for (std::string_view* part : {&left_, &tail_}) {
    while (!part->empty()) {
      const char c = part->front();
      part->remove_prefix(1);
      if (isDigit(c)) return c - '0';
    }
  }
  return 0;
}

bool DigitWalk::atZeros() { return isNothing(left_) && isNothing(tail_); }

}  // namespace qvn
