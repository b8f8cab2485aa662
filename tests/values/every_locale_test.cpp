// In every locale, what is written under "Currency" reads back as the value shown.
#include <array>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "qvn/shared/conversions.h"
#include "qvn/shared/patterns.h"
#include "tests/failure_matchers.h"
#include "tests/values/decimal_model.h"

namespace qvn {

void PrintTo(const Locale& locale, std::ostream* out) {
  *out << '"' << locale.symbol << '"' << (locale.symbolFirst ? " first, " : " behind, ") << locale.decimalSign
       << locale.groupingSign << ", negative form " << static_cast<int>(locale.negative) << ", "
       << static_cast<int>(locale.currencyDecimals) << " decimals";
}

namespace {

using test::ModelTies;

std::vector<Locale> everyLocale() {
  struct Signs {
    char decimal, grouping;
  };
  std::vector<Locale> locales;
  for (const Signs signs : {Signs{',', '.'}, {'.', ','}, {',', ' '}, {'.', '\''}}) {
    for (std::string_view symbol : {"€", "EUR", "Fr.", "L.", "$", "E", ""}) {
      for (bool symbolFirst : {true, false}) {
        for (NegativeForm negative : {NegativeForm::SignFirst, NegativeForm::SignAtNumber, NegativeForm::Brackets}) {
          for (std::uint8_t decimals = 0; decimals <= 4; ++decimals) {
            locales.push_back({signs.decimal, signs.grouping, symbol, symbolFirst, negative, decimals});
          }
        }
      }
    }
  }
  return locales;
}

std::vector<std::int64_t> amounts() {
  constexpr std::int64_t kMostUnits = std::numeric_limits<std::int64_t>::max();
  constexpr std::int64_t kLeastUnits = std::numeric_limits<std::int64_t>::min();
  std::vector<std::int64_t> counts{0,
                                   1,
                                   -1,
                                   49,
                                   50,
                                   -50,
                                   99,
                                   4'999,
                                   5'000,
                                   9'999,
                                   10'000,
                                   -10'000,
                                   9'999'950,
                                   kMostUnits,
                                   kMostUnits - 1,
                                   kLeastUnits,
                                   kLeastUnits + 1};
  std::mt19937_64 random(922'337);
  for (int i = 0; i < 100; ++i) counts.push_back(static_cast<std::int64_t>(random()) >> (random() % 64));
  return counts;
}

/// What the locale shows under "Currency" for a whole number of units, put together from the parts.
std::string underCurrency(const std::string& units, const Locale& locale) {
  const bool negative = units.front() == '-';
  std::string number;
  for (char c : test::written(negative ? units.substr(1) : units, locale.currencyDecimals, true)) {
    number += c == '.' ? locale.groupingSign : c == ',' ? locale.decimalSign : c;
  }
  const bool atNumber = locale.negative == NegativeForm::SignAtNumber;
  const std::string before = negative && atNumber && locale.symbolFirst ? "-" : "";
  const std::string behind = negative && atNumber && !locale.symbolFirst ? "-" : "";
  const std::string signedNumber = before + number + behind;
  const std::string symbol(locale.symbol);
  std::string whole = symbol.empty()       ? signedNumber
                      : locale.symbolFirst ? symbol + " " + signedNumber
                                           : signedNumber + " " + symbol;
  if (!negative || atNumber) return whole;
  return locale.negative == NegativeForm::Brackets ? "(" + whole + ")" : "-" + whole;
}

void expectRoundTrip(std::int64_t count, Pattern pattern, int decimals, const Locale& locale) {
  const std::string text = format(Currency::fromTenThousandths(count), pattern, locale).str();
  const test::Exact exact = test::exactCount(count, 4);
  const std::string shown = test::inUnits(exact, decimals, ModelTies::AwayFromZero);
  if (pattern == Pattern::Currency) {
    ASSERT_EQ(text, underCurrency(shown, locale));
  }
  const std::string units = test::inUnits({shown.front() == '-', shown.substr(shown.front() == '-' ? 1 : 0), -decimals},
                                          4, ModelTies::ToEven);
  // The ends of the range may round to a number beyond it.
  if (test::fits64Bits(units)) {
    ASSERT_EQ(std::to_string(toCurrency(text, locale).tenThousandths()), units) << text;
  } else {
    ASSERT_TRUE(test::failsWith(FailureKind::Overflow, text, [&] { (void)toCurrency(text, locale); }));
  }
  const Locale plain{.symbol = "", .currencyDecimals = static_cast<std::uint8_t>(decimals)};
  ASSERT_EQ(format(toDecimal(text, locale), Pattern::Currency, plain).view(), test::written(shown, decimals, true));
  // Written again it is the same text.
  ASSERT_EQ(formatText(text, pattern, locale), text);
}

TEST(EveryLocale, CurrenciesUnderCurrencyReadBack) {
  const std::vector<std::int64_t> counts = amounts();
  for (const Locale& locale : everyLocale()) {
    for (std::int64_t count : counts) {
      expectRoundTrip(count, Pattern::Currency, locale.currencyDecimals, locale);
      if (HasFatalFailure()) FAIL() << testing::PrintToString(locale) << ", " << count;
    }
  }
}

TEST(EveryLocale, CurrenciesUnderTwoDecimalsReadBack) {
  const std::vector<std::int64_t> counts = amounts();
  for (const Locale& locale : everyLocale()) {
    for (std::int64_t count : counts) {
      expectRoundTrip(count, Pattern::TwoDecimals, 2, locale);
      if (HasFatalFailure()) FAIL() << testing::PrintToString(locale) << ", " << count;
    }
  }
}

TEST(EveryLocale, GeneralTextsReadBackExactly) {
  for (const Locale& locale : everyLocale()) {
    for (std::int64_t count : amounts()) {
      const Currency amount = Currency::fromTenThousandths(count);
      ASSERT_EQ(toCurrency(format(amount, Pattern::General, locale), locale), amount) << testing::PrintToString(locale);
    }
    for (double value : {1.5e20, -1.5e-20, 0.1, 1e15, -1e-15, 12.5}) {
      ASSERT_EQ(toDouble(format(value, Pattern::General, locale), locale), value) << testing::PrintToString(locale);
    }
  }
}

TEST(EveryLocale, RandomAmountsOverTheWholeRangeReadBackInItalian) {
  std::mt19937_64 random(11);
  const Locale italian;
  for (int i = 0; i < 100'000; ++i) {
    expectRoundTrip(static_cast<std::int64_t>(random()) >> (random() % 64), Pattern::Currency, 2, italian);
    if (HasFatalFailure()) return;
  }
}

}  // namespace
}  // namespace qvn
