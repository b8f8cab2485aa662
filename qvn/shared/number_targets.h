// Digits as values of the number types.
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

#include "qvn/shared/currency.h"
#include "qvn/shared/date.h"
#include "qvn/shared/decimal.h"
#include "qvn/shared/digits.h"

namespace qvn {

/// The number in units of 10^-decimals, ties to even; nothing if it lies outside the bounds.
std::optional<std::int64_t> countBetween(const Digits& digits, int decimals, std::int64_t least, std::int64_t most);

/// The number as a Currency, Decimal, double or integer, rounded ties to even; nothing if it does not fit.
template <class Target>
std::optional<Target> numberAs(const Digits& digits) {
  using Limits = std::numeric_limits<Target>;
  if constexpr (std::is_same_v<Target, Currency>) {
    const auto count =
        countBetween(digits, 4, std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max());
    return count ? std::optional(Currency::fromTenThousandths(*count)) : std::nullopt;
  } else if constexpr (std::is_same_v<Target, Decimal>) {
    return nearestDecimal(digits);
  } else if constexpr (std::is_same_v<Target, double>) {
    return nearestDouble(digits);
  } else {
    const auto count = countBetween(digits, 0, Limits::min(), Limits::max());
    return count ? std::optional(static_cast<Target>(*count)) : std::nullopt;
  }
}

/// The date that lies so many days from the date of zero. What stands behind the decimal sign is the time of the day,
/// and is dropped. Nothing outside the years 100 to 9999.
template <>
std::optional<Date> numberAs<Date>(const Digits& digits);

/// A number type and its range, in words for messages.
template <class Target>
constexpr std::string_view rangeName() {
  if constexpr (std::is_same_v<Target, Currency>) {
    return "a currency amount (-922337203685477,5808 to 922337203685477,5807)";
  } else if constexpr (std::is_same_v<Target, Decimal>) {
    return "a decimal (96 bits)";
  } else if constexpr (std::is_same_v<Target, double>) {
    return "a double";
  } else if constexpr (std::is_same_v<Target, std::uint8_t>) {
    return "an 8-bit unsigned integer (0 to 255)";
  } else if constexpr (std::is_same_v<Target, std::int16_t>) {
    return "a 16-bit integer (-32768 to 32767)";
  } else if constexpr (std::is_same_v<Target, std::int32_t>) {
    return "a 32-bit integer (-2147483648 to 2147483647)";
  } else {
    static_assert(!sizeof(Target), "this type has no range in words");
  }
}

/// A text between quotes, cut if it is long.
std::string quoted(std::string_view text);

/// "type mismatch": the text is no number.
[[noreturn]] void failNoNumber(std::string_view text);

/// "overflow": the source, named in words, does not fit the target.
[[noreturn]] void failToFit(std::string_view source, std::string_view target);

}  // namespace qvn
