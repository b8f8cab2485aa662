// Values as texts under the patterns of the fields: "Currency", "0.00", the dates, and the general text.
//
// Numbers round to the decimals of the pattern, ties away from zero; a double is first read by its 15 significant
// digits, so that 600.04 / 100 * 12.5 shows 75,01. What rounds to zero has no sign. format() allocates nothing. Under
// Currency, a locale that is not as locale.h says fails with "invalid call".
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "qvn/shared/currency.h"
#include "qvn/shared/date.h"
#include "qvn/shared/decimal.h"
#include "qvn/shared/locale.h"
#include "qvn/shared/variant.h"

namespace qvn {

/// How a number or a date is written.
enum class Pattern : std::uint8_t {
  General,       ///< no pattern: the number's general text
  Currency,      ///< "Currency": symbol, grouping, the locale's decimals
  TwoDecimals,   ///< "0.00": two decimals, no grouping
  DayMonthYear,  ///< "dd/mm/yyyy"
  MonthYear,     ///< "mm/yyyy"
  Year,          ///< "yyyy"
};

/// The pattern of a name, without regard to case; the empty name is General. Fails with "invalid call" on others.
Pattern patternNamed(std::string_view name);

/// A short text in place, without allocation; long enough for any double under "Currency". Its views live as long as it
/// does: hand a temporary one on as an argument, but keep it by str().
class FormattedText {
 public:
  static constexpr std::size_t kCapacity = 512;

  // Not defaulted, as making one would then clear the whole room.
  FormattedText() {}

  operator std::string_view() const { return {text_.data(), size_}; }  // NOLINT(google-explicit-constructor)
  std::string_view view() const { return *this; }
  std::string str() const { return std::string(view()); }

  /// The room to write into; what is written up to a place becomes the text by endAt().
  char* room() { return text_.data(); }
  void endAt(const char* end) { size_ = static_cast<std::size_t>(end - text_.data()); }

 private:
  std::array<char, kCapacity> text_;  // written before it is read, as size_ tells
  std::size_t size_ = 0;
};

/// A number under General, Currency or TwoDecimals; the date patterns fail with "invalid call". The general text has no
/// zeros at its end; that of a double stays plain from 1e-15 up to below 1e15 and is "1,5E+20" otherwise. An infinite
/// double fails with "overflow", and one that is no number with "type mismatch".
FormattedText format(Currency amount, Pattern pattern, const Locale& locale);
FormattedText format(double value, Pattern pattern, const Locale& locale);
FormattedText format(const Decimal& value, Pattern pattern, const Locale& locale);
FormattedText format(std::int32_t value, Pattern pattern, const Locale& locale);

/// A date under one of the date patterns or General; the others fail with "invalid call".
FormattedText format(Date date, Pattern pattern);

/// A text under a pattern: read as a number where it can be, digit for digit, which counts days under the date
/// patterns; under these also read as a date in the form "dd/mm/yyyy". Passed through unchanged otherwise, as always
/// under General, and where it is a number of more than 309 whole digits or of days that no date has.
std::string formatText(std::string_view text, Pattern pattern, const Locale& locale);

/// Any value under a pattern. Null and Empty give the empty text, a text what formatText() gives. A boolean is "True"
/// or "False" under General and -1 or 0 under a number pattern; a number under a date pattern counts days. Fails with
/// "type mismatch" on an array or an object.
std::string formatValue(const Variant& value, Pattern pattern, const Locale& locale);

}  // namespace qvn
