#include "qvn/shared/conversions.h"

#include <limits>

#include "qvn/shared/digits.h"
#include "qvn/shared/failure.h"
#include "qvn/shared/number_targets.h"
#include "qvn/shared/patterns.h"

namespace qvn {

namespace {

template <class Target>
Target fromText(std::string_view text, const Locale& locale) {
  const auto digits = digitsOf(text, locale);
  if (!digits) failNoNumber(text);
  const auto number = numberAs<Target>(*digits);
  if (!number) failToFit("the text " + quoted(text), rangeName<Target>());
  return *number;
}

template <class Target>
Target fromDouble(double value) {
  const auto number = numberAs<Target>(digitsOf(value));
  if (!number) failToFit(format(value, Pattern::General, Locale{}), rangeName<Target>());
  return *number;
}

}  // namespace

Currency toCurrency(std::string_view text, const Locale& locale) { return fromText<Currency>(text, locale); }
Decimal toDecimal(std::string_view text, const Locale& locale) { return fromText<Decimal>(text, locale); }
double toDouble(std::string_view text, const Locale& locale) { return fromText<double>(text, locale); }
std::uint8_t toByte(std::string_view text, const Locale& locale) { return fromText<std::uint8_t>(text, locale); }
std::int16_t toInt16(std::string_view text, const Locale& locale) { return fromText<std::int16_t>(text, locale); }
std::int32_t toInt32(std::string_view text, const Locale& locale) { return fromText<std::int32_t>(text, locale); }

Currency toCurrency(double value) { return fromDouble<Currency>(value); }
std::int16_t toInt16(double value) { return fromDouble<std::int16_t>(value); }
std::int32_t toInt32(double value) { return fromDouble<std::int32_t>(value); }

double toDouble(Currency amount) {
  // Up to here a count is a double itself, and one division rounds once.
  constexpr std::int64_t kExact = std::int64_t{1} << std::numeric_limits<double>::digits;
  const std::int64_t count = amount.tenThousandths();
  if (count >= -kExact && count <= kExact) return static_cast<double>(count) / 10'000.0;
  return nearestDouble(digitsOf(count, 4)).value();
}

bool isNumber(std::string_view text, const Locale& locale) { return digitsOf(text, locale).has_value(); }

double leadingNumber(std::string_view text) {
  const auto digits = leadingDigits(text);
  if (!digits) return 0;
  constexpr double kMost = std::numeric_limits<double>::max();
  return nearestDouble(*digits).value_or(digits->negative ? -kMost : kMost);
}

}  // namespace qvn
