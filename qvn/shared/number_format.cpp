// Numbers written as texts.
#include "qvn/shared/number_format.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>

#include "qvn/shared/digits.h"
#include "qvn/shared/failure.h"
#include "qvn/shared/number_targets.h"

namespace qvn {

namespace {

constexpr int kCurrencyScale = 4;
constexpr std::size_t kLongestSymbol = 64;
/// The whole digits of the largest double.
constexpr std::int64_t kMostWholeDigits = 309;

/// "00" to "99", one behind the other.
constexpr auto kPairs = [] {
  std::array<char, 200> pairs{};
  for (std::size_t i = 0; i < 100; ++i) {
    pairs[2 * i] = static_cast<char>('0' + i / 10);
    pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
  }
  return pairs;
}();

/// The digits of a number in units of 10^-decimals, at least one of them before the decimal sign.
struct Scaled {
  bool negative;
  std::string_view digits;
  std::size_t decimals;

  std::string_view whole() const { return digits.substr(0, digits.size() - decimals); }
  std::string_view fraction() const { return digits.substr(digits.size() - decimals); }
};

char* put(char* to, std::string_view text) {
  std::memcpy(to, text.data(), text.size());
  return to + text.size();
}

/// Writes the digits of a number so that they end at a place, at least so many; where they begin.
char* putBackwards(char* end, std::uint64_t number, std::size_t atLeast) {
  char* begin = end;
  const auto putPair = [&begin](std::uint64_t pair) {
    begin -= 2;
    std::memcpy(begin, &kPairs[static_cast<std::size_t>(pair) * 2], 2);
  };
  while (number >= 100) {
    putPair(number % 100);
    number /= 100;
  }
  if (number >= 10) {
    putPair(number);
  } else if (number > 0) {
    *--begin = static_cast<char>('0' + number);
  }
  while (static_cast<std::size_t>(end - begin) < atLeast) *--begin = '0';
  return begin;
}

char* putGrouped(char* to, std::string_view whole, char groupingSign) {
  if (groupingSign == '\0') return put(to, whole);
  const std::size_t first = (whole.size() - 1) % 3 + 1;
  to = put(to, whole.substr(0, first));
  for (std::size_t at = first; at < whole.size(); at += 3) {
    *to++ = groupingSign;
    std::memcpy(to, whole.data() + at, 3);
    to += 3;
  }
  return to;
}

char* putFraction(char* to, const Scaled& number, const Locale& locale) {
  if (number.decimals == 0) return to;
  *to++ = locale.decimalSign;
  return put(to, number.fraction());
}

char* putPlain(char* to, const Scaled& number, const Locale& locale) {
  if (number.negative) *to++ = '-';
  return putFraction(put(to, number.whole()), number, locale);
}

char* putCurrency(char* to, const Scaled& number, const Locale& locale) {
  const bool withSymbol = !locale.symbol.empty();
  const bool signFirst = number.negative && locale.negative == NegativeForm::SignFirst;
  const bool signAtNumber = number.negative && locale.negative == NegativeForm::SignAtNumber;
  const bool brackets = number.negative && locale.negative == NegativeForm::Brackets;
  if (signFirst) *to++ = '-';
  if (brackets) *to++ = '(';
  if (locale.symbolFirst) {
    if (withSymbol) {
      to = put(to, locale.symbol);
      *to++ = ' ';
    }
    if (signAtNumber) *to++ = '-';
  }
  to = putFraction(putGrouped(to, number.whole(), locale.groupingSign), number, locale);
  if (!locale.symbolFirst) {
    if (signAtNumber) *to++ = '-';
    if (withSymbol) {
      *to++ = ' ';
      to = put(to, locale.symbol);
    }
  }
  if (brackets) *to++ = ')';
  return to;
}

[[noreturn]] void noNumberPattern() {
  throw Failure(FailureKind::InvalidCall, "a number has no text under the pattern of a date");
}

/// The ASCII characters that can part digits without being read as something else.
constexpr auto kPartingSigns = [] {
  std::array<bool, 256> signs{};
  for (char c : std::string_view("!\"#$%&'*,./:;<=>?@[\\]^_`{|}~")) signs[static_cast<unsigned char>(c)] = true;
  return signs;
}();

bool isPartingSign(char c) { return kPartingSigns[static_cast<unsigned char>(c)]; }

/// Whether a text may begin with the symbol and is still read as one.
bool isSymbol(const Locale& locale) {
  const std::string_view symbol = locale.symbol;
  if (symbol.empty()) return true;
  constexpr std::string_view kReadAsOther = "0123456789+-() \t";
  const char first = symbol.front();
  if (first == locale.decimalSign || first == locale.groupingSign) return false;
  if (kReadAsOther.find(first) != std::string_view::npos) return false;
  return !symbol.starts_with("\u00A0") && !symbol.starts_with("\u202F");
}

std::string shown(char sign) {
  return sign > ' ' && sign < '\x7F' ? quoted({&sign, 1}) : "of code " + std::to_string(int{sign});
}

/// Fails on a locale whose amounts would not read back.
void checkAmounts(const Locale& locale) {
  const auto fail = [](const std::string& message) { throw Failure(FailureKind::InvalidCall, message); };
  if (locale.currencyDecimals > kCurrencyScale) {
    fail("a locale has 0 to 4 currency decimals, not " + std::to_string(static_cast<int>(locale.currencyDecimals)));
  }
  if (locale.symbol.size() > kLongestSymbol) {
    fail("the currency symbol " + quoted(locale.symbol) + " is longer than 64 bytes");
  }
  if (!isSymbol(locale)) {
    fail("the currency symbol " + quoted(locale.symbol) + " begins with what is read as part of a number");
  }
  if (!isPartingSign(locale.decimalSign)) {
    fail("the character " + shown(locale.decimalSign) + " is no decimal sign");
  }
  const char grouping = locale.groupingSign;
  if (grouping == locale.decimalSign || (grouping != '\0' && grouping != ' ' && !isPartingSign(grouping))) {
    fail("the character " + shown(grouping) + " is no grouping sign beside the decimal sign " +
         shown(locale.decimalSign));
  }
}

/// The decimals of a number pattern that has them.
int decimalsOf(Pattern pattern, const Locale& locale) {
  if (pattern == Pattern::TwoDecimals) return 2;
  if (pattern != Pattern::Currency) noNumberPattern();
  checkAmounts(locale);
  return locale.currencyDecimals;
}

void write(FormattedText& text, const Scaled& number, Pattern pattern, const Locale& locale) {
  text.endAt(pattern == Pattern::Currency ? putCurrency(text.room(), number, locale)
                                          : putPlain(text.room(), number, locale));
}

void writeCount(FormattedText& text, bool negative, std::uint64_t count, int decimals, Pattern pattern,
                const Locale& locale) {
  std::array<char, 24> room;
  char* end = room.data() + room.size();
  const auto places = static_cast<std::size_t>(decimals);
  const char* begin = putBackwards(end, count, places + 1);
  write(text, {negative && count != 0, {begin, static_cast<std::size_t>(end - begin)}, places}, pattern, locale);
}

/// Numbers of more digits than a count holds; there are at most 309 before the decimal sign.
void writeLong(FormattedText& text, const Digits& digits, int decimals, Pattern pattern, const Locale& locale) {
  std::array<char, kMostWholeDigits + kCurrencyScale + 1> room;
  const auto keep = static_cast<std::size_t>(digits.point() + decimals);
  char* begin = room.data() + 1;
  char* end = begin + keep;
  DigitWalk walk(digits);
  for (char* to = begin; to < end; ++to) *to = static_cast<char>('0' + walk.next());
  if (walk.next() >= 5) {
    char* last = end;
    while (last > begin && last[-1] == '9') *--last = '0';
    if (last == begin) {
      *--begin = '1';
    } else {
      ++last[-1];
    }
  }
  const Scaled number{
      digits.negative, {begin, static_cast<std::size_t>(end - begin)}, static_cast<std::size_t>(decimals)};
  write(text, number, pattern, locale);
}

/// The general text. Numbers outside 1e-15 to 1e15 show an exponent if they may.
void writeGeneral(FormattedText& text, const Digits& digits, bool mayShowExponent, const Locale& locale) {
  char* to = text.room();
  if (digits.isZero()) {
    *to++ = '0';
    text.endAt(to);
    return;
  }
  std::array<char, 32> room;
  std::size_t size = 0;
  DigitWalk walk(digits);
  while (!walk.atZeros()) room.at(size++) = static_cast<char>('0' + walk.next());
  const std::string_view shown(room.data(), size);

  constexpr std::int64_t kPlainBelow = 15;
  const std::int64_t point = digits.point();
  const bool withExponent = mayShowExponent && (point > kPlainBelow || point <= -kPlainBelow);
  const auto split = static_cast<std::size_t>(std::clamp<std::int64_t>(withExponent ? 1 : point, 0, 64));

  if (digits.negative) *to++ = '-';
  to = put(to, shown.substr(0, std::min(split, size)));
  if (split > size) to = std::fill_n(to, split - size, '0');
  if (split == 0) *to++ = '0';
  if (split < size) {
    *to++ = locale.decimalSign;
    if (point < 0 && !withExponent) to = std::fill_n(to, -point, '0');
    to = put(to, shown.substr(split));
  }
  if (withExponent) {
    const std::int64_t exponent = point - 1;
    *to++ = 'E';
    *to++ = exponent < 0 ? '-' : '+';
    std::array<char, 4> ofExponent;
    char* end = ofExponent.data() + ofExponent.size();
    const char* begin = putBackwards(end, static_cast<std::uint64_t>(exponent < 0 ? -exponent : exponent), 1);
    to = put(to, {begin, static_cast<std::size_t>(end - begin)});
  }
  text.endAt(to);
}

/// The count divided by 10^places, ties away from zero. The divisors are spelt out, as dividing by a constant is quick.
std::uint64_t withoutPlaces(std::uint64_t count, int places) {
  switch (places) {
    case 0:
      return count;
    case 1:
      return (count + 5) / 10;
    case 2:
      return (count + 50) / 100;
    case 3:
      return (count + 500) / 1'000;
    default:
      return (count + 5'000) / 10'000;
  }
}

}  // namespace

bool canWrite(const Digits& digits) { return digits.isZero() || digits.point() <= kMostWholeDigits; }

void write(FormattedText& text, const Digits& digits, Pattern pattern, const Locale& locale) {
  const int decimals = decimalsOf(pattern, locale);
  if (const auto count = rounded(digits, decimals, Ties::AwayFromZero)) {
    writeCount(text, digits.negative, *count, decimals, pattern, locale);
  } else {
    writeLong(text, digits, decimals, pattern, locale);
  }
}

FormattedText format(Currency amount, Pattern pattern, const Locale& locale) {
  FormattedText text;
  const std::int64_t count = amount.tenThousandths();
  if (pattern == Pattern::General) {
    writeGeneral(text, digitsOf(count, kCurrencyScale), false, locale);
    return text;
  }
  const int decimals = decimalsOf(pattern, locale);
  const std::uint64_t magnitude = count < 0 ? 0 - static_cast<std::uint64_t>(count) : static_cast<std::uint64_t>(count);
  writeCount(text, count < 0, withoutPlaces(magnitude, kCurrencyScale - decimals), decimals, pattern, locale);
  return text;
}

FormattedText format(double value, Pattern pattern, const Locale& locale) {
  FormattedText text;
  const Digits digits = digitsOf(value);
  if (pattern == Pattern::General) {
    writeGeneral(text, digits, true, locale);
  } else {
    write(text, digits, pattern, locale);
  }
  return text;
}

FormattedText format(const Decimal& value, Pattern pattern, const Locale& locale) {
  FormattedText text;
  std::array<char, DecimalRoom::extent> room;
  const Digits digits = digitsOf(value, room);
  if (pattern == Pattern::General) {
    writeGeneral(text, digits, false, locale);
  } else {
    write(text, digits, pattern, locale);
  }
  return text;
}

FormattedText format(std::int32_t value, Pattern pattern, const Locale& locale) {
  FormattedText text;
  const Digits digits = digitsOf(value, 0);
  if (pattern == Pattern::General) {
    writeGeneral(text, digits, false, locale);
  } else {
    write(text, digits, pattern, locale);
  }
  return text;
}

}  // namespace qvn
