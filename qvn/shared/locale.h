// How the office writes numbers and amounts. The locale is data: nothing asks the system for it.
#pragma once

#include <cstdint>
#include <string_view>

namespace qvn {

/// Where a negative amount carries its sign under the pattern "Currency".
enum class NegativeForm : std::uint8_t {
  SignFirst,     ///< "-€ 1,00", "-1,00 €"
  SignAtNumber,  ///< "€ -1,00", "1,00- €"
  Brackets,      ///< "(€ 1,00)", "(1,00 €)"
};

/// The number and currency forms of an office; as default the Italian ones: "€ 1.234,56", "-€ 1.234,56".
///
/// The signs are ASCII punctuation other than "+-()", and differ; the grouping sign may also be a blank, or '\0' for no
/// grouping. The symbol begins with no digit, blank or bracket, and with no sign. The pattern "Currency" fails with
/// "invalid call" under a locale that is otherwise.
struct Locale {
  char decimalSign = ',';
  char groupingSign = '.';
  std::string_view symbol = "€";  ///< UTF-8, up to 64 bytes, which must outlive the locale; empty for none
  bool symbolFirst = true;        ///< "€ 1,00" or "1,00 €"; a blank always stands between symbol and number
  NegativeForm negative = NegativeForm::SignFirst;
  std::uint8_t currencyDecimals = 2;  ///< decimals of the pattern "Currency", 0 to 4

  friend bool operator==(const Locale&, const Locale&) = default;
};

}  // namespace qvn
